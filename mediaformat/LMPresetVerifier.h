// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatPreset.h"
#include "LMMediaFormatExport.h"

#include <memory>
#include <string>
#include <vector>

namespace Lumeran {

class LMFFmpegCapabilities;

// Checks that a preset makes what it says: encodes a half-second generated clip
// with the preset's own FFmpeg arguments, probes the file with ffprobe and
// compares container, codecs, frame size, frame rate, sample rate and channels.
// The clip is 320x240 at 25 fps with 48 kHz stereo sound, so "Same as source"
// and "Auto" must give those back.
class LMMEDIAFORMAT_EXPORT LMPresetVerifier {
public:
    static constexpr int kSourceWidth = 320;
    static constexpr int kSourceHeight = 240;
    static constexpr int kSourceRate = 25;
    static constexpr int kSourceHertz = 48000;
    static constexpr int kSourceChannels = 2;

    struct Result {
        bool ok = false;
        // What differs ("video codec: h264, expected hevc"), or why nothing
        // could be compared ("FFmpeg has no libx265 encoder").
        std::vector<std::string> problems;
        // The encoder's command line, for a reader who wants to run it again.
        std::string command;
    };

    // ffmpeg: the program, or empty for the one on PATH. ffprobe is looked for
    // beside it first, then on PATH. workDir holds the clip and the outputs.
    LMPresetVerifier(std::string ffmpeg, std::string workDir);

    // Presets whose encoder or muxer the capabilities lack fail with that
    // reason instead of an encode. Not owned; may be null.
    void UseCapabilities(const LMFFmpegCapabilities* capabilities);
    // Makes the source clip; false (with Problem()) when FFmpeg cannot.
    bool MakeSource();
    std::string Problem() const { return m_problem; }

    Result Verify(const std::shared_ptr<const ILMFormatPreset>& preset) const;

    // The differences between what the preset says and ffprobe's JSON
    // (-show_entries format=format_name:stream=codec_type,codec_name,width,
    // height,r_frame_rate,sample_rate,channels) of its output.
    static std::vector<std::string> Compare(const ILMFormatPreset& preset,
                                            const std::string& probeJson);

private:
    std::string m_ffmpeg;
    std::string m_ffprobe;
    std::string m_workDir;
    std::string m_problem;
    const LMFFmpegCapabilities* m_capabilities = nullptr;
};

} // namespace Lumeran
