// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class LMFormatCollectionView;

// What a list tells its controller when the user (never the program) selects
// entries: a click on a cell, or the keyboard.
class LMFormatCollectionViewDelegate {
public:
    virtual ~LMFormatCollectionViewDelegate() = default;

    virtual void collectionViewDidSelectItemsAtIndexPaths(LMFormatCollectionView* view,
                                                          const QList<int>& indexPaths) {
        (void)view;
        (void)indexPaths;
    }
};
