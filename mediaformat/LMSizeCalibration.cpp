// SPDX-License-Identifier: MIT
#include "LMSizeCalibration.h"

namespace Lumeran {

namespace {

// Measured with scripts/measure-size-calibration.sh on FFmpeg 5.1 (x264 164,
// x265 3.5, libvpx 1.12, libvorbis 1.3.7): video in bits per pixel of one
// frame, audio in bits per sample of one channel, the smallest and largest over
// the reference clips; "frame" and "startup" rows in bytes. Run the script again after a change of
// the registry's quality levels or of the encoders, and paste its rows here.
const LMSizeCalibration::Row kRows[] = {
    // clang-format off
    {LMSizeCalibration::Stream::Video, "libx264", "crf", "20", "", 0.1390, 1.1426},
    {LMSizeCalibration::Stream::Video, "libx264", "crf", "23", "", 0.1005, 0.2916},
    {LMSizeCalibration::Stream::Video, "libx264", "crf", "28", "", 0.0467, 0.1120},
    {LMSizeCalibration::Stream::Video, "libx264", "crf", "16", "", 0.2001, 2.2421},
    {LMSizeCalibration::Stream::Video, "libx265", "crf", "24", "", 0.1129, 0.2150},
    {LMSizeCalibration::Stream::Video, "libx265", "crf", "28", "", 0.0557, 0.1008},
    {LMSizeCalibration::Stream::Video, "libx265", "crf", "32", "", 0.0233, 0.0468},
    {LMSizeCalibration::Stream::Video, "libx265", "crf", "20", "", 0.1704, 0.7759},
    {LMSizeCalibration::Stream::Video, "mpeg4", "qscale", "3", "", 0.4082, 1.9025},
    {LMSizeCalibration::Stream::Video, "mpeg4", "qscale", "5", "", 0.2568, 0.5940},
    {LMSizeCalibration::Stream::Video, "mpeg4", "qscale", "8", "", 0.1732, 0.3315},
    {LMSizeCalibration::Stream::Video, "mpeg4", "qscale", "2", "", 0.5636, 3.2111},
    {LMSizeCalibration::Stream::Video, "libxvid", "qscale", "3", "", 0.4098, 2.1661},
    {LMSizeCalibration::Stream::Video, "libxvid", "qscale", "5", "", 0.2548, 0.6918},
    {LMSizeCalibration::Stream::Video, "libxvid", "qscale", "8", "", 0.1486, 0.3395},
    {LMSizeCalibration::Stream::Video, "libxvid", "qscale", "2", "", 0.5491, 3.2551},
    {LMSizeCalibration::Stream::Video, "prores_ks", "profile", "3", "", 2.4770, 6.2479},
    {LMSizeCalibration::Stream::Video, "prores_ks", "profile", "2", "", 1.9499, 4.2066},
    {LMSizeCalibration::Stream::Video, "prores_ks", "profile", "1", "", 1.5207, 2.9058},
    {LMSizeCalibration::Stream::Video, "prores_ks", "profile", "4", "yuva444p10le", 3.3330, 19.7297},
    {LMSizeCalibration::Stream::Video, "prores_aw", "profile", "3", "", 1.9663, 7.4400},
    {LMSizeCalibration::Stream::Video, "prores_aw", "profile", "2", "", 1.5144, 5.3603},
    {LMSizeCalibration::Stream::Video, "prores_aw", "profile", "1", "", 1.0826, 2.8417},
    {LMSizeCalibration::Stream::Video, "prores_aw", "profile", "4", "yuv444p10le", 2.4395, 10.1804},
    {LMSizeCalibration::Stream::Video, "h263", "qscale", "3", "", 0.6142, 2.4211},
    {LMSizeCalibration::Stream::Video, "h263", "qscale", "6", "", 0.3270, 0.7952},
    {LMSizeCalibration::Stream::Video, "h263", "qscale", "10", "", 0.1870, 0.4109},
    {LMSizeCalibration::Stream::Video, "h263", "qscale", "2", "", 0.8474, 3.8920},
    {LMSizeCalibration::Stream::Video, "libvpx-vp9", "crf", "31", "", 0.1416, 0.4201},
    {LMSizeCalibration::Stream::Video, "libvpx-vp9", "crf", "36", "", 0.1037, 0.2696},
    {LMSizeCalibration::Stream::Video, "libvpx-vp9", "crf", "41", "", 0.0648, 0.1786},
    {LMSizeCalibration::Stream::Video, "libvpx-vp9", "crf", "24", "", 0.1996, 1.3223},
    {LMSizeCalibration::Stream::Audio, "libvorbis", "qscale", "2", "", 0.3539, 1.0638},
    {LMSizeCalibration::Stream::Audio, "libvorbis", "qscale", "4", "", 0.3634, 1.3022},
    {LMSizeCalibration::Stream::Audio, "libvorbis", "qscale", "6", "", 0.3939, 2.2359},
    {LMSizeCalibration::Stream::Audio, "libvorbis", "qscale", "8", "", 0.4187, 2.8018},
    {LMSizeCalibration::Stream::Audio, "flac", "lossless", "", "", 3.1570, 12.3227},
    {LMSizeCalibration::Stream::Audio, "alac", "lossless", "", "", 5.1337, 12.3738},
    {LMSizeCalibration::Stream::Video, "dnxhd", "frame", "220M", "1920x1080", 917504, 917504},
    {LMSizeCalibration::Stream::Video, "dnxhd", "frame", "120M", "1920x1080", 606208, 606208},
    {LMSizeCalibration::Stream::Video, "dnxhd", "frame", "90M", "1920x1080", 188416, 188416},
    {LMSizeCalibration::Stream::Video, "dnxhd", "frame", "220M", "1280x720", 458752, 458752},
    {LMSizeCalibration::Stream::Video, "dnxhd", "frame", "120M", "1280x720", 303104, 303104},
    {LMSizeCalibration::Stream::Video, "dnxhd", "frame", "90M", "1280x720", 458752, 458752},
    {LMSizeCalibration::Stream::Video, "mpeg1video", "startup", "1150k", "", 11560, 11560},
    {LMSizeCalibration::Stream::Video, "mpeg2video", "startup", "2400k", "", 104171, 104171},
    {LMSizeCalibration::Stream::Video, "mpeg2video", "startup", "2000k", "", 110382, 110382},
    {LMSizeCalibration::Stream::Video, "mpeg2video", "startup", "1500k", "", 128163, 128163},
    {LMSizeCalibration::Stream::Video, "mpeg2video", "startup", "2500k", "", 63890, 63890},
    {LMSizeCalibration::Stream::Video, "mpeg2video", "startup", "8000k", "", 0, 0},
    {LMSizeCalibration::Stream::Video, "mpeg2video", "startup", "6000k", "", 73735, 73735},
    {LMSizeCalibration::Stream::Video, "mpeg2video", "startup", "4000k", "", 97763, 97763},
    {LMSizeCalibration::Stream::Video, "mpeg2video", "startup", "8500k", "", 0, 0},
    {LMSizeCalibration::Stream::Video, "wmv2", "startup", "4000k", "", 0, 0},
    {LMSizeCalibration::Stream::Video, "wmv2", "startup", "2000k", "", 151314, 151314},
    {LMSizeCalibration::Stream::Video, "wmv2", "startup", "1000k", "", 155461, 155461},
    {LMSizeCalibration::Stream::Video, "wmv2", "startup", "8000k", "", 0, 0},
    // clang-format on
};

} // namespace

std::span<const LMSizeCalibration::Row> LMSizeCalibration::Rows() {
    return kRows;
}

std::optional<LMSizeCalibration::Row>
LMSizeCalibration::Find(Stream stream, const std::string& encoder, const std::string& kind,
                        const std::string& value, const std::string& variant) {
    for (const Row& row : kRows) {
        if (row.stream == stream && encoder == row.encoder && kind == row.kind &&
            value == row.value && variant == row.variant)
            return row;
    }
    return std::nullopt;
}

} // namespace Lumeran
