// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatPreset.h"
#include "LMMediaFormatExport.h"

#include <memory>
#include <string>
#include <vector>

namespace Lumeran {

// The way back from an FFmpeg command line to a format preset: of every preset
// the registry can make (each container, each of its codecs and their options),
// the one whose own output options (LMFFmpegArguments) give the most of the
// arguments asked for, and the fewest besides; between those, the one whose
// values come nearest to values the registry does not offer ("-crf 27" gets
// the quality of "-crf 28", "-b:a 150k" that of "-b:a 128k"). "-y", "-i INPUT" and the output
// file name say nothing about the format and are passed over; without "-f" the
// output file's extension points to the container.
class LMMEDIAFORMAT_EXPORT LMFFmpegArgumentsReader {
public:
    struct Result {
        // Never empty: with nothing that maps, the first container's defaults.
        std::shared_ptr<ILMFormatPreset> preset;
        // Each argument asked for (an option with its value, "-preset slow")
        // that the preset does not give.
        std::vector<std::string> notMapped;
    };

    static Result PresetFromArguments(const std::vector<std::string>& arguments);
};

} // namespace Lumeran
