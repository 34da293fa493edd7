// SPDX-License-Identifier: MIT
#include "LMFFmpegCommands.h"

#include "LMCliCall.h"
#include "LMCliOutput.h"
#include "LMFFmpegCapabilities.h"
#include "LMPresetVerifier.h"

#include <QTemporaryDir>

#include <vector>

using namespace Lumeran;
using LMCliOutput::Print;

namespace {

struct NamedPreset {
    std::string path; // "Category/Format/Preset"
    std::shared_ptr<const ILMFormatPreset> preset;
};

void Collect(const std::shared_ptr<const ILMFormatNode>& node, const std::string& path,
             std::vector<NamedPreset>& out) {
    for (int i = 0; i < node->FormatPresetCount(); ++i) {
        const auto preset = node->FormatPresetAt(i);
        out.push_back({path + preset->Title(), preset});
    }
    for (int i = 0; i < node->ChildCount(); ++i) {
        const auto child = node->ChildAt(i);
        Collect(child, path + child->Title() + "/", out);
    }
}

std::vector<NamedPreset> PresetsOf(const LMCliCall& call) {
    std::vector<NamedPreset> presets;
    if (call.target.preset)
        presets.push_back({call.Operand(1), call.target.preset});
    else
        Collect(call.target.catalogue, {}, presets);
    return presets;
}

// The FFmpeg of --ffmpeg, or the one on PATH; its lists kept in lmformat's cache.
bool Ask(const LMCliCall& call, LMFFmpegCapabilities& capabilities) {
    capabilities.WaitForReady();
    if (capabilities.CurrentState() == LMFFmpegCapabilities::State::Ready)
        return true;
    LMCliOutput::Fail("cannot tell what " +
                      (call.ffmpegGiven ? call.ffmpeg.toStdString() : std::string("ffmpeg")) +
                      " can run: " + capabilities.Problem());
    return false;
}

} // namespace

namespace LMFFmpegCommands {

int ListUnavailable(const LMCliCall& call) {
    LMFFmpegCapabilities capabilities(call.ffmpeg.toStdString());
    if (!Ask(call, capabilities))
        return 1;
    int missing = 0;
    const auto presets = PresetsOf(call);
    for (const auto& named : presets) {
        const auto availability = capabilities.Availability(named.preset, call.target.catalogue);
        if (!availability.IsMissing())
            continue;
        ++missing;
        Print("unavailable: " + named.path + ": " + availability.Reason());
    }
    Print(std::to_string(missing) + " of " + std::to_string(presets.size()) +
          " presets unavailable with " + capabilities.Binary());
    return 0;
}

int Verify(const LMCliCall& call) {
    QTemporaryDir work;
    if (!work.isValid())
        return LMCliOutput::Fail("no temporary folder for the encodes: " +
                                 work.errorString().toStdString());
    LMFFmpegCapabilities capabilities(call.ffmpeg.toStdString());
    if (!Ask(call, capabilities))
        return 1;
    LMPresetVerifier verifier(capabilities.Binary(), work.path().toStdString());
    verifier.UseCapabilities(&capabilities);
    if (!verifier.MakeSource())
        return LMCliOutput::Fail(verifier.Problem());
    int failed = 0;
    const auto presets = PresetsOf(call);
    for (const auto& named : presets) {
        const auto result = verifier.Verify(named.preset);
        if (result.ok) {
            Print("OK    " + named.path);
            continue;
        }
        ++failed;
        std::string line = "FAIL  " + named.path + ": ";
        for (std::size_t i = 0; i < result.problems.size(); ++i)
            line += (i ? "; " : "") + result.problems[i];
        Print(line);
    }
    Print(std::to_string(presets.size() - static_cast<std::size_t>(failed)) + " of " +
          std::to_string(presets.size()) + " presets verified with " + capabilities.Binary());
    return failed == 0 ? 0 : 1;
}

} // namespace LMFFmpegCommands
