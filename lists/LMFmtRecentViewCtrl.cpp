// SPDX-License-Identifier: MIT
#include "LMFmtRecentViewCtrl.h"

#include "LMFormatCollectionView.h"
#include "LMFormatDataDelegate.h"
#include "LMFormatDataViewItem.h"
#include "LMFormatInternationalizationMgr.h"

#include "ui_LMFmtRecentViewCtrl.h"

#include <QScrollBar>

struct LMFmtRecentViewCtrl::Private {
    Ui::LMFmtRecentViewCtrl ui;
    // The filtered entries; null while no search is active, possibly empty
    // while one is.
    std::unique_ptr<Lumeran::ILMFmtPresetDataSource::RecentList> searchRecentList;
    LMFormatDataDelegate* delegate = nullptr;
};

LMFmtRecentViewCtrl::LMFmtRecentViewCtrl(QWidget* parent) : QWidget(parent), d(new Private) {
    d->ui.setupUi(this);
    viewDidLoad();
}

LMFmtRecentViewCtrl::~LMFmtRecentViewCtrl() = default;

LMFmtRecentViewCtrl* LMFmtRecentViewCtrl::fmtRecentViewCtrl(QWidget* parent) {
    return new LMFmtRecentViewCtrl(parent);
}

QWidget* LMFmtRecentViewCtrl::view() {
    return this;
}

void LMFmtRecentViewCtrl::viewDidLoad() {
    recentListView()->setDataSource(this);
    recentListView()->setDelegate(this);
    // A list that scrolls under a still pointer gets no entry or exit, so
    // hover is asked of the pointer again.
    for (QScrollBar* bar :
         {recentListView()->verticalScrollBar(), recentListView()->horizontalScrollBar()})
        connect(bar, &QScrollBar::valueChanged, this, [this] { scrollViewPortDidChanged(); });
    connect(recentListView(), &LMFormatCollectionView::textTyped, this,
            &LMFmtRecentViewCtrl::textTyped);
    connect(lizationMgr(), &LMFormatInternationalizationMgr::languageDidChange, this,
            &LMFmtRecentViewCtrl::updateListTexts);
}

LMFormatDataDelegate* LMFmtRecentViewCtrl::delegate() const {
    return d->delegate;
}

void LMFmtRecentViewCtrl::setDelegate(LMFormatDataDelegate* delegate) {
    d->delegate = delegate;
}

void LMFmtRecentViewCtrl::loadRecentList() {
    recentListView()->reloadData();
    updateListTexts();
}

void LMFmtRecentViewCtrl::searchRecentList(const QString& text) {
    if (d->searchRecentList)
        d->searchRecentList->clear();
    if (!text.isEmpty()) {
        auto source = Lumeran::ILMFmtPresetDataSource::Shared();
        const auto result =
            source->SearchFormatPresets(source->GetRecentList(), text.toStdString());
        if (d->searchRecentList)
            d->searchRecentList->insert(d->searchRecentList->end(), result.begin(), result.end());
        else
            d->searchRecentList =
                std::make_unique<Lumeran::ILMFmtPresetDataSource::RecentList>(result);
    } else {
        d->searchRecentList.reset();
    }
    loadRecentList();
}

LMFormatCollectionView* LMFmtRecentViewCtrl::recentListView() const {
    return d->ui.recentListView;
}

LMFormatInternationalizationMgr* LMFmtRecentViewCtrl::lizationMgr() const {
    return LMFormatInternationalizationMgr::sharedObject();
}

int LMFmtRecentViewCtrl::collectionViewNumberOfItemsInSection(LMFormatCollectionView* view,
                                                              int section) {
    (void)view;
    (void)section;
    return static_cast<int>(currentList().size());
}

LMFormatEntry
LMFmtRecentViewCtrl::collectionViewRepresentedObjectAtIndexPath(LMFormatCollectionView* view,
                                                                int index) {
    (void)view;
    const auto entry = entryAt(index);
    return entry ? LMFormatEntry::fromRecentItem(entry) : LMFormatEntry();
}

LMFormatDataViewItem*
LMFmtRecentViewCtrl::collectionViewItemForRepresentedObjectAtIndexPath(LMFormatCollectionView* view,
                                                                       int index) {
    const auto entry = entryAt(index);
    if (!entry)
        return nullptr;
    LMFormatDataViewItem* item = view->makeItem(index);
    item->setRecentItem(entry);
    item->setRemovable(true);
    item->setEditable(false);
    item->setDelegate(this);
    return item;
}

void LMFmtRecentViewCtrl::collectionViewDidSelectItemsAtIndexPaths(LMFormatCollectionView* view,
                                                                   const QList<int>& indexPaths) {
    if (indexPaths.isEmpty())
        return;
    const LMFormatDataViewItem* item = view->itemAtIndex(indexPaths.first());
    const auto entry = item ? item->recentItem() : nullptr;
    if (d->delegate) {
        d->delegate->viewControllerSelectFormat(this, entry ? entry->FormatPreset() : nullptr,
                                                entry ? entry->FormatNode() : nullptr);
    }
}

void LMFmtRecentViewCtrl::formatDataViewItemRequireRemove(LMFormatDataViewItem* item) {
    const int path = recentListView()->indexPathForItem(item);
    if (path < 0)
        return;
    // The filtered copy loses the entry too, so it stays right without
    // searching again.
    if (d->searchRecentList && static_cast<std::size_t>(path) < d->searchRecentList->size())
        d->searchRecentList->erase(d->searchRecentList->begin() + path);
    auto source = Lumeran::ILMFmtPresetDataSource::Shared();
    source->RemoveRecentItem(item->recentItem());
    source->SaveRecentList();
    recentListView()->deleteItemsAtIndexPaths({path});
    updateListTexts();
}

void LMFmtRecentViewCtrl::showEvent(QShowEvent* event) {
    (void)event;
    // Showing the tab always rebuilds the list with nothing selected.
    recentListView()->deselectAll();
    loadRecentList();
}

Lumeran::ILMFmtPresetDataSource::RecentList LMFmtRecentViewCtrl::currentList() const {
    if (d->searchRecentList)
        return *d->searchRecentList;
    return Lumeran::ILMFmtPresetDataSource::Shared()->GetRecentList();
}

std::shared_ptr<const Lumeran::ILMFmtPresetRecentItem>
LMFmtRecentViewCtrl::entryAt(int index) const {
    const auto list = currentList();
    return index >= 0 && static_cast<std::size_t>(index) < list.size()
               ? list[static_cast<std::size_t>(index)]
               : nullptr;
}

void LMFmtRecentViewCtrl::scrollViewPortDidChanged() {
    for (int i = 0; i < recentListView()->numberOfItems(); ++i) {
        if (LMFormatDataViewItem* item = recentListView()->itemAtIndex(i))
            item->resetMouseState();
    }
}

// An empty list says why, rather than showing blank: a search that found
// nothing, or no choice made yet.
void LMFmtRecentViewCtrl::updateListTexts() {
    QString hint;
    if (d->searchRecentList && d->searchRecentList->empty())
        hint = QStringLiteral("No matching presets");
    else if (!d->searchRecentList && recentListView()->numberOfItems() == 0)
        hint = QStringLiteral("The presets you choose appear here.");
    recentListView()->setEmptyText(hint.isEmpty() ? hint : lizationMgr()->stringForKey(hint));
    // What a screen reader says of the list.
    recentListView()->setAccessibleName(
        lizationMgr()->stringForKey(QStringLiteral("Recent presets")));
    recentListView()->setAccessibleDescription(
        lizationMgr()->stringForKey(QStringLiteral("The presets you choose appear here.")));
}
