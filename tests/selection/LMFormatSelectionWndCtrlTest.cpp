// SPDX-License-Identifier: MIT
#include "LMFormatSelectionWndCtrl.h"

#include "LMFormatSelectionWndCtrl_p.h"

#include "ILMFmtPresetDataSource.h"
#include "LMFmtNodeViewCtrl.h"
#include "LMFmtRecentViewCtrl.h"
#include "LMFormatCollectionView.h"
#include "LMFormatDataView.h"
#include "LMFormatDataViewItem.h"
#include "LMFormatEditingWndCtrl.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMProgressIndicator.h"
#include "LMTabButtonCell.h"
#include "LMTabHeaderView.h"
#include "LMUiTestSupport.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QFile>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyleHints>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>

#include <gtest/gtest.h>

using namespace Lumeran;
using Lumeran::TestSupport::UiTest;

namespace {

struct Completion {
    std::shared_ptr<const ILMFormatPreset> preset;
    std::shared_ptr<const ILMFormatNode> node;
};

// A host window that notes every mouse press, release and double-click that
// reaches it, with a line edit for typing and a "Format" button to anchor the
// popup to.
class RecordingHost : public QWidget {
public:
    RecordingHost() {
        setGeometry(40, 40, 1000, 700);
        anchor = new QPushButton(QStringLiteral("Format"), this);
        anchor->setGeometry(20, 20, 120, 30);
        field = new QLineEdit(this);
        field->setGeometry(900, 20, 80, 30);
    }

    // The anchor's rectangle on the screen, as a host hands it to the popup.
    QRectF anchorRect() const { return {anchor->mapToGlobal(QPoint(0, 0)), anchor->size()}; }

    QList<QEvent::Type> received;
    QPushButton* anchor = nullptr;
    QLineEdit* field = nullptr;

protected:
    void mousePressEvent(QMouseEvent* event) override { note(event); }
    void mouseReleaseEvent(QMouseEvent* event) override { note(event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { note(event); }

private:
    void note(QMouseEvent* event) {
        received.append(event->type());
        event->accept();
    }
};

// The window system's way with a button: the event goes to the window that is
// at that point of the screen, the popup above the host while it shows.
QWindow* WindowAt(const QList<QWidget*>& topDown, const QPoint& global) {
    for (QWidget* window : topDown) {
        if (window->isVisible() && window->geometry().contains(global))
            return window->windowHandle();
    }
    return nullptr;
}

QJsonObject Preset(const QString& title, const QString& description) {
    return {{QStringLiteral("title"), title},
            {QStringLiteral("description"), description},
            {QStringLiteral("faceId"), 100},
            {QStringLiteral("format"), QStringLiteral("mp4")}};
}

QJsonObject Format(const QString& title, const QJsonArray& presets) {
    return {{QStringLiteral("title"), title},
            {QStringLiteral("faceId"), 100},
            {QStringLiteral("presets"), presets}};
}

QJsonObject Category(const QString& title, const QJsonArray& formats) {
    return {{QStringLiteral("title"), title},
            {QStringLiteral("faceId"), 10},
            {QStringLiteral("children"), formats}};
}

// A catalogue of two categories, A and B, small enough to reason about.
QString WriteTwoCategoryCatalogue(const QTemporaryDir& dir) {
    const QJsonArray categories{
        Category(QStringLiteral("A"),
                 {Format(QStringLiteral("MP4"),
                         {Preset(QStringLiteral("HD 1080p"), QStringLiteral("Full HD")),
                          Preset(QStringLiteral("HD 720p"), QStringLiteral("HD"))}),
                  Format(QStringLiteral("MKV"),
                         {Preset(QStringLiteral("Archive"), QStringLiteral("Keeps everything"))})}),
        Category(QStringLiteral("B"),
                 {Format(QStringLiteral("Phone"),
                         {Preset(QStringLiteral("Small"), QStringLiteral("For old phones"))})})};
    const QJsonObject root{{QStringLiteral("title"), QStringLiteral("Formats")},
                           {QStringLiteral("children"), categories}};
    const QString path = dir.filePath(QStringLiteral("two.json"));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(QJsonDocument(root).toJson());
    return path;
}

// A catalogue of count categories, "Category 1" up, one preset each.
QString WriteCatalogueOfCategories(const QTemporaryDir& dir, int count) {
    QJsonArray categories;
    for (int i = 1; i <= count; ++i) {
        const QString title = QStringLiteral("Category %1").arg(i);
        categories.append(
            Category(title, {Format(QStringLiteral("MP4"),
                                    {Preset(QStringLiteral("HD 720p"), QStringLiteral("HD"))})}));
    }
    const QJsonObject root{{QStringLiteral("title"), QStringLiteral("Formats")},
                           {QStringLiteral("children"), categories}};
    const QString path = dir.filePath(QStringLiteral("categories-%1.json").arg(count));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(QJsonDocument(root).toJson());
    return path;
}

bool LoadCatalogue(const std::string& path) {
    auto source = ILMFmtPresetDataSource::Shared();
    source->AsyncLoadExternalDataSource(path, {});
    source->WaitForLoadingComplete();
    return source->GetExternalFormatPresets() != nullptr;
}

class LMFormatSelectionWndCtrlTest : public UiTest {
protected:
    void SetUp() override {
        UiTest::SetUp();
        ctrl = LMFormatSelectionWndCtrl::shared();
        d = LMFormatSelectionWndCtrlPrivate::get(ctrl);
    }

    void TearDown() override {
        d->searchField()->clear();
        UiTest::TearDown();
    }

    // Loads the default catalogue and builds the tabs, as the facade does when
    // the load finishes.
    void LoadDefault() {
        TestSupport::LoadDefaultCatalogueIntoSharedDataSource();
        ctrl->loadExternalDataInMainThread();
    }

    bool LoadTwoCategories() {
        if (!LoadCatalogue(WriteTwoCategoryCatalogue(dir).toStdString()))
            return false;
        ctrl->loadExternalDataInMainThread();
        return true;
    }

    void Popup() {
        ctrl->popupSelection(QRectF(100, 100, 120, 30), [this](auto preset, auto node) {
            completions.push_back({preset, node});
        });
        QApplication::processEvents();
        // A window manager maps the window and then places it: until it is
        // where it was asked to be, a point mapped to the screen misses.
        const QRect frame = ctrl->frameFromRect(QRectF(100, 100, 120, 30));
        EXPECT_TRUE(QTest::qWaitFor([this, frame] {
            return ctrl->isVisible() && ctrl->geometry() == frame;
        })) << "the popup did not settle at its place";
    }

    bool LoadCategories(int count) {
        if (!LoadCatalogue(WriteCatalogueOfCategories(dir, count).toStdString()))
            return false;
        ctrl->loadExternalDataInMainThread();
        return true;
    }

    // The part of a tab the user sees, in the strip's coordinates: what its
    // parents and siblings leave of it.
    QRect SeenPartOfTab(int index) const {
        const QWidget* tab = d->tabHeaderView()->tabButtons().at(index);
        const QRect seen = tab->visibleRegion().boundingRect();
        return seen.isEmpty() ? QRect()
                              : seen.translated(tab->mapTo(d->tabHeaderView(), QPoint(0, 0)));
    }

    QRect SelectedTabFrame() const {
        const QWidget* tab =
            d->tabHeaderView()->tabButtons().at(qsizetype(d->tabHeaderView()->indexOfSelected()));
        return {tab->mapTo(d->tabHeaderView(), QPoint(0, 0)), tab->size()};
    }

    // No tab, nor the arrows, shows under the search field, and every tab keeps
    // its size.
    void ExpectNoTabUnderTheSearchField(const std::string& where) {
        LMTabHeaderView* strip = d->tabHeaderView();
        const QRect field = d->searchField()->geometry();
        for (int i = 0; i < strip->tabButtons().size(); ++i) {
            EXPECT_FALSE(SeenPartOfTab(i).intersects(field)) << where << ": tab " << i;
            EXPECT_EQ(strip->tabButtons().at(i)->size(), QSize(97, 27)) << where << ": tab " << i;
        }
        for (const QAbstractButton* arrow : {strip->scrollLeftButton(), strip->scrollRightButton()})
            EXPECT_FALSE(arrow->isVisible() && arrow->geometry().intersects(field)) << where;
    }

    // The above, and the selected tab is seen whole.
    void ExpectTheStripLeavesTheSearchFieldFreeAndShowsTheSelectedTab(const std::string& where) {
        ExpectNoTabUnderTheSearchField(where);
        LMTabHeaderView* strip = d->tabHeaderView();
        const QRect selected = SelectedTabFrame();
        EXPECT_TRUE(strip->visibleTabArea().contains(selected))
            << where << ": selected tab at " << selected.x() << " of an area to "
            << strip->visibleTabArea().right();
        EXPECT_EQ(SeenPartOfTab(int(strip->indexOfSelected())).size(), selected.size()) << where;
    }

    // One wheel notch (120 eighths of a degree) per step over target, sent as
    // the window sends it: to the widget under the pointer, which passes on
    // what it does not take.
    static void Wheel(QWidget* target, int angle) {
        const QPointF local = target->rect().center();
        QWheelEvent event(local, QPointF(target->mapToGlobal(local)), QPoint(), QPoint(0, angle),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(target, &event);
    }

    QStringList TabTitles() const {
        QStringList titles;
        for (QAbstractButton* button : d->tabHeaderView()->tabButtons())
            titles << button->text();
        return titles;
    }

    static QStringList Titles(const QAbstractItemView* view) {
        QStringList titles;
        const QAbstractItemModel* model = view->model();
        for (int row = 0; row < model->rowCount(); ++row)
            titles << model->index(row, 0).data(Qt::DisplayRole).toString();
        return titles;
    }

    void ClickTab(int index) {
        QAbstractButton* button = d->tabHeaderView()->tabButtons().at(index);
        QTest::mouseClick(button, Qt::LeftButton);
    }

    static void ClickRow(QAbstractItemView* view, int row) {
        const QRect rect = view->visualRect(view->model()->index(row, 0));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, rect.center() - QPoint(40, 0));
    }

    // Rests the pointer on a row and clicks the edit button that the cell then
    // shows. The editor runs modally inside the click; `whileEditing` runs in
    // its loop and must close it.
    static void ClickEdit(LMFormatCollectionView* view, int row,
                          std::function<void()> whileEditing) {
        const QRect rect = view->visualRect(view->model()->index(row, 0));
        // On a real display the pointer moves through the X server, and the
        // row learns of it a round trip later, from a motion inside the list
        // (entering the window alone is no motion): the pointer moves to the
        // row, then one pixel at a time as a hand would, until the row shows
        // its buttons.
        const QPoint target = view->viewport()->mapToGlobal(rect.center());
        int step = 0;
        ASSERT_TRUE(QTest::qWaitFor([view, row, target, &step] {
            QCursor::setPos(target + QPoint(++step % 2, 0));
            const LMFormatDataViewItem* hovered = view->itemAtIndex(row);
            return hovered && hovered->showEditing();
        }));
        LMFormatDataViewItem* item = view->itemAtIndex(row);
        const QRect button =
            item->dataView()->actionButtonGeometry(LMFormatDataView::ActionButton::Edit);
        ASSERT_FALSE(button.isEmpty());
        QTimer::singleShot(0, LMFormatEditingWndCtrl::shared(), std::move(whileEditing));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, rect.topLeft() + button.center());
    }

    // Shows the popup and waits until it is the active window, so that keys
    // typed reach its focus widget as they would from the keyboard.
    void PopupActive() {
        Popup();
        ASSERT_TRUE(QTest::qWaitForWindowActive(ctrl));
    }

    // Keys typed at the popup: the window system hands them to the focus
    // widget, and what that widget leaves goes up to the window.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(ctrl->windowHandle(), key, modifiers);
    }
    void Type(const QString& text) {
        for (const QChar c : text)
            QTest::keyClick(ctrl->windowHandle(), c.toLatin1());
    }

    // Typing at the window lands in the search field, which has the focus.
    void ExpectTypingReachesTheSearchField() {
        Type(QStringLiteral("hd"));
        EXPECT_EQ(d->searchField()->text(), QStringLiteral("hd"));
        EXPECT_EQ(ctrl->searchText(), QStringLiteral("hd"));
        EXPECT_TRUE(d->searchField()->hasFocus());
    }

    // Opens the popup on the first category and types text at it; the list of
    // that category's presets.
    LMFormatCollectionView* SearchFirstCategory(const QString& text) {
        LoadDefault();
        Popup();
        EXPECT_TRUE(QTest::qWaitForWindowActive(ctrl));
        Type(text);
        return d->defFmtViewCtrls().first()->fmtListView();
    }

    // The title of the preset of the one completion; empty for anything else.
    QString OnlyChosenTitle() const {
        if (completions.size() != 1 || !completions[0].preset)
            return {};
        return QString::fromStdString(completions[0].preset->Title());
    }

    LMFormatCollectionView* FirstCategoryNodes() const {
        return d->defFmtViewCtrls().first()->nodeListView();
    }

    static QComboBox* EditorBox(const char* name) {
        return LMFormatEditingWndCtrl::shared()->findChild<QComboBox*>(QLatin1StringView(name));
    }

    static void ClickEditorButton(const char* name) {
        auto* button =
            LMFormatEditingWndCtrl::shared()->findChild<QAbstractButton*>(QLatin1StringView(name));
        ASSERT_NE(button, nullptr) << name;
        QTest::mouseClick(button, Qt::LeftButton);
    }

    // Shows host and waits until the window system has placed it.
    static void ShowHost(RecordingHost& host) {
        host.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&host));
    }

    // A press, a release or a whole click of the left button at a point of the
    // screen, on whichever window is there: the popup, else the host.
    void PressAt(RecordingHost& host, const QPoint& global) {
        Button(host, global, QTest::MousePress);
    }
    void ReleaseAt(RecordingHost& host, const QPoint& global) {
        Button(host, global, QTest::MouseRelease);
    }
    void ClickAt(RecordingHost& host, const QPoint& global) {
        Button(host, global, QTest::MouseClick);
    }
    // Press, release, press (a double-click by then) and release.
    void DoubleClickAt(RecordingHost& host, const QPoint& global) {
        Button(host, global, QTest::MouseDClick);
    }

    void Button(RecordingHost& host, const QPoint& global, QTest::MouseAction action) {
        QWindow* window = WindowAt({ctrl, &host}, global);
        ASSERT_NE(window, nullptr);
        QTest::mouseEvent(action, window, Qt::LeftButton, {}, window->mapFromGlobal(global));
    }

    // The middle of a preset row of the first category, on the screen.
    QPoint PresetRowOnScreen(int row) const {
        LMFormatCollectionView* list = d->defFmtViewCtrls().first()->fmtListView();
        const QRect rect = list->visualRect(list->model()->index(row, 0));
        return list->viewport()->mapToGlobal(rect.center() - QPoint(40, 0));
    }

    // Waits out the double-click interval: a click after it is a new one.
    static void WaitOutTheDoubleClickInterval() {
        QTest::qWait(QGuiApplication::styleHints()->mouseDoubleClickInterval() + 100);
    }

    QTemporaryDir dir;
    LMFormatSelectionWndCtrl* ctrl = nullptr;
    // The window's insides: its tab strip, lists and search field.
    LMFormatSelectionWndCtrlPrivate* d = nullptr;
    std::vector<Completion> completions;
};

const QRect kScreen(0, 0, 1600, 1000);

} // namespace

TEST_F(LMFormatSelectionWndCtrlTest, PopupHangsCentredUnderTheRectangle) {
    const QRect frame =
        LMFormatSelectionWndCtrlPrivate::frameFromRect(QRectF(700, 100, 200, 30), kScreen);
    EXPECT_EQ(frame, QRect(400, 130, 800, 450));
}

TEST_F(LMFormatSelectionWndCtrlTest, RectangleNearTheBottomPutsThePopupAboveIt) {
    const QRect frame =
        LMFormatSelectionWndCtrlPrivate::frameFromRect(QRectF(700, 900, 200, 30), kScreen);
    EXPECT_EQ(frame, QRect(400, 450, 800, 450));
}

TEST_F(LMFormatSelectionWndCtrlTest, NoRoomAboveEitherPinsThePopupToTheVisibleBottom) {
    const QRect visible(0, 0, 1600, 700);
    const QRect frame =
        LMFormatSelectionWndCtrlPrivate::frameFromRect(QRectF(700, 400, 200, 30), visible);
    EXPECT_EQ(frame, QRect(400, 250, 800, 450));
    // It may then cover the rectangle.
    EXPECT_TRUE(frame.intersects(QRect(700, 400, 200, 30)));
}

TEST_F(LMFormatSelectionWndCtrlTest, RectangleNearTheRightEdgeRightAlignsToTheVisibleRightEdge) {
    const QRect frame =
        LMFormatSelectionWndCtrlPrivate::frameFromRect(QRectF(1500, 100, 80, 30), kScreen);
    EXPECT_EQ(frame.right() + 1, kScreen.right() + 1);
    EXPECT_EQ(frame.x(), 800);
}

TEST_F(LMFormatSelectionWndCtrlTest, RectangleNearTheLeftEdgeLeftAlignsToTheVisibleLeftEdge) {
    const QRect visible(50, 0, 1550, 1000);
    const QRect frame =
        LMFormatSelectionWndCtrlPrivate::frameFromRect(QRectF(60, 100, 80, 30), visible);
    EXPECT_EQ(frame.x(), 50);
}

TEST_F(LMFormatSelectionWndCtrlTest, PopupWiderThanTheVisibleFrameEndsRightAligned) {
    const QRect visible(0, 0, 600, 1000);
    const QRect frame =
        LMFormatSelectionWndCtrlPrivate::frameFromRect(QRectF(300, 100, 10, 10), visible);
    EXPECT_EQ(frame.x(), 600 - 800);
}

TEST_F(LMFormatSelectionWndCtrlTest, UntilTheDataArrivesTheIndicatorSpinsAndSearchIsDisabled) {
    Popup();
    ASSERT_NE(d->loadPrgInd(), nullptr);
    EXPECT_TRUE(d->loadPrgInd()->isAnimating());
    EXPECT_EQ(d->tabHeaderView()->countOfTab(), 0u);
    EXPECT_EQ(d->currentFormatNodeView(), d->loadPrgInd());
    EXPECT_FALSE(ctrl->enableSearch());
    EXPECT_FALSE(d->searchField()->isEnabled());

    LoadDefault();
    EXPECT_EQ(d->loadPrgInd(), nullptr);
    EXPECT_TRUE(d->searchField()->isEnabled());
    EXPECT_GT(d->tabHeaderView()->countOfTab(), 2u);
}

TEST_F(LMFormatSelectionWndCtrlTest, WithAnEmptyRecentListThePopupOpensOnTheFirstCategory) {
    LoadDefault();
    Popup();
    EXPECT_EQ(d->tabHeaderView()->indexOfSelected(), 1u);
    EXPECT_EQ(d->currentFormatNodeView(), d->defFmtViewCtrls().first()->view());
}

TEST_F(LMFormatSelectionWndCtrlTest, WithRecentEntriesThePopupOpensOnRecent) {
    TestSupport::LoadDefaultCatalogueIntoSharedDataSource();
    auto source = ILMFmtPresetDataSource::Shared();
    auto format = source->GetExternalFormatPresets()->ChildAt(0)->ChildAt(0);
    source->PushRecentItem(format->FormatPresetAt(0), format);
    ctrl->loadExternalDataInMainThread();
    Popup();
    EXPECT_EQ(d->tabHeaderView()->indexOfSelected(), 0u);
    EXPECT_EQ(d->currentFormatNodeView(), d->recentFmtViewCtrl()->view());
}

TEST_F(LMFormatSelectionWndCtrlTest, WithCategoriesAAndBTheStripReadsRecentABCustom) {
    ASSERT_TRUE(LoadTwoCategories());
    EXPECT_EQ(TabTitles(), (QStringList{QStringLiteral("Recent"), QStringLiteral("A"),
                                        QStringLiteral("B"), QStringLiteral("Custom")}));
}

TEST_F(LMFormatSelectionWndCtrlTest, SearchingOnTheCustomTabSearchesTheCustomList) {
    ASSERT_TRUE(LoadTwoCategories());
    auto source = ILMFmtPresetDataSource::Shared();
    auto mp4 = source->GetExternalFormatPresets()->ChildAt(0)->ChildAt(0);
    auto mine = mp4->FormatPresetAt(0)->Clone();
    mine->SetTitle("Mine for the tablet");
    source->AddCustomPreset(mine, mp4);
    auto other = mp4->FormatPresetAt(1)->Clone();
    other->SetTitle("Another one");
    source->AddCustomPreset(other, mp4);
    ctrl->loadExternalDataInMainThread();
    Popup();

    ClickTab(3);
    ASSERT_EQ(d->currentFormatNodeView(), d->customFmtViewCtrl()->view());
    EXPECT_EQ(Titles(d->customFmtViewCtrl()->fmtListView()).size(), 2);
    QTest::keyClicks(d->searchField(), QStringLiteral("tablet"));
    EXPECT_EQ(Titles(d->customFmtViewCtrl()->fmtListView()),
              QStringList{QStringLiteral("Mine for the tablet")});
    // The category lists were not searched.
    EXPECT_EQ(Titles(d->defFmtViewCtrls().at(0)->fmtListView()).size(), 2);
}

TEST_F(LMFormatSelectionWndCtrlTest, SearchingFiltersOnlyTheSelectedTabsList) {
    ASSERT_TRUE(LoadTwoCategories());
    Popup();
    ClickTab(1);
    QTest::keyClicks(d->searchField(), QStringLiteral("720"));
    LMFmtNodeViewCtrl* a = d->defFmtViewCtrls().at(0);
    EXPECT_EQ(Titles(a->nodeListView()), QStringList{QStringLiteral("MP4")});
    EXPECT_EQ(Titles(a->fmtListView()), QStringList{QStringLiteral("HD 720p")});
    EXPECT_EQ(Titles(d->defFmtViewCtrls().at(1)->nodeListView()),
              QStringList{QStringLiteral("Phone")});
}

TEST_F(LMFormatSelectionWndCtrlTest, SwitchingTabsEmptiesTheSearchField) {
    LoadDefault();
    Popup();
    QTest::keyClicks(d->searchField(), QStringLiteral("hd"));
    EXPECT_EQ(ctrl->searchText(), QStringLiteral("hd"));
    ClickTab(2);
    EXPECT_EQ(d->searchField()->text(), QString());
    EXPECT_EQ(ctrl->searchText(), QString());
    EXPECT_EQ(d->tabHeaderView()->indexOfSelected(), 2u);
    EXPECT_EQ(d->currentFormatNodeView(), d->defFmtViewCtrls().at(1)->view());
}

TEST_F(LMFormatSelectionWndCtrlTest, ClickingOutsideThePopupHidesItAndReportsADismissalOnce) {
    LoadDefault();
    QWidget host;
    host.setGeometry(0, 0, 300, 200);
    auto* button = new QPushButton(QStringLiteral("Elsewhere"), &host);
    host.show();
    Popup();
    ASSERT_TRUE(ctrl->isVisible());

    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_FALSE(ctrl->isVisible());
    ASSERT_EQ(completions.size(), 1u);
    EXPECT_EQ(completions[0].preset, nullptr);
    EXPECT_EQ(completions[0].node, nullptr);
    // Later losses of focus while hidden report nothing more.
    QTest::mouseClick(button, Qt::LeftButton);
    ctrl->windowDidResignKey();
    EXPECT_EQ(completions.size(), 1u);
    EXPECT_TRUE(ILMFmtPresetDataSource::Shared()->GetRecentList().empty());
}

TEST_F(LMFormatSelectionWndCtrlTest, AChoiceByAPressKeepsTheRestOfItsDoubleClickOffTheHostBelow) {
    LoadDefault();
    RecordingHost host;
    ShowHost(host);
    Popup();
    const QPoint row = PresetRowOnScreen(1);
    ASSERT_TRUE(host.geometry().contains(row));

    // The press chooses and the popup goes; the rest of the double-click
    // happens where the popup was, over the host.
    PressAt(host, row);
    EXPECT_FALSE(ctrl->isVisible());
    ASSERT_EQ(completions.size(), 1u);
    EXPECT_NE(completions[0].preset, nullptr);
    ReleaseAt(host, row);
    DoubleClickAt(host, row);
    EXPECT_TRUE(host.received.isEmpty()) << host.received.size() << " events reached the host";
    EXPECT_EQ(completions.size(), 1u);

    // A click of its own, once the interval is over, is the host's again.
    WaitOutTheDoubleClickInterval();
    ClickAt(host, row);
    EXPECT_EQ(host.received,
              (QList<QEvent::Type>{QEvent::MouseButtonPress, QEvent::MouseButtonRelease}));
}

TEST_F(LMFormatSelectionWndCtrlTest, ADoubleClickOutsideThePopupDismissesItAndReachesNothing) {
    LoadDefault();
    RecordingHost host;
    ShowHost(host);
    Popup();
    const QPoint outside = host.mapToGlobal(QPoint(950, 650));
    ASSERT_FALSE(ctrl->geometry().contains(outside));

    DoubleClickAt(host, outside);
    EXPECT_FALSE(ctrl->isVisible());
    ASSERT_EQ(completions.size(), 1u);
    EXPECT_EQ(completions[0].preset, nullptr);
    EXPECT_EQ(completions[0].node, nullptr);
    EXPECT_TRUE(host.received.isEmpty()) << host.received.size() << " events reached the host";
}

TEST_F(LMFormatSelectionWndCtrlTest, APressOnTheHostsAnchorClosesThePopupWithoutClickingTheAnchor) {
    LoadDefault();
    RecordingHost host;
    int opened = 0;
    QObject::connect(host.anchor, &QPushButton::clicked, &host, [&] {
        ++opened;
        ctrl->popupSelection(host.anchorRect(), [this](auto preset, auto node) {
            completions.push_back({preset, node});
        });
    });
    ShowHost(host);
    const QPoint anchor = host.anchor->mapToGlobal(host.anchor->rect().center());
    ClickAt(host, anchor);
    ASSERT_EQ(opened, 1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return ctrl->isVisible(); }));

    // The host's button toggles the popup: the click that lands on it while
    // the popup shows only closes it.
    ClickAt(host, anchor);
    EXPECT_FALSE(ctrl->isVisible());
    EXPECT_EQ(opened, 1);
    ASSERT_EQ(completions.size(), 1u);
    EXPECT_EQ(completions[0].preset, nullptr);

    // With the popup closed, the button opens it again.
    WaitOutTheDoubleClickInterval();
    ClickAt(host, anchor);
    EXPECT_EQ(opened, 2);
    EXPECT_TRUE(ctrl->isVisible());
}

TEST_F(LMFormatSelectionWndCtrlTest, KeysStillReachTheHostWhileTheRestOfAClickIsKeptFromIt) {
    LoadDefault();
    RecordingHost host;
    ShowHost(host);
    Popup();
    const QPoint row = PresetRowOnScreen(0);
    PressAt(host, row);
    ASSERT_FALSE(ctrl->isVisible());
    QTest::keyClicks(host.field, QStringLiteral("ok"));
    EXPECT_EQ(host.field->text(), QStringLiteral("ok"));
    ReleaseAt(host, row);
    EXPECT_TRUE(host.received.isEmpty());
}

TEST_F(LMFormatSelectionWndCtrlTest, AChoiceByTheKeyboardLeavesTheNextClickToTheHost) {
    LoadDefault();
    RecordingHost host;
    ShowHost(host);
    Popup();
    LMFormatCollectionView* list = d->defFmtViewCtrls().first()->fmtListView();
    list->setCurrentIndex(list->model()->index(1, 0));
    QTest::keyClick(list, Qt::Key_Return);
    ASSERT_EQ(completions.size(), 1u);
    ASSERT_FALSE(ctrl->isVisible());

    ClickAt(host, PresetRowOnScreen(1));
    EXPECT_EQ(host.received,
              (QList<QEvent::Type>{QEvent::MouseButtonPress, QEvent::MouseButtonRelease}));
}

TEST_F(LMFormatSelectionWndCtrlTest,
       ShowingAgainCompletesTheShowingStillOpenWithEmptyHandlesFirst) {
    LoadDefault();
    std::vector<std::string> calls;
    const auto handler = [&calls](const char* name) {
        return [&calls, name](auto preset, auto node) {
            calls.push_back(std::string(name) + (preset || node ? ": chosen" : ": dismissed"));
        };
    };
    ctrl->popupSelection(QRectF(100, 100, 120, 30), handler("first"));
    ctrl->popupSelection(QRectF(100, 100, 120, 30), handler("second"));
    EXPECT_EQ(calls, std::vector<std::string>{"first: dismissed"});
    EXPECT_TRUE(ctrl->isVisible());
    ClickRow(d->defFmtViewCtrls().first()->fmtListView(), 0);
    EXPECT_EQ(calls, (std::vector<std::string>{"first: dismissed", "second: chosen"}));
    // A showing that ended is not completed again by the next one.
    ctrl->popupSelection(QRectF(100, 100, 120, 30), handler("third"));
    EXPECT_EQ(calls.size(), 2u);
    ctrl->windowDidResignKey();
    EXPECT_EQ(calls.back(), "third: dismissed");
}

TEST_F(LMFormatSelectionWndCtrlTest, EscapeDismissesThePopup) {
    LoadDefault();
    Popup();
    QTest::keyClick(d->searchField(), Qt::Key_Escape);
    EXPECT_FALSE(ctrl->isVisible());
    ASSERT_EQ(completions.size(), 1u);
    EXPECT_EQ(completions[0].preset, nullptr);
}

TEST_F(LMFormatSelectionWndCtrlTest, ChoosingAPresetHidesThePopupAndPutsThePairOnTopOfRecent) {
    LoadDefault();
    Popup();
    LMFmtNodeViewCtrl* first = d->defFmtViewCtrls().first();
    const QString chosen = Titles(first->fmtListView()).at(1);
    ClickRow(first->fmtListView(), 1);

    EXPECT_FALSE(ctrl->isVisible());
    ASSERT_EQ(completions.size(), 1u);
    ASSERT_NE(completions[0].preset, nullptr);
    ASSERT_NE(completions[0].node, nullptr);
    EXPECT_EQ(QString::fromStdString(completions[0].preset->Title()), chosen);
    const std::string node = completions[0].node->Title();

    // The loss of focus that follows the choice reports nothing.
    ctrl->windowDidResignKey();
    EXPECT_EQ(completions.size(), 1u);

    Popup();
    ClickTab(0);
    auto recent = ILMFmtPresetDataSource::Shared()->GetRecentList();
    ASSERT_FALSE(recent.empty());
    EXPECT_EQ(recent.front()->FormatPreset()->Title(), chosen.toStdString());
    EXPECT_EQ(recent.front()->FormatNode()->Title(), node);
    const QStringList shown = Titles(d->recentFmtViewCtrl()->recentListView());
    ASSERT_FALSE(shown.isEmpty());
    EXPECT_TRUE(shown.first().contains(chosen)) << shown.first().toStdString();
}

TEST_F(LMFormatSelectionWndCtrlTest, PressingEnterInTheFormatListChoosesTheCurrentPreset) {
    LoadDefault();
    Popup();
    QAbstractItemView* list = d->defFmtViewCtrls().first()->fmtListView();
    list->setFocus();
    list->setCurrentIndex(list->model()->index(2, 0));
    QTest::keyClick(list, Qt::Key_Return);
    ASSERT_EQ(completions.size(), 1u);
    EXPECT_EQ(QString::fromStdString(completions[0].preset->Title()),
              list->model()->index(2, 0).data().toString());
}

TEST_F(LMFormatSelectionWndCtrlTest, TypingWhileAListHasFocusGoesToTheSearchField) {
    LoadDefault();
    Popup();
    QAbstractItemView* list = d->defFmtViewCtrls().first()->fmtListView();
    list->setFocus();
    QTest::keyClicks(list, QStringLiteral("4k"));
    EXPECT_EQ(d->searchField()->text(), QStringLiteral("4k"));
    EXPECT_EQ(ctrl->searchText(), QStringLiteral("4k"));
    for (const QString& title : Titles(list))
        EXPECT_TRUE(title.contains(QStringLiteral("4K"), Qt::CaseInsensitive) || title.isEmpty())
            << title.toStdString();
}

TEST_F(LMFormatSelectionWndCtrlTest, ShowingAgainKeepsTheTabAndReloadsNothing) {
    LoadDefault();
    Popup();
    ClickTab(3);
    ctrl->windowDidResignKey();
    Popup();
    EXPECT_EQ(d->tabHeaderView()->indexOfSelected(), 3u);
    EXPECT_EQ(d->currentFormatNodeView(), d->defFmtViewCtrls().at(2)->view());
    EXPECT_FALSE(ctrl->finishedSelecting());
}

TEST_F(LMFormatSelectionWndCtrlTest, AnOutOfRangeTabIndexChangesNothing) {
    LoadDefault();
    Popup();
    QWidget* before = d->currentFormatNodeView();
    d->setCurrentFormatNode(d->defFmtViewCtrls().size() + 2);
    EXPECT_EQ(d->currentFormatNodeView(), before);
    EXPECT_EQ(d->tabHeaderView()->indexOfSelected(), 1u);
}

TEST_F(LMFormatSelectionWndCtrlTest, TheListFillsTheContentBelowTheStrip) {
    LoadDefault();
    Popup();
    const QRect list = d->currentFormatNodeView()->geometry();
    EXPECT_EQ(list.top(), d->tabHeaderView()->geometry().bottom() + 1);
    EXPECT_EQ(list.width(), d->contentView()->width());
    EXPECT_EQ(list.bottom(), d->contentView()->rect().bottom());
    EXPECT_EQ(ctrl->size(), QSize(800, 450));
}

TEST_F(LMFormatSelectionWndCtrlTest, LoadingTwiceBuildsTheTabsOnce) {
    LoadDefault();
    const std::size_t tabs = d->tabHeaderView()->countOfTab();
    const qsizetype lists = d->defFmtViewCtrls().size();
    ctrl->loadExternalDataInMainThread();
    EXPECT_EQ(d->tabHeaderView()->countOfTab(), tabs);
    EXPECT_EQ(d->defFmtViewCtrls().size(), lists);
    EXPECT_EQ(tabs, std::size_t(lists) + 2);
}

TEST_F(LMFormatSelectionWndCtrlTest, TabTitlesFollowALanguageChange) {
    LoadDefault();
    Popup();
    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageFrench);
    EXPECT_EQ(TabTitles().first(), LMFormatInternationalizationMgr::sharedObject()->stringForKey(
                                       QStringLiteral("Recent")));
    EXPECT_NE(TabTitles().first(), QStringLiteral("Recent"));
    EXPECT_NE(d->searchField()->placeholderText(), QStringLiteral("Search"));
}

TEST_F(LMFormatSelectionWndCtrlTest, EveryTabTitleFitsItsTabWholeInEveryLanguage) {
    LoadDefault();
    Popup();
    LMFormatInternationalizationMgr* mgr = LMFormatInternationalizationMgr::sharedObject();
    for (const QString& language : TestSupport::EveryLanguage()) {
        mgr->setLanguage(language);
        ASSERT_EQ(mgr->language(), language);
        // Recent, every category of the default catalogue, and Custom.
        ASSERT_EQ(d->tabHeaderView()->countOfTab(), 6U);
        for (QAbstractButton* tab : d->tabHeaderView()->tabButtons()) {
            const qreal room = LMTabButtonCell::titleRoomForBounds(QRectF(tab->rect()), *tab);
            const qreal width = QFontMetricsF(tab->font()).horizontalAdvance(tab->text());
            EXPECT_FALSE(tab->text().isEmpty());
            EXPECT_LE(width, room) << language.toStdString() << ": \"" << tab->text().toStdString()
                                   << "\" needs " << width << " of " << room;
        }
    }
}

// The strip with 1, 4, 6 and 12 categories: up to four the tabs fit beside the
// search field; from six on they scroll.
class LMTabStripOfCategoriesTest : public LMFormatSelectionWndCtrlTest,
                                   public ::testing::WithParamInterface<int> {};

TEST_P(LMTabStripOfCategoriesTest, NoTabReachesTheSearchFieldAndScrollsOnlyWhenTheyDoNotFit) {
    const int count = GetParam();
    ASSERT_TRUE(LoadCategories(count));
    Popup();
    LMTabHeaderView* strip = d->tabHeaderView();
    ASSERT_EQ(strip->countOfTab(), std::size_t(count) + 2);
    ExpectTheStripLeavesTheSearchFieldFreeAndShowsTheSelectedTab("on opening");
    EXPECT_EQ(strip->scrollRightButton()->isVisible(), count >= 6);
    EXPECT_EQ(strip->scrollLeftButton()->isVisible(), count >= 6);
    if (count >= 6) {
        EXPECT_TRUE(SeenPartOfTab(count + 1).isEmpty()) << "Custom is out of view";
    } else {
        for (int i = 0; i < count + 2; ++i)
            EXPECT_EQ(SeenPartOfTab(i).size(), QSize(97, 27)) << "tab " << i;
    }
}

TEST_P(LMTabStripOfCategoriesTest, CtrlTabRoundTheStripKeepsTheSelectedTabInView) {
    ASSERT_TRUE(LoadCategories(GetParam()));
    PopupActive();
    LMTabHeaderView* strip = d->tabHeaderView();
    const std::size_t count = strip->countOfTab();
    ASSERT_EQ(count, std::size_t(GetParam()) + 2);
    for (std::size_t step = 1; step <= count; ++step) {
        const std::size_t expected = (strip->indexOfSelected() + 1) % count;
        Press(Qt::Key_Tab, Qt::ControlModifier);
        ASSERT_EQ(strip->indexOfSelected(), expected);
        ExpectTheStripLeavesTheSearchFieldFreeAndShowsTheSelectedTab("Ctrl+Tab to " +
                                                                     std::to_string(expected));
    }
    for (std::size_t step = 1; step <= count; ++step) {
        const std::size_t expected = (strip->indexOfSelected() + count - 1) % count;
        Press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        ASSERT_EQ(strip->indexOfSelected(), expected);
        ExpectTheStripLeavesTheSearchFieldFreeAndShowsTheSelectedTab("Ctrl+Shift+Tab to " +
                                                                     std::to_string(expected));
    }
}

INSTANTIATE_TEST_SUITE_P(OneFourSixAndTwelve, LMTabStripOfCategoriesTest,
                         ::testing::Values(1, 4, 6, 12));

TEST_F(LMFormatSelectionWndCtrlTest, TheArrowButtonsScrollTheTabsOneTabAtATimeToEitherEnd) {
    ASSERT_TRUE(LoadCategories(12));
    Popup();
    LMTabHeaderView* strip = d->tabHeaderView();
    QAbstractButton* left = strip->scrollLeftButton();
    QAbstractButton* right = strip->scrollRightButton();
    ASSERT_TRUE(right->isVisible());
    EXPECT_EQ(strip->scrollOffset(), 0);
    EXPECT_FALSE(left->isEnabled());
    const int lastTab = int(strip->countOfTab()) - 1;

    int clicks = 0;
    while (right->isEnabled() && clicks < 20) {
        const QPoint before = strip->tabButtons().at(lastTab)->pos();
        QTest::mouseClick(right, Qt::LeftButton);
        ++clicks;
        const int moved = before.x() - strip->tabButtons().at(lastTab)->pos().x();
        EXPECT_GT(moved, 0);
        EXPECT_LE(moved, 97);
        ExpectNoTabUnderTheSearchField("click " + std::to_string(clicks));
    }
    EXPECT_GT(clicks, 1);
    EXPECT_FALSE(right->isEnabled());
    EXPECT_TRUE(left->isEnabled());
    // At the right end Custom is seen whole, the first tab not at all.
    EXPECT_EQ(SeenPartOfTab(lastTab).size(), QSize(97, 27));
    EXPECT_TRUE(strip->visibleTabArea().contains(strip->tabButtons().at(lastTab)->geometry()));
    EXPECT_TRUE(SeenPartOfTab(0).isEmpty());

    while (left->isEnabled() && clicks < 40) {
        QTest::mouseClick(left, Qt::LeftButton);
        ++clicks;
    }
    EXPECT_EQ(strip->scrollOffset(), 0);
    EXPECT_EQ(SeenPartOfTab(0).size(), QSize(97, 27));
    EXPECT_EQ(strip->tabButtons().at(0)->geometry(), QRect(10, strip->height() - 27, 97, 27));
}

TEST_F(LMFormatSelectionWndCtrlTest, TheMouseWheelScrollsTheTabsBothWays) {
    ASSERT_TRUE(LoadCategories(12));
    Popup();
    LMTabHeaderView* strip = d->tabHeaderView();
    QWidget* tab = strip->tabButtons().at(2);
    const int x = tab->pos().x();
    Wheel(tab, -120);
    EXPECT_EQ(strip->scrollOffset(), 97);
    EXPECT_EQ(tab->pos().x(), x - 97);
    // Far past the end stops at the end, with Custom in view.
    for (int i = 0; i < 30; ++i)
        Wheel(strip->tabButtons().at(int(strip->countOfTab()) - 1), -120);
    EXPECT_FALSE(strip->scrollRightButton()->isEnabled());
    EXPECT_EQ(SeenPartOfTab(int(strip->countOfTab()) - 1).size(), QSize(97, 27));
    ExpectNoTabUnderTheSearchField("wheel");
    for (int i = 0; i < 30; ++i)
        Wheel(strip->tabButtons().at(0), 120);
    EXPECT_EQ(strip->scrollOffset(), 0);
    EXPECT_EQ(tab->pos().x(), x);
}

TEST_F(LMFormatSelectionWndCtrlTest, AClickOnAPartlySeenTabScrollsItWholeIntoView) {
    ASSERT_TRUE(LoadCategories(12));
    Popup();
    LMTabHeaderView* strip = d->tabHeaderView();
    // The last tab the area shows, cut by its right edge or not.
    int partly = -1;
    for (int i = 0; i < int(strip->countOfTab()); ++i) {
        if (!SeenPartOfTab(i).isEmpty())
            partly = i;
    }
    ASSERT_GE(partly, 0);
    const QRect seen = SeenPartOfTab(partly);
    QTest::mouseClick(strip->tabButtons().at(partly), Qt::LeftButton, {},
                      seen.center() - strip->tabButtons().at(partly)->pos());
    EXPECT_EQ(strip->indexOfSelected(), std::size_t(partly));
    ExpectTheStripLeavesTheSearchFieldFreeAndShowsTheSelectedTab("clicked");
}

TEST_F(LMFormatSelectionWndCtrlTest, AnEditRequestHidesThePopupAndRunsTheEditor) {
    LoadDefault();
    Popup();
    bool popupVisibleDuringEdit = true;
    bool editorVisible = false;
    ClickEdit(d->defFmtViewCtrls().first()->fmtListView(), 0, [&] {
        popupVisibleDuringEdit = ctrl->isVisible();
        editorVisible = LMFormatEditingWndCtrl::shared()->isVisible();
        LMFormatEditingWndCtrl::shared()->reject();
    });
    EXPECT_FALSE(popupVisibleDuringEdit);
    EXPECT_TRUE(editorVisible);
}

TEST_F(LMFormatSelectionWndCtrlTest, SavingInTheEditorCompletesThePopupWithTheEditedPreset) {
    LoadDefault();
    Popup();
    LMFormatCollectionView* list = d->defFmtViewCtrls().first()->fmtListView();
    std::string chosenResolution;
    ClickEdit(list, 0, [&] {
        QComboBox* resolution = EditorBox("cmbResolution");
        ASSERT_TRUE(resolution->isEnabled());
        const int next = (resolution->currentIndex() + 1) % resolution->count();
        resolution->setCurrentIndex(next);
        Q_EMIT resolution->activated(next);
        chosenResolution = resolution->currentText().toStdString();
        ClickEditorButton("btnSave");
    });
    EXPECT_FALSE(ctrl->isVisible());
    ASSERT_EQ(completions.size(), 1u);
    ASSERT_NE(completions[0].preset, nullptr);
    auto video = completions[0].preset->CurrentVideoCodec();
    ASSERT_NE(video, nullptr);
    auto resolution = video->CurrentResolution();
    ASSERT_NE(resolution, nullptr);
    EXPECT_EQ(LMFormatInternationalizationMgr::sharedObject()
                  ->stringForKey(QString::fromStdString(resolution->Name()))
                  .toStdString(),
              chosenResolution);
    // The loss of focus that follows reports nothing more.
    ctrl->windowDidResignKey();
    EXPECT_EQ(completions.size(), 1u);
}

TEST_F(LMFormatSelectionWndCtrlTest,
       CancellingTheEditorBringsThePopupBackAndALaterLossOfFocusReportsADismissal) {
    LoadDefault();
    Popup();
    ClickEdit(d->defFmtViewCtrls().first()->fmtListView(), 1,
              [] { QTest::keyClick(LMFormatEditingWndCtrl::shared(), Qt::Key_Escape); });
    EXPECT_TRUE(ctrl->isVisible());
    EXPECT_FALSE(ctrl->finishedSelecting());
    EXPECT_TRUE(completions.empty());

    ctrl->windowDidResignKey();
    EXPECT_FALSE(ctrl->isVisible());
    ASSERT_EQ(completions.size(), 1u);
    EXPECT_EQ(completions[0].preset, nullptr);
    EXPECT_EQ(completions[0].node, nullptr);
}

TEST_F(LMFormatSelectionWndCtrlTest, ANewCustomPresetFromTheEditorReloadsTheCustomTab) {
    LoadDefault();
    Popup();
    LMFmtNodeViewCtrl* custom = d->customFmtViewCtrl();
    EXPECT_EQ(custom->nodeListView()->model()->rowCount(), 0);
    ClickEdit(d->defFmtViewCtrls().first()->fmtListView(), 0, [] {
        auto* editor = LMFormatEditingWndCtrl::shared();
        // Accept the proposed name in the prompt that the button opens.
        QTimer::singleShot(0, editor, [editor] {
            QWidget* prompt = QApplication::activeModalWidget();
            ASSERT_NE(prompt, nullptr);
            ASSERT_NE(prompt, editor);
            auto* ok = prompt->findChild<QAbstractButton*>(QStringLiteral("btnOK"));
            ASSERT_NE(ok, nullptr);
            QTest::mouseClick(ok, Qt::LeftButton);
            QTimer::singleShot(0, editor, [editor] { editor->reject(); });
        });
        ClickEditorButton("btnSaveNewPreset");
    });
    EXPECT_EQ(custom->nodeListView()->model()->rowCount(), 1);
    EXPECT_EQ(custom->fmtListView()->model()->rowCount(), 1);
    // The editor was cancelled in the end: the popup is back.
    EXPECT_TRUE(ctrl->isVisible());
}

// ---- Focus and keys -------------------------------------------------------------

TEST_F(LMFormatSelectionWndCtrlTest, OnOpenTheSearchFieldHasTheFocusAndTypingSearches) {
    LoadDefault();
    PopupActive();
    ExpectTypingReachesTheSearchField();
}

TEST_F(LMFormatSelectionWndCtrlTest,
       OpenedDuringTheLoadTheSearchFieldTakesTheFocusOnceTheTabsAppear) {
    PopupActive();
    ASSERT_FALSE(d->searchField()->isEnabled());
    // Until then the window holds the focus, so Escape still reaches it.
    EXPECT_EQ(QApplication::focusWidget(), ctrl);

    LoadDefault();
    ExpectTypingReachesTheSearchField();
}

TEST_F(LMFormatSelectionWndCtrlTest, AfterClickingAListThenATabTypingReachesTheSearchField) {
    LoadDefault();
    PopupActive();
    ClickRow(FirstCategoryNodes(), 1);
    ASSERT_TRUE(FirstCategoryNodes()->hasFocus());
    ClickTab(2);
    ASSERT_EQ(d->tabHeaderView()->indexOfSelected(), 2u);

    ExpectTypingReachesTheSearchField();
}

TEST_F(LMFormatSelectionWndCtrlTest, CtrlTabAndCtrlPageKeysSwitchTabsRoundTheStrip) {
    LoadDefault();
    PopupActive();
    const std::size_t last = d->tabHeaderView()->countOfTab() - 1;
    ASSERT_EQ(d->tabHeaderView()->indexOfSelected(), 1u);

    Press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(d->tabHeaderView()->indexOfSelected(), 2u);
    Press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(d->tabHeaderView()->indexOfSelected(), 3u);
    EXPECT_EQ(d->currentFormatNodeView(), d->defFmtViewCtrls().at(2)->view());
    Press(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(d->tabHeaderView()->indexOfSelected(), 2u);
    // What an X server sends for Ctrl+Shift+Tab.
    Press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(d->tabHeaderView()->indexOfSelected(), 1u);
    Press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(d->tabHeaderView()->indexOfSelected(), 0u);
    Press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(d->tabHeaderView()->indexOfSelected(), last);
    EXPECT_EQ(d->currentFormatNodeView(), d->customFmtViewCtrl()->view());
    Press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(d->tabHeaderView()->indexOfSelected(), 0u);
    EXPECT_TRUE(d->searchField()->hasFocus());
    EXPECT_EQ(ctrl->searchText(), QString());
}

TEST_F(LMFormatSelectionWndCtrlTest, CtrlPageDownInAListSwitchesTabsRatherThanScrolling) {
    LoadDefault();
    PopupActive();
    ClickRow(FirstCategoryNodes(), 0);
    ASSERT_TRUE(FirstCategoryNodes()->hasFocus());
    Press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(d->tabHeaderView()->indexOfSelected(), 2u);
    EXPECT_EQ(FirstCategoryNodes()->selectionIndexPaths(), QList<int>{0});
    EXPECT_TRUE(d->searchField()->hasFocus());
}

TEST_F(LMFormatSelectionWndCtrlTest, LeftAndRightOnAFocusedTabSelectTheNeighbourAndKeepTheFocus) {
    LoadDefault();
    PopupActive();
    const QList<QPushButton*>& tabs = d->tabHeaderView()->tabButtons();
    tabs.at(1)->setFocus(Qt::TabFocusReason);

    Press(Qt::Key_Right);
    EXPECT_EQ(d->tabHeaderView()->indexOfSelected(), 2u);
    EXPECT_EQ(d->currentFormatNodeView(), d->defFmtViewCtrls().at(1)->view());
    EXPECT_TRUE(tabs.at(2)->hasFocus());
    Press(Qt::Key_Left);
    Press(Qt::Key_Left);
    EXPECT_EQ(d->tabHeaderView()->indexOfSelected(), 0u);
    EXPECT_TRUE(tabs.at(0)->hasFocus());
    // The arrows stop at the ends.
    Press(Qt::Key_Left);
    EXPECT_EQ(d->tabHeaderView()->indexOfSelected(), 0u);
}

TEST_F(LMFormatSelectionWndCtrlTest, TypingOnAFocusedTabGoesToTheSearchField) {
    LoadDefault();
    PopupActive();
    d->tabHeaderView()->tabButtons().at(2)->setFocus(Qt::TabFocusReason);
    ExpectTypingReachesTheSearchField();
}

TEST_F(LMFormatSelectionWndCtrlTest, SpaceInAListReachesTheSearchFieldOnlyOnceItHoldsText) {
    LoadDefault();
    PopupActive();
    ClickRow(FirstCategoryNodes(), 0);
    Press(Qt::Key_Space);
    EXPECT_EQ(d->searchField()->text(), QString());
    EXPECT_EQ(ctrl->searchText(), QString());

    Type(QStringLiteral("hd"));
    ASSERT_EQ(d->searchField()->text(), QStringLiteral("hd"));
    ClickRow(FirstCategoryNodes(), 0);
    ASSERT_TRUE(FirstCategoryNodes()->hasFocus());
    Press(Qt::Key_Space);
    EXPECT_EQ(d->searchField()->text(), QStringLiteral("hd "));
}

TEST_F(LMFormatSelectionWndCtrlTest, DownInTheSearchFieldMovesToTheFirstRowAndEnterChoosesIt) {
    LMFormatCollectionView* presets = SearchFirstCategory(QStringLiteral("hd"));
    ASSERT_GT(presets->numberOfItems(), 1);
    const QString second = Titles(presets).at(1);

    Press(Qt::Key_Down);
    EXPECT_TRUE(presets->hasFocus());
    EXPECT_EQ(presets->currentIndex().row(), 0);
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_EQ(OnlyChosenTitle(), second);
}

TEST_F(LMFormatSelectionWndCtrlTest, EnterInTheSearchFieldChoosesTheFirstMatch) {
    LMFormatCollectionView* presets = SearchFirstCategory(QStringLiteral("720"));
    ASSERT_GT(presets->numberOfItems(), 0);
    const QString first = Titles(presets).first();

    Press(Qt::Key_Return);
    EXPECT_FALSE(ctrl->isVisible());
    EXPECT_EQ(OnlyChosenTitle(), first);
    EXPECT_TRUE(first.contains(QStringLiteral("720"))) << first.toStdString();
}

TEST_F(LMFormatSelectionWndCtrlTest, F2OnAPresetOpensTheEditorOnIt) {
    LoadDefault();
    PopupActive();
    LMFormatCollectionView* presets = d->defFmtViewCtrls().first()->fmtListView();
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    ASSERT_EQ(presets->currentIndex().row(), 1);
    QString edited;
    QTimer::singleShot(0, LMFormatEditingWndCtrl::shared(), [&edited] {
        edited = LMFormatEditingWndCtrl::shared()->windowTitle();
        LMFormatEditingWndCtrl::shared()->reject();
    });
    Press(Qt::Key_F2);
    EXPECT_TRUE(edited.endsWith(Titles(presets).at(1))) << edited.toStdString();
    // Cancelled: the popup is back and nothing was chosen.
    EXPECT_TRUE(ctrl->isVisible());
    EXPECT_TRUE(completions.empty());
}

TEST_F(LMFormatSelectionWndCtrlTest,
       DeletingRecentEntriesMovesTheFocusToTheNextRowThenTheSearchField) {
    TestSupport::LoadDefaultCatalogueIntoSharedDataSource();
    auto source = ILMFmtPresetDataSource::Shared();
    auto format = source->GetExternalFormatPresets()->ChildAt(0)->ChildAt(0);
    source->PushRecentItem(format->FormatPresetAt(1), format);
    source->PushRecentItem(format->FormatPresetAt(0), format);
    ctrl->loadExternalDataInMainThread();
    PopupActive();
    LMFormatCollectionView* recent = d->recentFmtViewCtrl()->recentListView();
    ASSERT_EQ(recent->numberOfItems(), 2);
    const QString second = Titles(recent).at(1);

    Press(Qt::Key_Down);
    ASSERT_TRUE(recent->hasFocus());
    Press(Qt::Key_Delete);
    ASSERT_EQ(recent->numberOfItems(), 1);
    EXPECT_TRUE(recent->hasFocus());
    EXPECT_EQ(recent->currentIndex().row(), 0);
    EXPECT_EQ(Titles(recent).first(), second);

    Press(Qt::Key_Delete);
    EXPECT_EQ(recent->numberOfItems(), 0);
    EXPECT_TRUE(d->searchField()->hasFocus());
    EXPECT_TRUE(source->GetRecentList().empty());
    EXPECT_TRUE(completions.empty());
}

TEST_F(LMFormatSelectionWndCtrlTest, TheSearchFieldsToolTipNamesItsKeysInTheCurrentLanguage) {
    LoadDefault();
    EXPECT_TRUE(d->searchField()->toolTip().contains(QStringLiteral("Down")))
        << d->searchField()->toolTip().toStdString();
    EXPECT_TRUE(d->searchField()->toolTip().contains(QStringLiteral("Return")));
    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageGerman);
    EXPECT_TRUE(d->searchField()->toolTip().startsWith(
        LMFormatInternationalizationMgr::sharedObject()->stringForKey(
            QStringLiteral("Type anywhere to search"))));
    EXPECT_FALSE(d->searchField()->toolTip().contains(QStringLiteral("Type anywhere")));
}
