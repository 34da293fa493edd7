#include "LMFormatCollectionItemDelegate.h"

#include "LMFormatDataView.h"

#include <QPainter>
#include <QPainterPath>

LMFormatCollectionItemDelegate::LMFormatCollectionItemDelegate(CellProvider cells,
                                                               HeightProvider height,
                                                               QObject* parent)
    : QStyledItemDelegate(parent), m_cells(std::move(cells)), m_height(std::move(height)) {}

LMFormatCollectionItemDelegate::~LMFormatCollectionItemDelegate() = default;

void LMFormatCollectionItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                           const QModelIndex& index) const {
    LMFormatDataView* cell = m_cells ? m_cells(index.row(), option.rect) : nullptr;
    if (!cell)
        return;
    painter->drawPixmap(option.rect.topLeft(),
                        cell->snapshot(painter->device()->devicePixelRatioF()));
    // The keyboard's current row gets an outline, unless the selection
    // background already marks it.
    if ((option.state & QStyle::State_HasFocus) && !(option.state & QStyle::State_Selected)) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(LMFormatDataView::borderColor(), 1.0));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(QRectF(option.rect).adjusted(4.5, 4.5, -4.5, -4.5), 6.0, 6.0);
        painter->restore();
    }
}

QSize LMFormatCollectionItemDelegate::sizeHint(const QStyleOptionViewItem& option,
                                               const QModelIndex& index) const {
    (void)index;
    return QSize(qMax(1, option.rect.width()), m_height ? m_height() : 52);
}
