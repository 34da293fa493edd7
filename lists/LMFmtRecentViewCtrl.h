// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFmtPresetDataSource.h"
#include "LMFormatCollectionViewDataSource.h"
#include "LMFormatCollectionViewDelegate.h"
#include "LMFormatDataViewItemDelegate.h"

#include <QString>
#include <QWidget>

#include <memory>

class LMFormatCollectionView;
class LMFormatDataDelegate;
class LMFormatInternationalizationMgr;

// The "Recent" tab of the popup: the shared data source's recent entries, in the
// order it keeps them. Clicking an entry reports its preset and node to the
// delegate; an entry's remove button drops it from the stored list at once. A
// search text filters the entries; the unfiltered list is never copied, but read
// from the data source each time.
class LMFmtRecentViewCtrl : public QWidget,
                            public LMFormatDataViewItemDelegate,
                            public LMFormatCollectionViewDataSource,
                            public LMFormatCollectionViewDelegate {
    Q_OBJECT

public:
    explicit LMFmtRecentViewCtrl(QWidget* parent = nullptr);
    ~LMFmtRecentViewCtrl() override;

    // A new controller with its layout loaded; parent owns it when given.
    static LMFmtRecentViewCtrl* fmtRecentViewCtrl(QWidget* parent = nullptr);
    QWidget* view();

    // Not owned; nullptr drops choices.
    LMFormatDataDelegate* delegate() const;
    void setDelegate(LMFormatDataDelegate* delegate);

    // Shows the data source's current recent list (or the filtered one).
    void loadRecentList();
    // Filters by text; an empty text shows the whole list again.
    void searchRecentList(const QString& text);

    LMFormatCollectionView* recentListView() const;
    LMFormatInternationalizationMgr* lizationMgr() const;

    int collectionViewNumberOfItemsInSection(LMFormatCollectionView* view, int section) override;
    LMFormatEntry collectionViewRepresentedObjectAtIndexPath(LMFormatCollectionView* view,
                                                             int index) override;
    LMFormatDataViewItem*
    collectionViewItemForRepresentedObjectAtIndexPath(LMFormatCollectionView* view,
                                                      int index) override;
    void collectionViewDidSelectItemsAtIndexPaths(LMFormatCollectionView* view,
                                                  const QList<int>& indexPaths) override;
    void formatDataViewItemRequireRemove(LMFormatDataViewItem* item) override;

Q_SIGNALS:
    // Printable text typed while the list has the focus, for the window's
    // search field.
    void textTyped(const QString& text);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void viewDidLoad();
    // The filtered entries while a search is active, else the stored ones.
    Lumeran::ILMFmtPresetDataSource::RecentList currentList() const;
    std::shared_ptr<const Lumeran::ILMFmtPresetRecentItem> entryAt(int index) const;
    void scrollViewPortDidChanged();
    void updateListTexts();

    struct Private;
    std::unique_ptr<Private> d;
};
