// SPDX-License-Identifier: MIT
#include "LMFormatCollectionView.h"

#include "LMFormatCellLayout.h"
#include "LMFormatCollectionItemDelegate.h"
#include "LMFormatCollectionModel.h"
#include "LMFormatCollectionViewDataSource.h"
#include "LMFormatCollectionViewDelegate.h"
#include "LMFormatDataView.h"
#include "LMFormatDataViewItem.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMFormatListAccessible.h"
#include "LMKeyText.h"
#include "LMThemeColors.h"

#include <QAccessible>
#include <QCursor>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <map>
#include <vector>

namespace {

constexpr int kDefaultItemHeight = 52;

} // namespace

struct LMFormatCollectionView::Private {
    explicit Private(LMFormatCollectionView* view) : q(view) {}

    LMFormatCollectionView* q;
    LMFormatCollectionModel* model = nullptr;
    LMFormatCollectionViewDataSource* dataSource = nullptr;
    LMFormatCollectionViewDelegate* delegate = nullptr;
    int itemHeight = kDefaultItemHeight;
    bool selectsOnNavigation = false;
    QString emptyText;

    // Cells by row; only rows in view have one.
    std::map<int, LMFormatDataViewItem*> live;
    // Cells free for makeItem().
    std::vector<LMFormatDataViewItem*> pool;
    // Cells handed out by makeItem() during one request to the data source.
    std::vector<LMFormatDataViewItem*> handedOut;

    int hoverRow = -1;
    int pressRow = -1;
    LMFormatDataView::ActionButton pressButton = LMFormatDataView::ActionButton::None;

    bool hasRow(int row) const { return row >= 0 && row < model->rowCount(); }

    QRect rectOfRow(int row) const { return q->visualRect(model->index(row)); }

    bool isRowVisible(int row) const { return rectOfRow(row).intersects(q->viewport()->rect()); }

    // Asks the data source for the cell of row; cells it took from the pool but
    // did not return go back.
    LMFormatDataViewItem* requestItem(int row) {
        if (!dataSource || !hasRow(row))
            return nullptr;
        handedOut.clear();
        LMFormatDataViewItem* item =
            dataSource->collectionViewItemForRepresentedObjectAtIndexPath(q, row);
        for (LMFormatDataViewItem* unused : handedOut) {
            if (unused != item)
                pool.push_back(unused);
        }
        handedOut.clear();
        return item;
    }

    // The cell of row; with make, one is made for a row that has none.
    LMFormatDataViewItem* itemForRow(int row, bool make) {
        const auto found = live.find(row);
        if (found != live.end())
            return found->second;
        if (!make)
            return nullptr;
        LMFormatDataViewItem* item = requestItem(row);
        if (!item)
            return nullptr;
        live[row] = item;
        item->setSelected(q->selectionModel()->isRowSelected(row, QModelIndex()));
        if (LMFormatDataView* cell = item->dataView())
            cell->placeAt(rectOfRow(row));
        // A cell that appears under a still pointer is hovered at once.
        item->resetMouseState();
        return item;
    }

    // Runs work on the cell of row, made for the while if the row has none;
    // a cell made for a row out of view goes back to the pool afterwards.
    template <typename Work>
    auto withItem(int row, Work work) {
        const bool hadCell = live.count(row) != 0;
        LMFormatDataViewItem* item = hasRow(row) ? itemForRow(row, true) : nullptr;
        auto result = work(item);
        if (!hadCell && item && !isRowVisible(row)) {
            const auto made = live.find(row);
            if (made != live.end())
                recycle(made);
        }
        return result;
    }

    // The cell of the keyboard's current row, made if need be; null without one.
    LMFormatDataViewItem* currentItem() {
        const QModelIndex current = q->currentIndex();
        return current.isValid() ? itemForRow(current.row(), true) : nullptr;
    }

    void recycle(std::map<int, LMFormatDataViewItem*>::iterator it) {
        pool.push_back(it->second);
        live.erase(it);
    }

    void recycleAll() {
        for (auto& entry : live)
            pool.push_back(entry.second);
        live.clear();
    }

    // Rows from the first to the last one that intersects the viewport; the
    // rows run top to bottom, so the first is found by halving.
    std::pair<int, int> visibleRows() const {
        const int count = model->rowCount();
        const QRect area = q->viewport()->rect();
        if (count == 0 || area.isEmpty())
            return {0, -1};
        int low = 0;
        int high = count;
        while (low < high) {
            const int middle = low + (high - low) / 2;
            if (rectOfRow(middle).bottom() < area.top())
                low = middle + 1;
            else
                high = middle;
        }
        int last = low - 1;
        while (last + 1 < count && rectOfRow(last + 1).top() <= area.bottom())
            ++last;
        return {low, last};
    }

    // After the rows moved: cells of rows gone from view return to the pool,
    // the others move with their rows, and visible rows without a cell get one.
    void layoutVisibleItems() {
        for (auto it = live.begin(); it != live.end();) {
            if (!isRowVisible(it->first)) {
                // A row that comes back into view reads its entry afresh, as
                // a row that gets a new cell always has.
                model->forgetRow(it->first);
                const auto next = std::next(it);
                recycle(it);
                it = next;
                continue;
            }
            if (LMFormatDataView* cell = it->second->dataView())
                cell->placeAt(rectOfRow(it->first));
            ++it;
        }
        const auto [first, last] = visibleRows();
        for (int row = first; row <= last; ++row)
            itemForRow(row, true);
        // Rows moved under a pointer that may not have moved: the cells ask where
        // it is, so the one under it lights up (and no other stays lit) even
        // though no entry or exit arrives.
        hoverRow = rowUnderCursor();
        for (auto& entry : live)
            entry.second->resetMouseState();
    }

    int rowUnderCursor() const {
        const QPoint pos = q->viewport()->mapFromGlobal(QCursor::pos());
        if (!q->viewport()->rect().contains(pos))
            return -1;
        return q->indexAt(pos).row();
    }

    void setHoverRow(int row) {
        if (row == hoverRow)
            return;
        if (LMFormatDataViewItem* old = itemForRow(hoverRow, false)) {
            if (LMFormatDataView* cell = old->dataView())
                cell->mouseExited();
        }
        hoverRow = row;
        if (LMFormatDataViewItem* item = itemForRow(row, true)) {
            if (LMFormatDataView* cell = item->dataView())
                cell->mouseEntered();
        }
    }

    void syncSelection() {
        for (auto& [row, item] : live)
            item->setSelected(q->selectionModel()->isRowSelected(row, QModelIndex()));
    }

    // A selection by the user. Selecting the selected row again tells nothing,
    // unless the user explicitly chose it (Enter).
    void userSelect(int row, bool evenIfSelected) {
        if (!hasRow(row))
            return;
        const QModelIndex index = model->index(row);
        const bool already = q->selectionIndexPaths() == QList<int>{row};
        q->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        q->selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
        q->scrollTo(index);
        if (already && !evenIfSelected)
            return;
        // The delegate reads the item at the selected row.
        itemForRow(row, true);
        if (delegate)
            delegate->collectionViewDidSelectItemsAtIndexPaths(q, {row});
    }

    LMFormatDataView::ActionButton buttonAt(int row, const QPoint& pos) {
        LMFormatDataViewItem* item = itemForRow(row, false);
        LMFormatDataView* cell = item ? item->dataView() : nullptr;
        if (!cell)
            return LMFormatDataView::ActionButton::None;
        return cell->actionButtonAt(pos - rectOfRow(row).topLeft());
    }

    void releasePress() {
        if (LMFormatDataViewItem* item = itemForRow(pressRow, false)) {
            if (LMFormatDataView* cell = item->dataView())
                cell->setActionButtonDown(LMFormatDataView::ActionButton::None);
        }
        pressRow = -1;
        pressButton = LMFormatDataView::ActionButton::None;
    }
};

LMFormatCollectionView::LMFormatCollectionView(QWidget* parent)
    : QListView(parent), d(new Private(this)) {
    // Screen readers see rows they can choose, edit and remove.
    LMFormatListAccessible::installFactory();
    d->model = new LMFormatCollectionModel(
        [this] {
            return d->dataSource ? d->dataSource->collectionViewNumberOfItemsInSection(this, 0) : 0;
        },
        [this](int row) {
            return d->dataSource
                       ? d->dataSource->collectionViewRepresentedObjectAtIndexPath(this, row)
                       : LMFormatEntry();
        },
        this);
    setModel(d->model);
    setItemDelegate(new LMFormatCollectionItemDelegate(
        [this](int row, const QRect& rect) -> LMFormatDataView* {
            LMFormatDataViewItem* item = d->itemForRow(row, true);
            LMFormatDataView* cell = item ? item->dataView() : nullptr;
            if (cell && cell->geometry() != rect)
                cell->placeAt(rect);
            return cell;
        },
        [this] { return d->itemHeight; }, this));

    setViewMode(ListMode);
    setFlow(TopToBottom);
    setWrapping(false);
    setUniformItemSizes(true);
    setResizeMode(Adjust);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setDragEnabled(false);
    setAutoScroll(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    viewport()->setMouseTracking(true);

    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { d->syncSelection(); });
    connect(LMFormatInternationalizationMgr::sharedObject(),
            &LMFormatInternationalizationMgr::languageDidChange, this, [this] {
                d->model->refreshAll();
                viewport()->update();
            });
}

LMFormatCollectionView::~LMFormatCollectionView() = default;

LMFormatCollectionViewDataSource* LMFormatCollectionView::dataSource() const {
    return d->dataSource;
}

void LMFormatCollectionView::setDataSource(LMFormatCollectionViewDataSource* dataSource) {
    d->dataSource = dataSource;
}

LMFormatCollectionViewDelegate* LMFormatCollectionView::delegate() const {
    return d->delegate;
}

void LMFormatCollectionView::setDelegate(LMFormatCollectionViewDelegate* delegate) {
    d->delegate = delegate;
}

int LMFormatCollectionView::itemHeight() const {
    return d->itemHeight;
}

void LMFormatCollectionView::setItemHeight(int height) {
    d->itemHeight = qMax(1, height);
    scheduleDelayedItemsLayout();
}

bool LMFormatCollectionView::selectsOnNavigation() const {
    return d->selectsOnNavigation;
}

void LMFormatCollectionView::setSelectsOnNavigation(bool selects) {
    d->selectsOnNavigation = selects;
}

QString LMFormatCollectionView::emptyText() const {
    return d->emptyText;
}

void LMFormatCollectionView::setEmptyText(const QString& text) {
    if (d->emptyText == text)
        return;
    d->emptyText = text;
    viewport()->update();
}

LMFormatDataViewItem* LMFormatCollectionView::makeItem(int index) {
    (void)index;
    LMFormatDataViewItem* item = nullptr;
    if (!d->pool.empty()) {
        item = d->pool.back();
        d->pool.pop_back();
    } else {
        item = new LMFormatDataViewItem(this);
        item->dataView()->setHost(viewport());
    }
    d->handedOut.push_back(item);
    return item;
}

void LMFormatCollectionView::reloadData() {
    d->releasePress();
    d->recycleAll();
    d->hoverRow = -1;
    d->model->reload();
}

void LMFormatCollectionView::deleteItemsAtIndexPaths(const QList<int>& indexPaths) {
    QList<int> rows = indexPaths;
    std::sort(rows.begin(), rows.end(), std::greater<int>());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    d->releasePress();
    for (const int row : rows) {
        if (!d->hasRow(row))
            continue;
        const auto found = d->live.find(row);
        if (found != d->live.end())
            d->recycle(found);
        // The cells after the row keep their entries and move up with them.
        std::map<int, LMFormatDataViewItem*> shifted;
        for (const auto& [liveRow, item] : d->live)
            shifted[liveRow > row ? liveRow - 1 : liveRow] = item;
        d->live.swap(shifted);
        d->model->removeItemAt(row);
    }
    const int expected =
        d->dataSource ? d->dataSource->collectionViewNumberOfItemsInSection(this, 0) : 0;
    if (expected != d->model->rowCount()) {
        qWarning("LMFormatCollectionView: %d rows after deleting, the data source has %d; "
                 "reloading",
                 d->model->rowCount(), expected);
        reloadData();
        return;
    }
    // Rows moved under a pointer that may not have moved.
    executeDelayedItemsLayout();
    d->layoutVisibleItems();
    for (auto& entry : d->live)
        entry.second->resetMouseState();
}

void LMFormatCollectionView::selectItemsAtIndexPaths(const QList<int>& indexPaths,
                                                     QAbstractItemView::ScrollHint scrollPosition) {
    QItemSelection selection;
    QModelIndex first;
    for (const int row : indexPaths) {
        if (!d->hasRow(row))
            continue;
        const QModelIndex index = d->model->index(row);
        selection.select(index, index);
        if (!first.isValid())
            first = index;
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (first.isValid()) {
        selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        scrollTo(first, scrollPosition);
    }
}

void LMFormatCollectionView::deselectAll() {
    selectionModel()->clearSelection();
}

QList<int> LMFormatCollectionView::selectionIndexPaths() const {
    QList<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedIndexes())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

int LMFormatCollectionView::numberOfItems() const {
    return d->model->rowCount();
}

LMFormatDataViewItem* LMFormatCollectionView::itemAtIndex(int index) const {
    const auto found = d->live.find(index);
    return found == d->live.end() ? nullptr : found->second;
}

int LMFormatCollectionView::indexPathForItem(const LMFormatDataViewItem* item) const {
    for (const auto& [row, liveItem] : d->live) {
        if (liveItem == item)
            return row;
    }
    return -1;
}

LMFormatCollectionModel* LMFormatCollectionView::collectionModel() const {
    return d->model;
}

bool LMFormatCollectionView::canEditItemAtIndexPath(int indexPath) {
    return d->withItem(indexPath,
                       [](const LMFormatDataViewItem* item) { return item && item->editable(); });
}

bool LMFormatCollectionView::canRemoveItemAtIndexPath(int indexPath) {
    return d->withItem(indexPath,
                       [](const LMFormatDataViewItem* item) { return item && item->removable(); });
}

void LMFormatCollectionView::editItemAtIndexPath(int indexPath) {
    LMFormatDataViewItem* item = d->hasRow(indexPath) ? d->itemForRow(indexPath, true) : nullptr;
    if (item && item->editable())
        item->settingClicked();
}

void LMFormatCollectionView::removeItemAtIndexPath(int indexPath) {
    LMFormatDataViewItem* item = d->hasRow(indexPath) ? d->itemForRow(indexPath, true) : nullptr;
    if (item && item->removable())
        removeItem(item, indexPath);
}

QRect LMFormatCollectionView::actionButtonRect(int indexPath,
                                               LMFormatDataView::ActionButton button) {
    return d->withItem(indexPath, [&](const LMFormatDataViewItem* item) {
        if (!item)
            return QRect();
        // Laid out as on hover, when every button the row offers shows.
        const LMFormatCellLayout layout = LMFormatCellLayout::of(
            d->rectOfRow(indexPath), 0, 0, false, item->editable(), item->removable());
        if (button == LMFormatDataView::ActionButton::Edit && item->editable())
            return layout.edit;
        if (button == LMFormatDataView::ActionButton::Remove && item->removable())
            return layout.remove;
        return QRect();
    });
}

void LMFormatCollectionView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const QPoint pos = event->position().toPoint();
    const int row = indexAt(pos).row();
    if (!d->hasRow(row))
        return;
    d->releasePress();
    d->itemForRow(row, true);
    const auto button = d->buttonAt(row, pos);
    if (button != LMFormatDataView::ActionButton::None) {
        // A button acts when released over itself; it does not select the cell.
        d->pressRow = row;
        d->pressButton = button;
        if (LMFormatDataView* cell = d->itemForRow(row, false)->dataView())
            cell->setActionButtonDown(button);
        return;
    }
    d->userSelect(row, false);
}

void LMFormatCollectionView::mouseReleaseEvent(QMouseEvent* event) {
    if (d->pressButton == LMFormatDataView::ActionButton::None)
        return;
    const QPoint pos = event->position().toPoint();
    const int row = d->pressRow;
    const auto pressed = d->pressButton;
    const bool over = indexAt(pos).row() == row && d->buttonAt(row, pos) == pressed;
    LMFormatDataViewItem* item = d->itemForRow(row, false);
    d->releasePress();
    if (!over || !item)
        return;
    if (pressed == LMFormatDataView::ActionButton::Edit)
        item->settingClicked();
    else
        removeItem(item, row);
}

void LMFormatCollectionView::mouseMoveEvent(QMouseEvent* event) {
    const QPoint pos = event->position().toPoint();
    const QModelIndex index = indexAt(pos);
    d->setHoverRow(index.isValid() ? index.row() : -1);
    if (d->pressButton != LMFormatDataView::ActionButton::None) {
        // A held button looks pressed only while the pointer is over it.
        const bool over =
            index.row() == d->pressRow && d->buttonAt(d->pressRow, pos) == d->pressButton;
        if (LMFormatDataViewItem* item = d->itemForRow(d->pressRow, false)) {
            if (LMFormatDataView* cell = item->dataView())
                cell->setActionButtonDown(over ? d->pressButton
                                               : LMFormatDataView::ActionButton::None);
        }
    }
}

void LMFormatCollectionView::mouseDoubleClickEvent(QMouseEvent* event) {
    // The second click of a double click is one more click.
    mousePressEvent(event);
}

void LMFormatCollectionView::keyPressEvent(QKeyEvent* event) {
    // Escape is the window's: it closes the popup.
    const bool handled = event->key() != Qt::Key_Escape &&
                         (navigateByKey(event) || chooseByKey(event) || removeByKey(event) ||
                          editByKey(event) || forwardTypedText(event));
    event->setAccepted(handled);
}

bool LMFormatCollectionView::navigateByKey(const QKeyEvent* event) {
    static const std::map<int, CursorAction> actions = {
        {Qt::Key_Up, MoveUp},         {Qt::Key_Down, MoveDown},
        {Qt::Key_PageUp, MovePageUp}, {Qt::Key_PageDown, MovePageDown},
        {Qt::Key_Home, MoveHome},     {Qt::Key_End, MoveEnd}};
    // Ctrl+PgUp and Ctrl+PgDn switch tabs: the window's, like every Ctrl key.
    if (event->modifiers() & Qt::ControlModifier)
        return false;
    const auto action = actions.find(event->key());
    if (action == actions.end())
        return false;
    const QModelIndex target = moveCursor(action->second, event->modifiers());
    if (!target.isValid())
        return true;
    if (d->selectsOnNavigation) {
        d->userSelect(target.row(), false);
    } else {
        selectionModel()->setCurrentIndex(target, QItemSelectionModel::NoUpdate);
        scrollTo(target);
    }
    return true;
}

bool LMFormatCollectionView::chooseByKey(const QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QModelIndex current = currentIndex();
    // A list that selects while moving has chosen already.
    if (!enter || d->selectsOnNavigation || !current.isValid())
        return false;
    d->userSelect(current.row(), true);
    return true;
}

bool LMFormatCollectionView::removeByKey(const QKeyEvent* event) {
    const bool remove = event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace;
    LMFormatDataViewItem* item = remove ? d->currentItem() : nullptr;
    if (!item || !item->removable())
        return false;
    removeItem(item, currentIndex().row());
    return true;
}

bool LMFormatCollectionView::editByKey(const QKeyEvent* event) {
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const bool edit = (event->key() == Qt::Key_F2 && modifiers == Qt::NoModifier) ||
                      (event->key() == Qt::Key_E && modifiers == Qt::ControlModifier) ||
                      event->key() == Qt::Key_Menu;
    LMFormatDataViewItem* item = edit ? d->currentItem() : nullptr;
    if (!item || !item->editable())
        return false;
    item->settingClicked();
    return true;
}

void LMFormatCollectionView::removeItem(LMFormatDataViewItem* item, int row) {
    const bool hadFocus = hasFocus();
    item->removeClicked();
    if (!hadFocus)
        return;
    // The focus stays where the removed row was: on the row that took its
    // place, the new last row, or, with no row left, wherever the owner says.
    const int count = numberOfItems();
    if (count == 0) {
        Q_EMIT focusReleased();
        return;
    }
    const QModelIndex next = d->model->index(std::min(row, count - 1));
    selectionModel()->setCurrentIndex(next, QItemSelectionModel::NoUpdate);
    scrollTo(next);
}

void LMFormatCollectionView::chooseItemAtIndexPath(int indexPath) {
    d->userSelect(indexPath, true);
}

void LMFormatCollectionView::focusItemAtIndexPath(int indexPath) {
    if (!d->hasRow(indexPath))
        return;
    const QModelIndex index = d->model->index(indexPath);
    setFocus(Qt::OtherFocusReason);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    scrollTo(index);
}

bool LMFormatCollectionView::forwardTypedText(const QKeyEvent* event) {
    const QString text = LMKeyText::typedText(*event);
    if (text.isEmpty())
        return false;
    Q_EMIT textTyped(text);
    return true;
}

void LMFormatCollectionView::keyboardSearch(const QString& search) {
    // Typed text belongs to the window's search field (textTyped), not to a
    // jump to a matching row.
    (void)search;
}

bool LMFormatCollectionView::viewportEvent(QEvent* event) {
    switch (event->type()) {
    case QEvent::Leave:
        d->setHoverRow(-1);
        break;
    case QEvent::ToolTip: {
        const auto* help = static_cast<QHelpEvent*>(event);
        const int row = indexAt(help->pos()).row();
        const auto button = d->buttonAt(row, help->pos());
        if (button != LMFormatDataView::ActionButton::None) {
            const QString tip = d->itemForRow(row, false)->dataView()->actionButtonToolTip(button);
            QToolTip::showText(help->globalPos(), tip, viewport(),
                               visualRect(d->model->index(row)));
            return true;
        }
        break;
    }
    default:
        break;
    }
    return QListView::viewportEvent(event);
}

void LMFormatCollectionView::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (d->model->rowCount() > 0 || d->emptyText.isEmpty())
        return;
    QPainter painter(viewport());
    // Greyed as a row's description is, and as readable.
    painter.setPen(LMThemeColors(palette()).rowSecondaryText(palette().color(QPalette::Base)));
    painter.drawText(viewport()->rect().adjusted(12, 12, -12, -12),
                     Qt::AlignCenter | Qt::TextWordWrap, d->emptyText);
}

void LMFormatCollectionView::focusInEvent(QFocusEvent* event) {
    QListView::focusInEvent(event);
    // Qt tells assistive technology of the current row here, and of the list
    // itself only afterwards, which would leave a screen reader on the list
    // rather than on the row the keys act on: the row is told of once more
    // when the focus has settled.
    if (QAccessible::isActive())
        QMetaObject::invokeMethod(
            this,
            [this] {
                const QModelIndex current = currentIndex();
                if (!hasFocus() || !current.isValid())
                    return;
                QAccessibleEvent focus(this, QAccessible::Focus);
                focus.setChild(current.row());
                QAccessible::updateAccessibility(&focus);
            },
            Qt::QueuedConnection);
}

void LMFormatCollectionView::showEvent(QShowEvent* event) {
    QListView::showEvent(event);
    // Cells made while the list was hidden learn only now what is under the pointer.
    d->layoutVisibleItems();
    for (auto& entry : d->live)
        entry.second->resetMouseState();
}

void LMFormatCollectionView::scrollContentsBy(int dx, int dy) {
    QListView::scrollContentsBy(dx, dy);
    d->layoutVisibleItems();
}

void LMFormatCollectionView::updateGeometries() {
    QListView::updateGeometries();
    d->layoutVisibleItems();
}

QItemSelectionModel::SelectionFlags
LMFormatCollectionView::selectionCommand(const QModelIndex& index, const QEvent* event) const {
    // Selection changes only through the calls above, never as a side effect
    // of the base view's focus or current-row handling.
    (void)index;
    (void)event;
    return QItemSelectionModel::NoUpdate;
}
