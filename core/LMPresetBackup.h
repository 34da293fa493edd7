// SPDX-License-Identifier: MIT
#pragma once

#include "LMCoreExport.h"

#include <cstdint>
#include <string>

namespace Lumeran {

// One earlier value of a stored list, kept beside the host's settings: either one
// of the last values a save replaced, or a value that could not be read in full
// and was put aside before anything overwrote it.
class LMCORE_EXPORT LMPresetBackup {
public:
    std::string path;           // the file holding the stored value, as it was stored
    std::int64_t savedAtMs = 0; // when it was put aside, milliseconds since the epoch
    int entryCount = 0;         // presets (custom) or entries (recent) that can be read from it
    bool unreadable = false;    // put aside because it could not be read in full
};

} // namespace Lumeran
