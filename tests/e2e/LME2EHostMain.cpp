// SPDX-License-Identifier: MIT
// A second host process for the end-to-end tests: it starts over a settings file
// that an earlier process wrote, pops the selection up through the facade as a
// host would, and prints what the user sees, one "<kind>: <text>" line each.
//
//   lmfp_e2e_host <settings.ini> show-recent   the tab it opens on, the rows of its list
//   lmfp_e2e_host <settings.ini> show-custom   the custom tab's nodes, each with its presets

#include "ILMAppSettings.h"
#include "ILMMediaFormatPopup.h"
#include "LMDefaultCatalogue.h"
#include "LME2EUser.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QStandardPaths>
#include <QTest>
#include <QTextStream>

#include <cstdio>

using namespace Lumeran;

namespace {

// Recent, the four categories of the default catalogue, Custom.
constexpr int kTabCount = 6;

void PrintLines(QTextStream& out, const QString& kind, const QStringList& texts) {
    for (const QString& text : texts)
        out << kind << QStringLiteral(": ") << text << Qt::endl;
}

int ShowRecent(QWidget* popup, QTextStream& out) {
    out << QStringLiteral("tab: ") << E2E::TabTitles(popup).value(E2E::SelectedTab(popup))
        << Qt::endl;
    PrintLines(out, QStringLiteral("row"), E2E::RowTexts(E2E::PresetList(popup)));
    return 0;
}

int ShowCustom(QWidget* popup, QTextStream& out) {
    if (!E2E::ClickTab(popup, kTabCount - 1))
        return 3;
    out << QStringLiteral("tab: ") << E2E::TabTitles(popup).value(E2E::SelectedTab(popup))
        << Qt::endl;
    QAbstractItemView* nodes = E2E::NodeList(popup);
    const QStringList nodeTitles = E2E::RowTexts(nodes);
    for (int row = 0; row < nodeTitles.size(); ++row) {
        E2E::ClickRow(nodes, row);
        PrintLines(out, QStringLiteral("node"), {nodeTitles.at(row)});
        PrintLines(out, QStringLiteral("preset"), E2E::RowTexts(E2E::PresetList(popup)));
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("LumeranTests"));
    QCoreApplication::setApplicationName(QStringLiteral("lmfp-e2e-host"));
    QApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    const QStringList commands{QStringLiteral("show-recent"), QStringLiteral("show-custom")};
    if (args.size() != 3 || !commands.contains(args.at(2))) {
        std::fprintf(stderr, "usage: lmfp_e2e_host <settings.ini> show-recent|show-custom\n");
        return 2;
    }
    // Before anything reads the stored lists: they come from this file alone.
    ILMAppSettings::UseSettingsFile(args.at(1).toStdString());

    auto popup = ILMMediaFormatPopup::Shared();
    popup->SetupExternalFormatData(LMDefaultCatalogue::Path());
    popup->WaitForFormatDataLoadingComplete();
    popup->PopupSelection(ILMMediaFormatPopup::Rect{100.0f, 50.0f, 100.0f, 20.0f}, {});
    QWidget* window = E2E::VisiblePopup();
    if (!window || !E2E::WaitForTabCount(window, kTabCount)) {
        std::fprintf(stderr, "lmfp_e2e_host: the popup did not show its tabs\n");
        return 3;
    }

    QTextStream out(stdout);
    const int status =
        args.at(2) == commands.first() ? ShowRecent(window, out) : ShowCustom(window, out);
    out.flush();
    QTest::keyClick(window, Qt::Key_Escape);
    return status;
}
