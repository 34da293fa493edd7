// SPDX-License-Identifier: MIT
#pragma once

#include "LMMediaFormatExport.h"

#include <string>

namespace Lumeran {

// A frame rate, kept as the exact rational the encoder takes ("30000/1001").
class LMMEDIAFORMAT_EXPORT ILMFrameratePreset {
public:
    virtual ~ILMFrameratePreset() = default;
    // Display name, also the localization key ("1920x1080", "Same as source").
    virtual std::string Name() const = 0;
    // Stable registry id, used in catalogues and stored presets.
    virtual std::string Id() const = 0;
    // True for the entry that leaves the value to the source ("Same as source", "Auto").
    virtual bool IsAutoValue() const = 0;
    virtual std::string Rate() const = 0;       // empty when automatic
    virtual double FramesPerSecond() const = 0; // 0 when automatic
};

} // namespace Lumeran
