// SPDX-License-Identifier: MIT
#include "LMFmtNodeViewCtrl.h"

#include "ILMFmtPresetDataSource.h"
#include "LMFormatCollectionView.h"
#include "LMFormatDataDelegate.h"
#include "LMFormatDataViewItem.h"
#include "LMFormatInternationalizationMgr.h"

#include "ui_LMFmtNodeViewCtrl.h"

#include <QKeyEvent>
#include <QScrollBar>

struct LMFmtNodeViewCtrl::Private {
    Ui::LMFmtNodeViewCtrl ui;
    std::shared_ptr<const Lumeran::ILMFormatNode> selectedNode;
    std::shared_ptr<const Lumeran::ILMFormatPreset> selectedFormat;
    std::shared_ptr<const Lumeran::ILMFormatNode> rootFmtNode;
    // Result of the last non-empty search; while set, the node list shows its
    // children instead of the root's.
    std::shared_ptr<Lumeran::ILMFormatNode> searchFmtNode;
    bool removable = false;
    LMFormatDataDelegate* delegate = nullptr;
};

LMFmtNodeViewCtrl::LMFmtNodeViewCtrl(QWidget* parent) : QWidget(parent), d(new Private) {
    d->ui.setupUi(this);
    viewDidLoad();
}

LMFmtNodeViewCtrl::~LMFmtNodeViewCtrl() = default;

LMFmtNodeViewCtrl* LMFmtNodeViewCtrl::fmtNodeViewCtrl(QWidget* parent) {
    return new LMFmtNodeViewCtrl(parent);
}

QWidget* LMFmtNodeViewCtrl::view() {
    return this;
}

void LMFmtNodeViewCtrl::viewDidLoad() {
    nodeListView()->setDataSource(this);
    nodeListView()->setDelegate(this);
    fmtListView()->setDelegate(this);
    fmtListView()->setDataSource(this);
    // A list that scrolls under a still pointer gets no entry or exit, so
    // hover is asked of the pointer again.
    for (LMFormatCollectionView* list : {fmtListView(), nodeListView()}) {
        for (QScrollBar* bar : {list->verticalScrollBar(), list->horizontalScrollBar()}) {
            connect(bar, &QScrollBar::valueChanged, this,
                    [this, list] { scrollViewPortDidChanged(list); });
        }
        connect(list, &LMFormatCollectionView::textTyped, this, &LMFmtNodeViewCtrl::textTyped);
    }
    connect(lizationMgr(), &LMFormatInternationalizationMgr::languageDidChange, this,
            &LMFmtNodeViewCtrl::updateListTexts);
}

bool LMFmtNodeViewCtrl::removable() const {
    return d->removable;
}

void LMFmtNodeViewCtrl::setRemovable(bool removable) {
    d->removable = removable;
}

LMFormatDataDelegate* LMFmtNodeViewCtrl::delegate() const {
    return d->delegate;
}

void LMFmtNodeViewCtrl::setDelegate(LMFormatDataDelegate* delegate) {
    d->delegate = delegate;
}

std::shared_ptr<const Lumeran::ILMFormatNode> LMFmtNodeViewCtrl::formatNode() const {
    return d->rootFmtNode;
}

void LMFmtNodeViewCtrl::loadFormatNode(std::shared_ptr<const Lumeran::ILMFormatNode> node) {
    d->searchFmtNode.reset();
    d->rootFmtNode = std::move(node);
    setSelectedNode(Lumeran::ILMFormatNode::FirstChild(d->rootFmtNode));
    refresh();
}

void LMFmtNodeViewCtrl::searchFormatNode(const QString& text) {
    if (!text.isEmpty()) {
        d->searchFmtNode = Lumeran::ILMFmtPresetDataSource::Shared()->SearchFormatPresets(
            d->rootFmtNode, text.toStdString(), {});
    } else {
        d->searchFmtNode.reset();
    }
    if (d->searchFmtNode)
        setSelectedNode(Lumeran::ILMFormatNode::FirstChild(d->searchFmtNode));
    else if (d->rootFmtNode)
        setSelectedNode(Lumeran::ILMFormatNode::FirstChild(d->rootFmtNode));
    refresh();
}

void LMFmtNodeViewCtrl::resetSearchResult() {
    d->searchFmtNode.reset();
    if (d->rootFmtNode)
        setSelectedNode(Lumeran::ILMFormatNode::FirstChild(d->rootFmtNode));
    refresh();
}

void LMFmtNodeViewCtrl::setSelectedNode(std::shared_ptr<const Lumeran::ILMFormatNode> node) {
    d->selectedNode = std::move(node);
    if (d->selectedNode)
        d->selectedFormat = Lumeran::ILMFormatNode::FirstFormatPreset(d->selectedNode);
}

void LMFmtNodeViewCtrl::setSelectedFormat(std::shared_ptr<const Lumeran::ILMFormatPreset> format) {
    d->selectedFormat = std::move(format);
}

void LMFmtNodeViewCtrl::loadSelectedNodeFormat() {
    fmtListView()->reloadData();
    updateListTexts();
}

void LMFmtNodeViewCtrl::loadChildrenNode() {
    nodeListView()->reloadData();
}

// Nodes are matched by title: a search result holds copies, not the tree's nodes.
void LMFmtNodeViewCtrl::updateNodeListViewSelectedItem() {
    const auto root = currentListRoot();
    const int index = d->selectedNode && root ? root->IndexOfChild(d->selectedNode->Title()) : -1;
    if (index < 0)
        nodeListView()->deselectAll();
    else
        nodeListView()->selectItemsAtIndexPaths({index}, QAbstractItemView::PositionAtTop);
}

void LMFmtNodeViewCtrl::updateFmtListViewSelectedItem() {
    fmtListView()->deselectAll();
}

LMFormatCollectionView* LMFmtNodeViewCtrl::nodeListView() const {
    return d->ui.nodeListView;
}

LMFormatCollectionView* LMFmtNodeViewCtrl::fmtListView() const {
    return d->ui.fmtListView;
}

LMFormatInternationalizationMgr* LMFmtNodeViewCtrl::lizationMgr() const {
    return LMFormatInternationalizationMgr::sharedObject();
}

int LMFmtNodeViewCtrl::collectionViewNumberOfItemsInSection(LMFormatCollectionView* view,
                                                            int section) {
    (void)section;
    if (view == nodeListView()) {
        const auto root = currentListRoot();
        return root ? root->ChildCount() : 0;
    }
    if (view == fmtListView())
        return d->selectedNode ? d->selectedNode->FormatPresetCount() : 0;
    return 0;
}

LMFormatEntry
LMFmtNodeViewCtrl::collectionViewRepresentedObjectAtIndexPath(LMFormatCollectionView* view,
                                                              int index) {
    if (view == nodeListView()) {
        const auto root = currentListRoot();
        return root ? LMFormatEntry::fromNode(root->ChildAt(index)) : LMFormatEntry();
    }
    if (view == fmtListView() && d->selectedNode)
        return LMFormatEntry::fromPreset(d->selectedNode->FormatPresetAt(index));
    return {};
}

LMFormatDataViewItem*
LMFmtNodeViewCtrl::collectionViewItemForRepresentedObjectAtIndexPath(LMFormatCollectionView* view,
                                                                     int index) {
    LMFormatDataViewItem* item = view->makeItem(index);
    if (view == nodeListView()) {
        if (const auto root = currentListRoot())
            item->setFmtNode(root->ChildAt(index));
        item->setRemovable(false);
        item->setEditable(false);
        // Node cells have no actions to report.
        item->setDelegate(nullptr);
        return item;
    }
    if (d->selectedNode)
        item->setFmtPreset(d->selectedNode->FormatPresetAt(index));
    item->setRemovable(d->removable);
    item->setEditable(!d->removable);
    item->setDelegate(this);
    return item;
}

void LMFmtNodeViewCtrl::collectionViewDidSelectItemsAtIndexPaths(LMFormatCollectionView* view,
                                                                 const QList<int>& indexPaths) {
    if (indexPaths.isEmpty())
        return;
    const LMFormatDataViewItem* item = view->itemAtIndex(indexPaths.first());
    if (view == nodeListView()) {
        setSelectedNode(item ? item->fmtNode() : nullptr);
        loadSelectedNodeFormat();
        updateFmtListViewSelectedItem();
    } else if (view == fmtListView()) {
        if (d->delegate) {
            d->delegate->viewControllerSelectFormat(this, item ? item->fmtPreset() : nullptr,
                                                    d->selectedNode);
        }
    }
}

void LMFmtNodeViewCtrl::formatDataViewItemRequireEditing(LMFormatDataViewItem* item) {
    if (!d->delegate)
        return;
    // The presets shown are those of the data source's own trees, which are
    // mutable: the editor writes an accepted edit into this very preset.
    d->delegate->viewControllerEditingFormat(
        this, std::const_pointer_cast<Lumeran::ILMFormatPreset>(item ? item->fmtPreset() : nullptr),
        std::const_pointer_cast<Lumeran::ILMFormatNode>(d->selectedNode));
}

void LMFmtNodeViewCtrl::formatDataViewItemRequireRemove(LMFormatDataViewItem* item) {
    const int path = fmtListView()->indexPathForItem(item);
    if (path < 0)
        return;
    const auto preset = item->fmtPreset();
    auto source = Lumeran::ILMFmtPresetDataSource::Shared();
    const auto customRoot = std::as_const(*source).GetCustomList();
    const bool showsCustom = d->rootFmtNode == customRoot;
    source->RemoveCustomPreset(preset, d->selectedNode);
    source->SaveCustomList();
    // The save merged in presets another copy of the host stored meanwhile: the
    // list is shown anew from the tree that now holds them.
    if (showsCustom && std::as_const(*source).GetCustomList() != customRoot) {
        loadFormatNode(std::as_const(*source).GetCustomList());
        return;
    }
    // The search result is pruned rather than searched again, so the lists stay
    // where they are.
    if (d->searchFmtNode && d->selectedNode) {
        if (const auto child = d->searchFmtNode->FindChild(d->selectedNode->Title())) {
            child->RemoveFormatPreset(preset ? preset->Title() : std::string());
            if (child->FormatPresetCount() == 0)
                d->searchFmtNode->RemoveChild(child);
        }
    }
    const int remaining = d->selectedNode ? d->selectedNode->FormatPresetCount() : 0;
    if (remaining < 1) {
        setSelectedNode(Lumeran::ILMFormatNode::FirstChild(
            d->searchFmtNode ? std::shared_ptr<const Lumeran::ILMFormatNode>(d->searchFmtNode)
                             : d->rootFmtNode));
        refresh();
        return;
    }
    fmtListView()->deleteItemsAtIndexPaths({path});
}

void LMFmtNodeViewCtrl::showEvent(QShowEvent* event) {
    (void)event;
    fmtListView()->deselectAll();
}

// Left and Right move between the two lists.
void LMFmtNodeViewCtrl::keyPressEvent(QKeyEvent* event) {
    LMFormatCollectionView* target = nullptr;
    if (event->key() == Qt::Key_Right && nodeListView()->hasFocus())
        target = fmtListView();
    else if (event->key() == Qt::Key_Left && fmtListView()->hasFocus())
        target = nodeListView();
    if (!target) {
        QWidget::keyPressEvent(event);
        return;
    }
    target->setFocus(Qt::OtherFocusReason);
    if (!target->currentIndex().isValid() && target->numberOfItems() > 0)
        target->selectionModel()->setCurrentIndex(target->model()->index(0, 0),
                                                  QItemSelectionModel::NoUpdate);
    event->accept();
}

void LMFmtNodeViewCtrl::refresh() {
    loadChildrenNode();
    loadSelectedNodeFormat();
    updateNodeListViewSelectedItem();
    updateFmtListViewSelectedItem();
}

std::shared_ptr<const Lumeran::ILMFormatNode> LMFmtNodeViewCtrl::currentListRoot() const {
    if (d->searchFmtNode)
        return d->searchFmtNode;
    return d->rootFmtNode;
}

void LMFmtNodeViewCtrl::scrollViewPortDidChanged(QObject* scroller) {
    if (scroller == fmtListView())
        resetCollectionViewMouseState(fmtListView());
    else if (scroller == nodeListView())
        resetCollectionViewMouseState(nodeListView());
}

void LMFmtNodeViewCtrl::resetCollectionViewMouseState(LMFormatCollectionView* view) {
    for (int i = 0; i < view->numberOfItems(); ++i) {
        if (LMFormatDataViewItem* item = view->itemAtIndex(i))
            item->resetMouseState();
    }
}

// Empty lists say why, rather than showing blank: a search that found nothing,
// or a Custom tab before any preset was saved.
void LMFmtNodeViewCtrl::updateListTexts() {
    const bool empty = fmtListView()->numberOfItems() == 0;
    QString hint;
    if (d->searchFmtNode && empty)
        hint = QStringLiteral("No matching presets");
    else if (!d->searchFmtNode && empty && d->rootFmtNode &&
             d->rootFmtNode ==
                 std::as_const(*Lumeran::ILMFmtPresetDataSource::Shared()).GetCustomList())
        hint = QStringLiteral("Presets you save with “Save as New Preset” appear here.");
    fmtListView()->setEmptyText(hint.isEmpty() ? hint : lizationMgr()->stringForKey(hint));

    // What a screen reader says of the lists: which category's formats, and
    // which format's presets.
    const auto shownTitle = [this](const std::shared_ptr<const Lumeran::ILMFormatNode>& node) {
        return node ? lizationMgr()->stringForKey(QString::fromStdString(node->Title()))
                    : QString();
    };
    nodeListView()->setAccessibleName(lizationMgr()->stringForKey(QStringLiteral("Formats")));
    nodeListView()->setAccessibleDescription(lizationMgr()
                                                 ->stringForKey(QStringLiteral("Formats of %1"))
                                                 .arg(shownTitle(d->rootFmtNode)));
    fmtListView()->setAccessibleName(lizationMgr()->stringForKey(QStringLiteral("Presets")));
    fmtListView()->setAccessibleDescription(lizationMgr()
                                                ->stringForKey(QStringLiteral("Presets of %1"))
                                                .arg(shownTitle(d->selectedNode)));
}
