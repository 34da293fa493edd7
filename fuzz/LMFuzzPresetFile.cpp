// SPDX-License-Identifier: MIT
// Preset file text -> presets -> the file's text -> presets.
//
// A preset file comes from another machine or another user: anything may be in
// it. Whatever the reader accepts must write back to text that reads again to
// the same presets and writes the same text, or an export of what was imported
// would not be what was imported; whatever it refuses must leave what it had.

#include "LMFuzzSupport.h"
#include "LMPresetFile.h"

#include <QByteArray>
#include <QCoreApplication>

#include <cstddef>
#include <cstdint>
#include <string>

using namespace Lumeran;

namespace {

const char* const kSeed =
    R"({"format":"lmformat-presets","version":1,"presets":[)"
    R"({"title":"HD","format":"mp4","video":{"codec":"h264"},)"
    R"("group":{"title":"MP4","description":"MP4 file format","faceId":100}}]})";

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    static int argc = 1;
    static char name[] = "lmfp_fuzz_preset_file";
    static char* argv[] = {name, nullptr};
    new QCoreApplication(argc, argv); // lives as long as the process
    Fuzz::QuietLog();
    // Without a file the reader takes, every input would be refused and the
    // run would prove nothing.
    LMPresetFile file;
    std::string error;
    if (!file.ReadText(QByteArray(kSeed), &error) || file.Entries().size() != 1)
        Fuzz::Fail(("a preset file of one entry does not read: " + error).c_str());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    LMPresetFile file;
    std::string error;
    // What the object held before a refused read must still be there.
    file.ReadText(QByteArray(kSeed), &error);
    if (!file.ReadText(text, &error)) {
        if (error.empty())
            Fuzz::Fail("a refused file does not say why");
        if (file.Entries().size() != 1 || file.Entries().front().preset->Title() != "HD")
            Fuzz::Fail("a refused file changed what was read before");
        return 0;
    }
    const QByteArray written = file.Text();
    LMPresetFile again;
    if (!again.ReadText(written, &error))
        Fuzz::Fail(("the text written for an accepted file does not read: " + error).c_str());
    if (again.Entries().size() != file.Entries().size())
        Fuzz::Fail("the written file reads back with another number of presets");
    for (std::size_t i = 0; i < file.Entries().size(); ++i) {
        const auto& before = file.Entries().at(i);
        const auto& after = again.Entries().at(i);
        if (!after.preset->IsEqualTo(before.preset))
            Fuzz::Fail("a preset of the written file reads back different");
        if (after.group->Title() != before.group->Title())
            Fuzz::Fail("a preset's group reads back under another title");
    }
    if (again.Text() != written)
        Fuzz::Fail("the written file does not write back the same");
    return 0;
}
