// SPDX-License-Identifier: MIT
// The stored recent and custom lists, read back through the data source.
//
// The settings file is the user's to edit (and other versions write it), so
// the value under either key may be anything. Each input is stored twice, as
// the text itself and Base64-encoded so that it reaches the JSON and tree
// readers behind the decoder, each time under one key as it is and under the
// other in the other form. A fresh data source then loads both lists from the
// file, as a host does at start, and is used a little; nothing may crash or hang.
// What it loaded, saved and loaded again, must be what it had.

#include "ILMAppSettings.h"
#include "ILMArtworkImageMgr.h"
#include "ILMBase64Codec.h"
#include "LMFmtPresetDataSource.h"
#include "LMFuzzSupport.h"

#include <QCoreApplication>
#include <QDir>

#include <cstddef>
#include <cstdint>
#include <string>

using namespace Lumeran;

namespace {

const char* const kRecentKey = "recent_format_preset";
const char* const kCustomKey = "custom_format_preset";

std::string& SettingsPath() {
    static std::string path;
    return path;
}

// Writes both values into the settings file and makes the next read parse the
// file again, as a new process would, rather than take the values from memory.
void Store(const std::string& recent, const std::string& custom) {
    // Each unreadable input is put aside beside the settings; those copies are
    // the run's own and would otherwise pile up, one file per input.
    QDir(QString::fromStdString(SettingsPath() + ".preset-backups")).removeRecursively();
    const auto settings = ILMAppSettings::Shared();
    settings->SetStringValue(recent, kRecentKey);
    settings->SetStringValue(custom, kCustomKey);
    settings->Synchronize();
    ILMAppSettings::UseSettingsFile(SettingsPath());
}

void Use(LMFmtPresetDataSource& source) {
    const auto recent = source.GetRecentList();
    for (const auto& entry : recent) {
        if (!entry || !entry->FormatNode() || !entry->FormatPreset())
            Fuzz::Fail("the recent list holds an incomplete entry");
        (void)entry->Title();
        (void)entry->Description();
    }
    if (!source.GetCurrentPreset())
        Fuzz::Fail("there is no current preset");
    (void)source.SearchFormatPresets(recent, "hd");
    (void)source.SearchFormatPresets(source.GetCustomList(), "mp", nullptr);
    if (!recent.empty())
        (void)source.RemoveRecentItem(recent.front()->Title());
    (void)source.PushRecentItem(source.GetDefaultPreset());
}

void LoadAndUse() {
    LMFmtPresetDataSource source;
    // Most inputs are refused and leave both lists at their empty defaults;
    // those have nothing to lose in a save, and the settings file is the
    // slowest part of the run.
    static const auto emptyRecent = ILMFormatNode::MallocFormatNode(
        "Recent", "Recent Selection", ILMArtworkImageMgr::CategoryFaceIDRecentList);
    static const auto emptyCustom = ILMFormatNode::MallocFormatNode(
        "Custom", "Custom Preset", ILMArtworkImageMgr::CategoryFaceIDCustomize);
    const bool loaded = !source.GetRecentRoot()->IsEqualTo(emptyRecent) ||
                        !source.GetCustomList()->IsEqualTo(emptyCustom);
    Use(source);
    if (!loaded)
        return;
    source.SaveRecentList();
    source.SaveCustomList();
    ILMAppSettings::UseSettingsFile(SettingsPath());

    const LMFmtPresetDataSource reloaded;
    if (!reloaded.GetRecentRoot()->IsEqualTo(source.GetRecentRoot()))
        Fuzz::Fail("the saved recent list reads back different");
    if (!reloaded.GetCustomList()->IsEqualTo(source.GetCustomList()))
        Fuzz::Fail("the saved custom list reads back different");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    // A host always has an application object when it makes the data source.
    static int argc = 1;
    static char name[] = "lmfp_fuzz_stored_list";
    static char* argv[] = {name, nullptr};
    new QCoreApplication(argc, argv); // lives as long as the process
    Fuzz::QuietLog();
    SettingsPath() = Fuzz::ScratchDir() + "/settings.ini";
    ILMAppSettings::UseSettingsFile(SettingsPath());

    // Without a working path from the file to the lists every input would be
    // rejected and the run would prove nothing: a list stored as the data source
    // stores it must load.
    const std::string stored = R"({"title":"Recent","children":[{"title":"MP4","presets":[)"
                               R"({"title":"HD","format":"mp4","video":{"codec":"h264"}}]}]})";
    Store(ILMBase64Codec::Encode(stored), "");
    if (LMFmtPresetDataSource().GetRecentList().size() != 1)
        Fuzz::Fail("a stored recent list of one entry does not load");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const std::string encoded = ILMBase64Codec::Encode(text);
    Store(text, encoded);
    LoadAndUse();
    Store(encoded, text);
    LoadAndUse();
    return 0;
}
