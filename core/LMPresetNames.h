// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatNode.h"

#include <memory>
#include <string>

namespace Lumeran {

// Names for presets that must not take one already used in their group.
class LMPresetNames {
public:
    // title when group has no preset of that title, else the first free one of
    // "TITLE (2)", "TITLE (3)"...; a title too long to take the number is cut
    // first, so the name given is what SetTitle() keeps.
    static std::string FreeTitle(const std::shared_ptr<const ILMFormatNode>& group,
                                 const std::string& title);
};

} // namespace Lumeran
