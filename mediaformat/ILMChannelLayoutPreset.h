// SPDX-License-Identifier: MIT
#pragma once

#include "LMMediaFormatExport.h"

#include <string>

namespace Lumeran {

// An audio channel layout, or the source's layout when automatic.
class LMMEDIAFORMAT_EXPORT ILMChannelLayoutPreset {
public:
    virtual ~ILMChannelLayoutPreset() = default;
    // Display name, also the localization key ("1920x1080", "Same as source").
    virtual std::string Name() const = 0;
    // Stable registry id, used in catalogues and stored presets.
    virtual std::string Id() const = 0;
    // True for the entry that leaves the value to the source ("Same as source", "Auto").
    virtual bool IsAutoValue() const = 0;
    virtual int Channels() const = 0;           // 0 when automatic
    virtual std::string LayoutName() const = 0; // encoder's name: "mono", "stereo", "5.1"
};

} // namespace Lumeran
