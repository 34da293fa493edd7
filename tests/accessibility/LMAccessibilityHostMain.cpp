// SPDX-License-Identifier: MIT
// A host for the screen-reader tests: it pops the selection up through the
// facade over a settings file of its own, with one recent entry and one custom
// preset so that every kind of row is there, and reports on standard output
// what reaches it, one line each, for the test that drives the popup from
// outside over AT-SPI as a screen reader does:
//
//   ready                           the popup shows
//   chosen: <node> / <preset>       the host's callback received a choice
//   dismissed                       the showing ended without one
//   recent: <n>  custom: <n>        the lists' lengths, after every showing
//
// It shows the popup again after each showing, until the test ends it. With
// --ffmpeg, the popup marks the presets that binary cannot run.
//
//   lmfp_a11y_host <settings.ini> [--ffmpeg PATH]

#include "ILMAppSettings.h"
#include "ILMFmtPresetDataSource.h"
#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "ILMMediaFormatPopup.h"
#include "LMDefaultCatalogue.h"

#include <QApplication>
#include <QStandardPaths>
#include <QTextStream>
#include <QTimer>

#include <cstdio>

using namespace Lumeran;

namespace {

QTextStream& out() {
    static QTextStream stream(stdout);
    return stream;
}

// The first preset of the first category's first format node.
std::pair<std::shared_ptr<const ILMFormatPreset>, std::shared_ptr<const ILMFormatNode>>
FirstPreset(const std::shared_ptr<ILMFormatNode>& root) {
    if (!root || root->ChildCount() == 0)
        return {};
    std::shared_ptr<const ILMFormatNode> category = root->ChildAt(0);
    if (category->ChildCount() == 0)
        return {};
    std::shared_ptr<const ILMFormatNode> node = category->ChildAt(0);
    if (node->FormatPresetCount() == 0)
        return {};
    return {node->FormatPresetAt(0), node};
}

void ReportLists() {
    auto source = ILMFmtPresetDataSource::Shared();
    int custom = 0;
    const auto groups =
        std::static_pointer_cast<const ILMFmtPresetDataSource>(source)->GetCustomList();
    for (int i = 0; groups && i < groups->ChildCount(); ++i)
        custom += groups->ChildAt(i)->FormatPresetCount();
    out() << "recent: " << source->GetRecentList().size() << "  custom: " << custom << Qt::endl;
}

void PopUp() {
    ILMMediaFormatPopup::Shared()->PopupSelection(
        ILMMediaFormatPopup::Rect{100.0f, 60.0f, 120.0f, 30.0f},
        [](std::shared_ptr<const ILMFormatPreset> preset,
           std::shared_ptr<const ILMFormatNode> node) {
            if (preset && node)
                out() << "chosen: " << QString::fromStdString(node->Title()) << " / "
                      << QString::fromStdString(preset->Title()) << Qt::endl;
            else
                out() << "dismissed" << Qt::endl;
            ReportLists();
            // Once the showing has ended, as a host pops up again on a click.
            QTimer::singleShot(200, [] { PopUp(); });
        });
    QTimer::singleShot(0, [] { out() << "ready" << Qt::endl; });
}

} // namespace

int main(int argc, char** argv) {
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("LumeranTests"));
    QCoreApplication::setApplicationName(QStringLiteral("lmfp-a11y-host"));
    QApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    const bool ffmpeg = args.size() == 4 && args.at(2) == QStringLiteral("--ffmpeg");
    if (args.size() != 2 && !ffmpeg) {
        std::fprintf(stderr, "usage: lmfp_a11y_host <settings.ini> [--ffmpeg PATH]\n");
        return 2;
    }
    // Before anything reads the stored lists: they come from this file alone.
    ILMAppSettings::UseSettingsFile(args.at(1).toStdString());

    auto popup = ILMMediaFormatPopup::Shared();
    popup->SetupExternalFormatData(LMDefaultCatalogue::Path());
    popup->WaitForFormatDataLoadingComplete();
    // What the binary can do is cached beside the settings, never in the
    // user's own cache.
    if (ffmpeg)
        popup->SetFFmpegPath(args.at(3).toStdString(), args.at(1).toStdString() + ".ffmpeg-cache");

    auto source = ILMFmtPresetDataSource::Shared();
    const auto [preset, node] = FirstPreset(source->GetExternalFormatPresets());
    if (!preset) {
        std::fprintf(stderr, "lmfp_a11y_host: the catalogue has no preset\n");
        return 3;
    }
    if (source->GetRecentList().empty()) {
        source->PushRecentItem(preset, node);
        source->SaveRecentList();
    }
    if (!source->GetCustomList() || source->GetCustomList()->ChildCount() == 0) {
        auto mine = preset->Clone();
        mine->SetTitle("My preset");
        source->AddCustomPreset(mine, node);
        source->SaveCustomList();
    }
    ReportLists();
    PopUp();
    return app.exec();
}
