// SPDX-License-Identifier: MIT
#pragma once

class LMFormatDataViewItem;

// What a cell asks of the list that made it: its edit or remove button was
// clicked. Methods have empty bodies so a list overrides only what it handles; a
// cell without a delegate drops the click.
class LMFormatDataViewItemDelegate {
public:
    virtual ~LMFormatDataViewItemDelegate() = default;

    virtual void formatDataViewItemRequireEditing(LMFormatDataViewItem* item) { (void)item; }
    virtual void formatDataViewItemRequireRemove(LMFormatDataViewItem* item) { (void)item; }
};
