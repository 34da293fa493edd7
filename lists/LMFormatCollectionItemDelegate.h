// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QStyledItemDelegate>

#include <functional>

class LMFormatDataView;

// Paints a format list's rows from the model's data: the image, the title over
// the muted description, and, on a hovered row of a list that allows them, the
// edit or remove button; a hovered or selected row gets the rounded background
// its LMFormatDataView draws, and the list's current row, while the list has the
// keyboard focus, a focus ring. Rows are painted directly, so only visible rows
// cost anything and no row has a widget. Where the buttons lie comes from
// LMFormatCellLayout, by which the list also hit-tests them.
class LMFormatCollectionItemDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    // The row's state (hover, buttons), placed over rect; nullptr when the row
    // has none.
    using CellProvider = std::function<LMFormatDataView*(int row, const QRect& rect)>;
    using HeightProvider = std::function<int()>;

    LMFormatCollectionItemDelegate(CellProvider cells, HeightProvider height,
                                   QObject* parent = nullptr);
    ~LMFormatCollectionItemDelegate() override;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    // The font of a row's description, from the list's font.
    static QFont descriptionFont(QFont font);
    // Colour of the focus ring in a list of that palette.
    static QColor focusRingColor(const QPalette& palette);

private:
    static void paintFocusRing(QPainter* painter, const QStyleOptionViewItem& option);
    static void paintWarningMark(QPainter* painter, const QRect& rect, bool dark);
    void paintButton(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect,
                     const QIcon& icon, bool down) const;

    CellProvider m_cells;
    HeightProvider m_height;
    QIcon m_editIcon;
    QIcon m_removeIcon;
    // The same glyphs, light, for dark palettes.
    QIcon m_darkEditIcon;
    QIcon m_darkRemoveIcon;
};
