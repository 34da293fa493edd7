// SPDX-License-Identifier: MIT
#pragma once

#include "LMFormatDataView.h"

#include <QList>
#include <QListView>
#include <QString>

#include <memory>

class LMFormatCollectionModel;
class LMFormatCollectionViewDataSource;
class LMFormatCollectionViewDelegate;
class LMFormatDataViewItem;

// A virtualized list of format cells in one column, run by a controller the way a
// collection view is run by its data source and delegate: the controller says
// how many entries there are, gives the entry of a row when the model first reads
// it, fills a cell for each row the list shows (makeItem() hands it one from the
// list's pool), and hears of the user's selections. Rows are painted by an item
// delegate from the model's data; only rows that are visible have a cell (an
// LMFormatDataViewItem, no widget), and cells of rows that scroll away go back to
// the pool, so a list of ten thousand entries costs what its visible rows cost.
//
// The list tracks the row under the pointer and tells that row's cell of entry
// and exit; clicks on a cell's edit or remove button go to its item. Only the
// user's actions are reported to the delegate (a click on a cell; in a list that
// selectsOnNavigation, the arrow keys; otherwise Enter or Return on the current
// row); the program's own selections are not. Delete or Backspace on a removable
// current cell asks to remove it, F2, Ctrl+E or the context-menu key on an
// editable one asks to edit it. Printable keys are offered as textTyped() for
// whoever owns a search field; Escape and every other Ctrl key are left to the
// window.
class LMFormatCollectionView : public QListView {
    Q_OBJECT
    Q_PROPERTY(int itemHeight READ itemHeight WRITE setItemHeight)
    Q_PROPERTY(bool selectsOnNavigation READ selectsOnNavigation WRITE setSelectsOnNavigation)
    Q_PROPERTY(QString emptyText READ emptyText WRITE setEmptyText)

public:
    explicit LMFormatCollectionView(QWidget* parent = nullptr);
    ~LMFormatCollectionView() override;

    // Neither is owned; without a data source the list is empty.
    LMFormatCollectionViewDataSource* dataSource() const;
    void setDataSource(LMFormatCollectionViewDataSource* dataSource);
    LMFormatCollectionViewDelegate* delegate() const;
    void setDelegate(LMFormatCollectionViewDelegate* delegate);

    // Height of every row, in pixels.
    int itemHeight() const;
    void setItemHeight(int height);
    // Whether moving with the keyboard selects (a list of nodes) or only moves
    // the current row, Enter or Return then choosing it (a list of presets).
    bool selectsOnNavigation() const;
    void setSelectsOnNavigation(bool selects);
    // Hint drawn in the middle of the list while it has no rows; empty for none.
    QString emptyText() const;
    void setEmptyText(const QString& text);

    // For the data source: an unused cell from the pool (made when the pool is
    // empty), to be filled for the row index and returned.
    LMFormatDataViewItem* makeItem(int index);

    // Asks the data source again for everything; drops the selection.
    void reloadData();
    // The data source already dropped these entries; only their rows go.
    void deleteItemsAtIndexPaths(const QList<int>& indexPaths);
    // Selects exactly these rows and scrolls the first one into view.
    void selectItemsAtIndexPaths(const QList<int>& indexPaths,
                                 QAbstractItemView::ScrollHint scrollPosition = PositionAtTop);
    void deselectAll();
    QList<int> selectionIndexPaths() const;

    // The number of rows as the list knows it (the data source's count at the
    // last reload, less deleted rows).
    int numberOfItems() const;
    // Chooses a row as Enter on it does: the delegate hears of it even when the
    // row was selected already.
    void chooseItemAtIndexPath(int indexPath);
    // Takes the keyboard focus with indexPath as the current row; nothing for a
    // row the list does not have.
    void focusItemAtIndexPath(int indexPath);

    // The cell of a row, or nullptr when the row has no cell now.
    LMFormatDataViewItem* itemAtIndex(int index) const;
    // The row of a cell, or -1 when the cell has no row now.
    int indexPathForItem(const LMFormatDataViewItem* item) const;

    LMFormatCollectionModel* collectionModel() const;

    // What a row offers besides being chosen, as its edit and remove buttons
    // show it on hover. For assistive technology, which works any row, shown or
    // not; a row out of view gets a cell only while it is asked.
    bool canEditItemAtIndexPath(int indexPath);
    bool canRemoveItemAtIndexPath(int indexPath);
    // As a click on the row's edit or remove button; nothing where the row
    // offers none. Removing moves the focus as Delete does.
    void editItemAtIndexPath(int indexPath);
    void removeItemAtIndexPath(int indexPath);
    // Where the row's edit or remove button is drawn when the row is hovered,
    // in the viewport's coordinates; empty when the row offers none.
    QRect actionButtonRect(int indexPath, LMFormatDataView::ActionButton button);

Q_SIGNALS:
    // Printable text typed while the list has the focus.
    void textTyped(const QString& text);
    // The user removed the last row while the list had the focus: the focus
    // has nowhere to go in the list, and whoever owns a search field takes it.
    void focusReleased();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyboardSearch(const QString& search) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

private:
    // The keys a list handles itself; each says whether it handled the event.
    bool navigateByKey(const QKeyEvent* event);
    bool chooseByKey(const QKeyEvent* event);
    bool removeByKey(const QKeyEvent* event);
    bool editByKey(const QKeyEvent* event);
    // Removes the row of item as its remove button does, the focus then moving
    // to the row after it.
    void removeItem(LMFormatDataViewItem* item, int row);
    // Printable text typed in a list belongs to the window's search field.
    bool forwardTypedText(const QKeyEvent* event);
    struct Private;
    std::unique_ptr<Private> d;
};
