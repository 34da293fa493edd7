// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Lumeran {

// What reading a format tree met besides what it understood.
struct LMFormatReadReport {
    // Entries (presets, nodes) that could not be read and are carried unchanged.
    int carried = 0;
    // Attributes that could not be read and took their defaults (a description
    // that is not text, a face id out of range).
    int repaired = 0;
    // The compact JSON text of each entry carried and each attribute repaired,
    // one per line: what of the tree is not understood.
    std::string notUnderstood;

    bool Complete() const { return carried == 0 && repaired == 0; }
};

} // namespace Lumeran
