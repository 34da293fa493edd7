// SPDX-License-Identifier: MIT
#pragma once

#include "LMCoreExport.h"

#include <string>

namespace Lumeran {

// What an export or import of a preset file did. A call that failed changed
// nothing: no file was written, no preset was added or replaced.
class LMCORE_EXPORT LMPresetFileResult {
public:
    bool ok = false;
    // Why the call failed, or one line that sums up what it did.
    std::string message;
    // Export: presets written to the file.
    int written = 0;
    // Import: presets added under their own names, added under a free name
    // ("NAME (2)") because theirs was taken, skipped because theirs was taken,
    // and listed presets whose settings they replaced.
    int added = 0;
    int renamed = 0;
    int skipped = 0;
    int replaced = 0;
    // Import: entries of a newer version of the file that this version cannot
    // read, left out.
    int unreadable = 0;
};

} // namespace Lumeran
