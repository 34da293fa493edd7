// SPDX-License-Identifier: MIT
#pragma once

class LMFormatDataView;

// What a cell's view tells the item that owns it: the pointer entered or left
// it. The view also asks whether it is selected, since only the item knows.
// Methods have empty bodies; a view without a delegate is never selected.
class LMFormatDataViewDelegate {
public:
    virtual ~LMFormatDataViewDelegate() = default;

    virtual void formatDataViewMouseEnter(LMFormatDataView* view) { (void)view; }
    virtual void formatDataViewMouseExited(LMFormatDataView* view) { (void)view; }
    virtual bool formatDataViewSelected(LMFormatDataView* view) {
        (void)view;
        return false;
    }
};
