// SPDX-License-Identifier: MIT
#pragma once

#include "LMCoreExport.h"

#include <string>
#include <vector>

namespace Lumeran {

// What filing a custom preset made from an FFmpeg command line did.
class LMCORE_EXPORT LMPresetArgumentsResult {
public:
    // False when nothing was filed; message says why.
    bool ok = false;
    std::string message;
    // Where the preset was filed: its group's title and its own.
    std::string group;
    std::string title;
    // Each argument (an option with its value) that the preset does not give.
    std::vector<std::string> notMapped;
};

} // namespace Lumeran
