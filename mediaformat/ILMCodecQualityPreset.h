// SPDX-License-Identifier: MIT
#pragma once

#include "LMMediaFormatExport.h"

#include <string>

namespace Lumeran {

// One quality level of a codec and what it means to the encoder: a constant
// rate factor, a target bitrate, a fixed quantiser or an encoder profile.
class LMMEDIAFORMAT_EXPORT ILMCodecQualityPreset {
public:
    enum class Kind { Crf, Bitrate, QScale, Profile };

    virtual ~ILMCodecQualityPreset() = default;
    // Display name, also the localization key ("High", "Medium", "Low", "Best").
    virtual std::string Name() const = 0;
    virtual std::string Id() const = 0;
    virtual Kind RateControl() const = 0;
    // The value in the encoder's own notation: "20" for a CRF, "5M" for a bitrate.
    virtual std::string Value() const = 0;
    // A pixel format this level needs (10-bit 4:4:4 for the best ProRes), or empty.
    virtual std::string PixelFormat() const = 0;
};

} // namespace Lumeran
