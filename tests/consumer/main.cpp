// SPDX-License-Identifier: MIT
// A host program that uses only the installed package: it loads a catalogue,
// pops the format popup up, chooses the first preset of the visible list the way
// a user does (a mouse click), and checks what its completion received.
//
//     lmfp-consumer CATALOGUE.json
//
// Exit code 0 when the completion got one preset with its node exactly once.
#include <LMMediaFormatPopup/ILMMediaFormatPopup.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>

#include <cstdio>
#include <memory>
#include <string>

namespace {

using Lumeran::ILMFormatNode;
using Lumeran::ILMFormatPreset;
using Lumeran::ILMMediaFormatPopup;

constexpr int kTimeoutMs = 5000;

int fail(const char* what) {
    std::fprintf(stderr, "lmfp-consumer: %s\n", what);
    return 1;
}

QWidget* visibleSelectionWindow() {
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->isVisible() &&
            window->objectName() == QStringLiteral("LMFormatSelectionWndCtrl"))
            return window;
    }
    return nullptr;
}

// The current tab's presets are the rightmost visible list of the window (a
// category tab shows its nodes on the left and their presets on the right).
QAbstractItemView* visiblePresetList(QWidget* window) {
    QAbstractItemView* rightmost = nullptr;
    int rightmostX = 0;
    const auto views = window->findChildren<QAbstractItemView*>();
    for (QAbstractItemView* view : views) {
        if (!view->isVisible())
            continue;
        const int x = view->mapTo(window, QPoint(0, 0)).x();
        if (!rightmost || x > rightmostX) {
            rightmost = view;
            rightmostX = x;
        }
    }
    return rightmost;
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Lumeran"));
    QCoreApplication::setApplicationName(QStringLiteral("lmfp-consumer"));
    if (argc != 2)
        return fail("usage: lmfp-consumer CATALOGUE.json");

    auto popup = ILMMediaFormatPopup::Shared();
    popup->SetupExternalFormatData(argv[1]);
    popup->WaitForFormatDataLoadingComplete();

    int calls = 0;
    std::shared_ptr<const ILMFormatPreset> chosenPreset;
    std::shared_ptr<const ILMFormatNode> chosenNode;
    popup->PopupSelection(ILMMediaFormatPopup::Rect{200.0f, 150.0f, 120.0f, 24.0f},
                          [&](std::shared_ptr<const ILMFormatPreset> preset,
                              std::shared_ptr<const ILMFormatNode> node) {
                              ++calls;
                              chosenPreset = std::move(preset);
                              chosenNode = std::move(node);
                          });

    QWidget* window = nullptr;
    if (!QTest::qWaitFor([&] { return (window = visibleSelectionWindow()) != nullptr; },
                         kTimeoutMs))
        return fail("no visible window named LMFormatSelectionWndCtrl");
    // The tabs are built on the GUI thread once the load's completion arrives.
    QAbstractItemView* list = nullptr;
    if (!QTest::qWaitFor(
            [&] {
                list = visiblePresetList(window);
                return list && list->model() && list->model()->rowCount() > 0;
            },
            kTimeoutMs))
        return fail("the popup shows no list with presets");

    const QModelIndex first = list->model()->index(0, 0, list->rootIndex());
    list->scrollTo(first);
    const QRect cell = list->visualRect(first);
    // Left of the middle, on the cell's title, away from its edit and remove controls.
    const QPoint onTitle(cell.left() + cell.width() / 4, cell.center().y());
    QTest::mouseMove(list->viewport(), onTitle);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, onTitle);

    if (!QTest::qWaitFor([&] { return calls > 0; }, kTimeoutMs))
        return fail("clicking the first preset did not complete the popup");
    // The window hides and loses activation after the choice; a second call to the
    // completion would come from there, through events still queued.
    QTest::qWait(300);
    if (calls != 1)
        return fail("the completion was called more than once");
    if (!chosenPreset || !chosenNode)
        return fail("the completion received an empty preset or node");
    if (chosenPreset->Title().empty() || chosenNode->Title().empty())
        return fail("the chosen preset or node has no title");
    if (window->isVisible())
        return fail("the popup is still visible after the choice");

    std::printf("chosen: %s / %s\n", chosenNode->Title().c_str(), chosenPreset->Title().c_str());
    return 0;
}
