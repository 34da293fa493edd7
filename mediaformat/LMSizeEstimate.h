// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatPreset.h"
#include "LMMediaFormatExport.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace Lumeran {

// How big a preset's output is for a given duration. A target bitrate or PCM
// audio fixes the size: the estimate is one figure. A quality-based setting
// (constant rate factor, fixed quantiser, encoder profile, lossless audio)
// spends what the picture needs: the estimate is a range, the bits per pixel or
// per sample measured for that setting on reference clips (LMSizeCalibration)
// scaled to the frame size, frame rate, sample rate and channels.
class LMMEDIAFORMAT_EXPORT LMSizeEstimate {
public:
    // What the source has, for the settings that keep it ("Same as source",
    // "Auto"); zero for unknown, which takes the assumed source below.
    struct Source {
        int width = 0;
        int height = 0;
        double framesPerSecond = 0;
        int hertz = 0;
        int channels = 0;
    };
    // A source nobody described: full HD at 30 frames, 48 kHz stereo.
    static constexpr int kAssumedWidth = 1920;
    static constexpr int kAssumedHeight = 1080;
    static constexpr double kAssumedFramesPerSecond = 30;
    static constexpr int kAssumedHertz = 48000;
    static constexpr int kAssumedChannels = 2;

    static LMSizeEstimate For(const std::shared_ptr<const ILMFormatPreset>& preset, double seconds,
                              const Source& source);
    // For a source nobody described.
    static LMSizeEstimate For(const std::shared_ptr<const ILMFormatPreset>& preset, double seconds);

    // False when a setting cannot be sized: an automatic codec (the muxer's
    // choice) or a setting that was never measured.
    bool IsKnown() const { return m_known; }
    // True when both streams are fixed by their settings.
    bool IsExact() const { return m_known && m_low == m_high; }
    // True when a size, rate or audio format was taken from the assumed source.
    bool UsesAssumedSource() const { return m_assumed; }
    // In bytes; equal when exact.
    std::int64_t Low() const { return m_low; }
    std::int64_t High() const { return m_high; }
    // "75 MB", "≈ 45–80 MB", or "unknown" (English units, decimal prefixes).
    std::string Describe() const;
    // The size alone: "75 MB", or the range "45–80 MB" (one unit when both
    // ends share it, "800 MB–1.2 GB" otherwise); empty when unknown.
    std::string Size() const;
    // A size in bytes with a decimal prefix and two significant digits: "4.5 MB".
    static std::string FormatBytes(double bytes);
    // The same size as numbers, for writing it in another language: the value
    // in its unit (0 bytes, 1 kB, 2 MB, 3 GB, 4 TB) and the digits it shows
    // after the decimal sign.
    struct Scaled {
        double value = 0;
        int unit = 0;
        int decimals = 0;
    };
    static Scaled Scale(double bytes);
    // Size() with each figure written by write: with its unit, or without it
    // (the lower end of a range whose ends share a unit), for another language.
    std::string Size(const std::function<std::string(const Scaled&, bool withUnit)>& write) const;

private:
    bool m_known = false;
    bool m_assumed = false;
    std::int64_t m_low = 0;
    std::int64_t m_high = 0;
};

} // namespace Lumeran
