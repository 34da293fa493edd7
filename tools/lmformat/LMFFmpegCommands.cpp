// SPDX-License-Identifier: MIT
#include "LMFFmpegCommands.h"

#include "LMCliCall.h"
#include "LMCliOutput.h"
#include "LMFFmpegCapabilities.h"
#include "LMPresetVerifier.h"
#include "LMSizeEstimate.h"

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

// "600", "10:00" or "1:30:00" in seconds; negative when unreadable.
double Seconds(const QString& text) {
    double seconds = 0;
    const QStringList parts = text.split(QLatin1Char(':'));
    if (parts.size() > 3)
        return -1;
    for (const QString& part : parts) {
        bool ok = false;
        const double value = part.toDouble(&ok);
        if (!ok || value < 0)
            return -1;
        seconds = seconds * 60 + value;
    }
    return seconds;
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

int Estimate(const LMCliCall& call) {
    const double seconds = Seconds(call.operands.at(2));
    if (seconds < 0)
        return LMCliOutput::Fail("not a duration: \"" + call.Operand(2) +
                                 "\" (seconds, M:SS or H:MM:SS)");
    const auto estimate = LMSizeEstimate::For(call.target.preset, seconds);
    if (!estimate.IsKnown())
        return LMCliOutput::Fail(call.Operand(1) +
                                 ": the size cannot be estimated (an automatic codec)");
    std::string line = estimate.Describe() + " (" + std::to_string(estimate.Low());
    if (!estimate.IsExact())
        line += "-" + std::to_string(estimate.High());
    line += estimate.IsExact() ? " bytes; fixed by bitrate and sample format)"
                               : " bytes; quality-based, measured on reference clips)";
    Print(line);
    if (estimate.UsesAssumedSource())
        Print("for a source of 1920x1080 at 30 fps with 48 kHz stereo sound where the preset "
              "keeps the source's");
    return 0;
}

} // namespace LMFFmpegCommands
