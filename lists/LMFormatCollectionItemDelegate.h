#pragma once

#include <QStyledItemDelegate>

#include <functional>

class LMFormatDataView;

// Paints a format list's rows: each row's cell (the item's LMFormatDataView) is
// placed over the row and rendered into the list, so a cell's look comes from
// its interface file while only visible rows are ever laid out or drawn.
class LMFormatCollectionItemDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    // The cell of a row, placed over rect; nullptr when the row has none.
    using CellProvider = std::function<LMFormatDataView*(int row, const QRect& rect)>;
    using HeightProvider = std::function<int()>;

    LMFormatCollectionItemDelegate(CellProvider cells, HeightProvider height,
                                   QObject* parent = nullptr);
    ~LMFormatCollectionItemDelegate() override;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    CellProvider m_cells;
    HeightProvider m_height;
};
