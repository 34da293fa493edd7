// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

class LMTabHeaderView;

// What the tab strip tells its owner when the user clicks another tab. Methods
// have empty bodies so a receiver overrides only what it handles.
class LMTabHeaderViewDelegate {
public:
    virtual ~LMTabHeaderViewDelegate() = default;

    // Sent before the selection moves to newIndex (selectionWillChange).
    virtual void tabHeaderView(LMTabHeaderView* header, std::size_t newIndex) {
        (void)header;
        (void)newIndex;
    }
    // Sent after the selection moved; header->indexOfSelected() is the new tab.
    virtual void tabHeaderViewSelectionDidChanged(LMTabHeaderView* header) { (void)header; }
};
