// SPDX-License-Identifier: MIT
#pragma once

#include "LMCoreExport.h"

#include <string>

namespace Lumeran {

// A custom preset named as the user sees it: the title of its group (the format
// node it is filed under) and its own title. Where a group holds two presets of
// one title, the first is meant.
class LMCORE_EXPORT LMCustomPresetRef {
public:
    std::string group;
    std::string title;
};

} // namespace Lumeran
