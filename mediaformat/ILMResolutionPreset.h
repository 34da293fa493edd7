// SPDX-License-Identifier: MIT
#pragma once

#include "LMMediaFormatExport.h"

#include <string>

namespace Lumeran {

// A frame size: WidthxHeight, or the source's own size when automatic.
class LMMEDIAFORMAT_EXPORT ILMResolutionPreset {
public:
    virtual ~ILMResolutionPreset() = default;
    // Display name, also the localization key ("1920x1080", "Same as source").
    virtual std::string Name() const = 0;
    // Stable registry id, used in catalogues and stored presets.
    virtual std::string Id() const = 0;
    // True for the entry that leaves the value to the source ("Same as source", "Auto").
    virtual bool IsAutoValue() const = 0;
    virtual int Width() const = 0;  // 0 when automatic
    virtual int Height() const = 0; // 0 when automatic
};

} // namespace Lumeran
