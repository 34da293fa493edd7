// SPDX-License-Identifier: MIT
// The artwork configuration ("icfg") that sits beside a catalogue. A host may
// ship its own, so it is read from disk as it is: the input is written to a
// file in a folder that also holds a few artwork files, for the entries to find.

#include "ILMArtworkImageMgr.h"
#include "LMFuzzSupport.h"

#include <QDir>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

using namespace Lumeran;

namespace {

std::string& ConfigPath() {
    static std::string path;
    return path;
}

bool WriteFile(const std::string& path, const void* data, std::size_t size) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file)
        return false;
    const bool written = std::fwrite(data, 1, size, file) == size;
    return std::fclose(file) == 0 && written;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    Fuzz::QuietLog();
    const std::string dir = Fuzz::ScratchDir();
    if (!QDir().mkpath(QString::fromStdString(dir + "/artwork")))
        Fuzz::Fail("the artwork folder could not be made");
    // The names the default configuration uses, so that its entries resolve.
    const std::string svg = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 1 1"/>)";
    for (const char* name : {"recent", "custom", "video", "audio", "mp4", "mkv", "mp3", "wav"}) {
        if (!WriteFile(dir + "/artwork/" + name + ".svg", svg.data(), svg.size()))
            Fuzz::Fail("an artwork file could not be written");
    }
    ConfigPath() = dir + "/formats.icfg";
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (!WriteFile(ConfigPath(), data, size))
        Fuzz::Fail("the configuration could not be written");
    std::shared_ptr<const ILMError> error;
    const auto manager = ILMArtworkImageMgr::MallocArtworkImageMgr(ConfigPath(), &error);
    if (!manager) {
        if (!error)
            Fuzz::Fail("a configuration was refused without an error");
        return 0;
    }
    // Every group found answers for its own face id and has an image; ids past
    // the count of groups may exist, so only a range is looked at.
    int found = 0;
    for (int faceID = -1; faceID <= 300; ++faceID) {
        const auto group = manager->ArtworkGroup(faceID);
        if (!group)
            continue;
        ++found;
        if (group->FaceID() != faceID)
            Fuzz::Fail("a group answers for another face id");
        if (group->ImagePaths().empty())
            Fuzz::Fail("a group without images was kept");
    }
    if (found > manager->GroupCount())
        Fuzz::Fail("more groups were found than the manager counts");
    return 0;
}
