// SPDX-License-Identifier: MIT
#pragma once

#include "LMFormatRegistry.h"

#include <string_view>

namespace Lumeran {

// The keys of the JSON form of nodes, presets and streams (see LMFormatJsonReader).
struct LMFormatJsonKeys {
    static constexpr std::string_view Node[] = {"title", "description", "faceId", "presets",
                                                "children"};
    static constexpr std::string_view Preset[] = {"title", "description", "faceId", "format",
                                                  "video", "audio",       "other"};
    static constexpr std::string_view Stream[] = {"codec",   "resolution", "framerate",
                                                  "quality", "samplerate", "channels"};
    // The key of each option list, in LMOptionList order.
    static constexpr std::string_view Option[LMOptionListCount] = {
        "resolution", "framerate", "quality", "samplerate", "channels"};
    // The option lists in the order of their keys.
    static constexpr LMOptionList OptionsByKey[LMOptionListCount] = {
        LMOptionList::ChannelLayout, LMOptionList::Framerate, LMOptionList::Quality,
        LMOptionList::Resolution, LMOptionList::Samplerate};
};

} // namespace Lumeran
