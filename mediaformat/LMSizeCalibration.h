// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>

namespace Lumeran {

// What settings spend, measured from real encodes. A quality-based setting
// (kind "crf", "qscale", "profile", "lossless") holds bits per pixel of one
// frame (video) or bits per sample of one channel (audio), the smallest and
// the largest seen over a set of reference clips. Two kinds hold bytes and are
// the same on every clip: "frame", the fixed frame size of an intra codec whose
// bitrate setting picks it (DNxHD; variant: the frame size), and "startup",
// what a bitrate encoder spends beyond its rate at the start of a file.
// scripts/measure-size-calibration.sh makes the clips and prints the rows.
class LMSizeCalibration {
public:
    enum class Stream { Video, Audio };
    struct Row {
        Stream stream;
        const char* encoder; // "libx264"
        const char* kind;    // "crf", "qscale", "profile", "lossless", "frame", "startup"
        const char* value;   // "23", "120M"; empty for lossless audio
        const char* variant; // a level's own pixel format, a frame size ("1920x1080"), or empty
        double low;
        double high;
    };

    static std::span<const Row> Rows();
    // The row of an encoder's setting; none for one that was not measured.
    static std::optional<Row> Find(Stream stream, const std::string& encoder,
                                   const std::string& kind, const std::string& value,
                                   const std::string& variant);
};

} // namespace Lumeran
