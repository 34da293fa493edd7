// SPDX-License-Identifier: MIT
#pragma once

class LMFormatEditingWndCtrl;

// What the preset editor tells the window that opened it. Methods have empty
// bodies so a receiver overrides only what it handles.
class LMFormatEditingWndCtrlDelegate {
public:
    virtual ~LMFormatEditingWndCtrlDelegate() = default;

    // A copy of the edited preset was filed under "Custom" and saved.
    virtual void formatEditingWndCtrlDidCreateFormatPreset(LMFormatEditingWndCtrl* ctrl) {
        (void)ctrl;
    }
};
