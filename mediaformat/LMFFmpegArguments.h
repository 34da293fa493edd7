// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatPreset.h"
#include "LMMediaFormatExport.h"

#include <memory>
#include <string>
#include <vector>

namespace Lumeran {

// Turns a format preset into the output options of an FFmpeg command line:
// encoders, frame size, rate, quality, sample rate, channels and the muxer.
// Automatic values ("Same as source", "Auto", the automatic codec) add nothing,
// so FFmpeg keeps what the source has or picks the muxer's default.
class LMMEDIAFORMAT_EXPORT LMFFmpegArguments {
public:
    // Output options only, ending with "-f MUXER"; empty for an empty preset.
    static std::vector<std::string>
    OutputOptions(const std::shared_ptr<const ILMFormatPreset>& preset);
    // A whole argument list: -y, -i input, the output options, output.
    static std::vector<std::string> Command(const std::shared_ptr<const ILMFormatPreset>& preset,
                                            const std::string& input, const std::string& output);
    // What an FFmpeg must offer to run the preset, read off OutputOptions so the
    // two never disagree: the encoders it names (video first, none for an
    // automatic codec) and the muxer.
    static std::vector<std::string>
    RequiredEncoders(const std::shared_ptr<const ILMFormatPreset>& preset);
    static std::string Muxer(const std::shared_ptr<const ILMFormatPreset>& preset);
    // The container's usual file extension, without the dot ("mp4").
    static std::string FileExtension(const std::shared_ptr<const ILMFormatPreset>& preset);
    // The arguments joined by blanks, each one quoted where a shell needs it.
    static std::string Join(const std::vector<std::string>& arguments);
};

} // namespace Lumeran
