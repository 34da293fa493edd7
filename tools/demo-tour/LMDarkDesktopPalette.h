// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

// The palette of a dark desktop theme: the tour's dark pictures are taken
// under it, and the contrast tests measure the popup and the editor under it,
// so what the pictures show is what was measured.
class LMDarkDesktopPalette {
public:
    static QPalette make();
};
