// SPDX-License-Identifier: MIT
// A stand-in host process for the tests that need real processes over one store:
// two copies of a host saving at once, and a host killed in the middle of a save.
//
//   lmfp_store_host SETTINGS add TAG COUNT  COUNT times: adds the custom preset
//                                           "TAG i" and saves, picks the recent entry
//                                           "TAG i" and saves; exit 1 if a save failed
//   lmfp_store_host SETTINGS churn          picks and saves for ever, alternating the
//                                           recent list's order and the custom list's
//                                           size; prints "saving" once the first save
//                                           is done

#include "ILMAppSettings.h"
#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "LMFmtPresetDataSource.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>
#include <string>

using namespace Lumeran;

namespace {

std::shared_ptr<ILMFormatPreset> Preset(const std::string& title) {
    auto preset = ILMFormatPreset::MallocFormatPreset("mp4", title);
    return preset;
}

int Add(LMFmtPresetDataSource& source, const std::string& tag, int count) {
    const auto group = ILMFormatNode::MallocFormatNode("Group " + tag, "", 100);
    const auto picks = ILMFormatNode::MallocFormatNode("Picks", "", 100);
    bool ok = true;
    for (int i = 0; i < count; ++i) {
        const std::string name = tag + " " + std::to_string(i);
        source.AddCustomPreset(Preset(name), group);
        source.SaveCustomList();
        ok = ok && source.LastSaveSucceeded();
        source.PushRecentItem(Preset(name), picks);
        source.SaveRecentList();
        ok = ok && source.LastSaveSucceeded();
    }
    return ok ? 0 : 1;
}

int Churn(LMFmtPresetDataSource& source) {
    const auto picks = ILMFormatNode::MallocFormatNode("Picks", "", 100);
    const auto group = ILMFormatNode::MallocFormatNode("Churn", "", 100);
    for (long round = 0;; ++round) {
        source.PushRecentItem(Preset("Churn " + std::to_string(round % 7)), picks);
        source.SaveRecentList();
        if (round % 2 == 0) {
            source.AddCustomPreset(Preset("Kept " + std::to_string(round)), group);
        } else if (const auto node = source.GetCustomList()->FindChild("Churn")) {
            source.RemoveCustomPreset(node->FormatPresetAt(0), node);
        }
        source.SaveCustomList();
        if (round == 0) {
            std::printf("saving\n");
            std::fflush(stdout);
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() < 3)
        return 2;
    ILMAppSettings::UseSettingsFile(args.at(1).toStdString());
    LMFmtPresetDataSource source;
    if (args.at(2) == QLatin1String("add") && args.size() == 5)
        return Add(source, args.at(3).toStdString(), args.at(4).toInt());
    if (args.at(2) == QLatin1String("churn"))
        return Churn(source);
    return 2;
}
