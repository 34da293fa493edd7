// SPDX-License-Identifier: MIT
#pragma once

#include "LMFormatEntry.h"

class LMFormatCollectionView;
class LMFormatDataViewItem;

// What a list asks of its controller: how many entries it has, the entry of a
// row, and the cell of one entry. The list's model asks for the entry of a row
// the first time the row is read (shown, or asked for its texts) and keeps it;
// the cell is asked for only for rows in view, and the controller answers with
// an item from the list's own pool (LMFormatCollectionView::makeItem), filled
// with the entry's source.
class LMFormatCollectionViewDataSource {
public:
    virtual ~LMFormatCollectionViewDataSource() = default;

    // The lists have one section; section is always 0.
    virtual int collectionViewNumberOfItemsInSection(LMFormatCollectionView* view, int section) {
        (void)view;
        (void)section;
        return 0;
    }
    // An empty entry leaves the row without texts or image.
    virtual LMFormatEntry collectionViewRepresentedObjectAtIndexPath(LMFormatCollectionView* view,
                                                                     int index) {
        (void)view;
        (void)index;
        return {};
    }
    // nullptr leaves the row without a cell.
    virtual LMFormatDataViewItem*
    collectionViewItemForRepresentedObjectAtIndexPath(LMFormatCollectionView* view, int index) {
        (void)view;
        (void)index;
        return nullptr;
    }
};
