// SPDX-License-Identifier: MIT
#pragma once

#include "LMMediaFormatExport.h"

#include <string>

namespace Lumeran {

// An audio sample rate in hertz, or the source's rate when automatic.
class LMMEDIAFORMAT_EXPORT ILMSampleratePreset {
public:
    virtual ~ILMSampleratePreset() = default;
    // Display name, also the localization key ("1920x1080", "Same as source").
    virtual std::string Name() const = 0;
    // Stable registry id, used in catalogues and stored presets.
    virtual std::string Id() const = 0;
    // True for the entry that leaves the value to the source ("Same as source", "Auto").
    virtual bool IsAutoValue() const = 0;
    virtual int Hertz() const = 0; // 0 when automatic
};

} // namespace Lumeran
