#pragma once

class LMFormatCollectionView;
class LMFormatDataViewItem;

// What a list asks of its controller: how many entries it has, and the cell of
// one entry. The list calls the second only for rows it is about to show (or
// to read), and the controller answers with an item from the list's own pool
// (LMFormatCollectionView::makeItem), filled with the entry's source.
class LMFormatCollectionViewDataSource {
public:
    virtual ~LMFormatCollectionViewDataSource() = default;

    // The lists have one section; section is always 0.
    virtual int collectionViewNumberOfItemsInSection(LMFormatCollectionView* view, int section) {
        (void)view;
        (void)section;
        return 0;
    }
    // nullptr leaves the row without a cell.
    virtual LMFormatDataViewItem*
    collectionViewItemForRepresentedObjectAtIndexPath(LMFormatCollectionView* view, int index) {
        (void)view;
        (void)index;
        return nullptr;
    }
};
