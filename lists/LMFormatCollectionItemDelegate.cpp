// SPDX-License-Identifier: MIT
#include "LMFormatCollectionItemDelegate.h"

#include "LMFormatCellLayout.h"
#include "LMFormatCollectionModel.h"
#include "LMFormatDataView.h"
#include "LMThemeColors.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionToolButton>

namespace {

constexpr int kImageSize = 32;
constexpr int kGlyphSize = 16;
constexpr int kDefaultHeight = 52;
// The focus ring: two pixels wide, three pixels inside the row's edges, around
// the hover background rather than on it.
constexpr qreal kFocusRingWidth = 2.0;
constexpr qreal kFocusRingInset = 3.0;
// The mark and faintness of a preset the host's FFmpeg cannot run.
constexpr int kWarningMarkSize = 14;
constexpr int kWarningMarkGap = 4;
constexpr qreal kUnavailableOpacity = 0.45;

// The button glyphs are drawn rather than shipped, at each common scale factor,
// so they stay sharp on every screen.
QIcon glyphIcon(const QColor& ink, const std::function<void(QPainter&, const QColor&)>& draw) {
    QIcon icon;
    for (const qreal ratio : {1.0, 2.0, 3.0}) {
        QPixmap pixmap(QSize(kGlyphSize, kGlyphSize) * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(ink, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        draw(painter, ink);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

QIcon pencilIcon(const QColor& ink) {
    return glyphIcon(ink, [](QPainter& painter, const QColor&) {
        painter.translate(kGlyphSize / 2.0, kGlyphSize / 2.0);
        painter.rotate(-45.0);
        QPainterPath body;
        body.moveTo(-7.0, 0.0);
        body.lineTo(-4.2, -2.0);
        body.lineTo(5.5, -2.0);
        body.lineTo(5.5, 2.0);
        body.lineTo(-4.2, 2.0);
        body.closeSubpath();
        painter.drawPath(body);
        painter.drawLine(QPointF(-4.2, -2.0), QPointF(-4.2, 2.0));
        painter.drawLine(QPointF(3.5, -2.0), QPointF(3.5, 2.0));
    });
}

QIcon crossIcon(const QColor& ink) {
    return glyphIcon(ink, [](QPainter& painter, const QColor& color) {
        painter.setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(4.5, 4.5), QPointF(11.5, 11.5));
        painter.drawLine(QPointF(11.5, 4.5), QPointF(4.5, 11.5));
    });
}

void drawText(QPainter* painter, const QRect& rect, const QFont& font, const QColor& color,
              const QString& text) {
    if (rect.isEmpty())
        return;
    painter->setFont(font);
    painter->setPen(color);
    painter->drawText(rect, Qt::AlignLeft | Qt::AlignVCenter,
                      painter->fontMetrics().elidedText(text, Qt::ElideRight, rect.width()));
}

void drawImage(QPainter* painter, const QRect& rect, const QIcon& icon) {
    if (icon.isNull())
        return;
    const QPixmap pixmap =
        icon.pixmap(QSize(kImageSize, kImageSize), painter->device()->devicePixelRatioF());
    QRect target(QPoint(), pixmap.deviceIndependentSize().toSize());
    target.moveCenter(rect.center());
    painter->drawPixmap(target, pixmap);
}

} // namespace

LMFormatCollectionItemDelegate::LMFormatCollectionItemDelegate(CellProvider cells,
                                                               HeightProvider height,
                                                               QObject* parent)
    : QStyledItemDelegate(parent), m_cells(std::move(cells)), m_height(std::move(height)),
      m_editIcon(pencilIcon(LMThemeColors::glyph(false))),
      m_removeIcon(crossIcon(LMThemeColors::glyph(false))),
      m_darkEditIcon(pencilIcon(LMThemeColors::glyph(true))),
      m_darkRemoveIcon(crossIcon(LMThemeColors::glyph(true))) {}

LMFormatCollectionItemDelegate::~LMFormatCollectionItemDelegate() = default;

void LMFormatCollectionItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                           const QModelIndex& index) const {
    LMFormatDataView* cell = m_cells ? m_cells(index.row(), option.rect) : nullptr;
    if (!cell)
        return;
    // The text's colours are chosen against what lies behind it: the row's
    // highlight when it has one, the list's base otherwise.
    const LMThemeColors colors(option.palette);
    const QColor fill = colors.rowHighlight();
    const QColor behind = cell->highlighted() ? fill : option.palette.color(QPalette::Base);
    painter->save();
    painter->translate(option.rect.topLeft());
    cell->drawRect(painter, fill);
    painter->restore();

    const QFont smallFont = descriptionFont(option.font);
    const bool descriptionVisible =
        index.data(LMFormatCollectionModel::VisibleDescriptionRole).toBool();
    const LMFormatCellLayout layout = LMFormatCellLayout::of(
        option.rect, QFontMetrics(option.font).height(), QFontMetrics(smallFont).height(),
        descriptionVisible, cell->isEditVisible(), cell->isRemoveVisible());
    // A preset the host's FFmpeg cannot run stays choosable, drawn faint with a
    // warning mark at the end of its title; the tool tip says why.
    const bool unavailable =
        !index.data(LMFormatCollectionModel::UnavailableRole).toString().isEmpty();
    QRect title = layout.title;
    if (unavailable) {
        const int side = qMin(kWarningMarkSize, title.height());
        const QRect mark(title.right() - side + 1, title.center().y() - side / 2, side, side);
        paintWarningMark(painter, mark, colors.dark());
        title.setRight(mark.left() - kWarningMarkGap);
    }
    painter->save();
    if (unavailable)
        painter->setOpacity(kUnavailableOpacity);
    drawImage(painter, layout.image, index.data(Qt::DecorationRole).value<QIcon>());
    drawText(painter, title, option.font, colors.rowText(behind),
             index.data(Qt::DisplayRole).toString());
    if (descriptionVisible)
        drawText(painter, layout.description, smallFont, colors.rowSecondaryText(behind),
                 index.data(LMFormatCollectionModel::DescriptionRole).toString());
    painter->restore();
    const auto down = cell->actionButtonDown();
    paintButton(painter, option, layout.edit, colors.dark() ? m_darkEditIcon : m_editIcon,
                down == LMFormatDataView::ActionButton::Edit);
    paintButton(painter, option, layout.remove, colors.dark() ? m_darkRemoveIcon : m_removeIcon,
                down == LMFormatDataView::ActionButton::Remove);

    if (option.state & QStyle::State_HasFocus)
        paintFocusRing(painter, option);
}

// The keyboard's current row gets a ring in the palette's highlight colour,
// selected or not: a selection shows what is chosen, not where the keys act
// (in a list of formats the current row is always the selected one). The
// highlight stands out on the light and the dark palettes' bases alike.
void LMFormatCollectionItemDelegate::paintFocusRing(QPainter* painter,
                                                    const QStyleOptionViewItem& option) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(focusRingColor(option.palette), kFocusRingWidth));
    painter->setBrush(Qt::NoBrush);
    const qreal inset = kFocusRingInset + kFocusRingWidth / 2.0;
    painter->drawRoundedRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset), 6.0, 6.0);
    painter->restore();
}

// A rounded amber triangle with an exclamation mark, legible on the light and
// the dark bases alike.
void LMFormatCollectionItemDelegate::paintWarningMark(QPainter* painter, const QRect& rect,
                                                      bool dark) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF box = QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath triangle;
    triangle.moveTo(box.center().x(), box.top());
    triangle.lineTo(box.right(), box.bottom());
    triangle.lineTo(box.left(), box.bottom());
    triangle.closeSubpath();
    const QColor amber = dark ? QColor(0xf0, 0xb4, 0x29) : QColor(0xc7, 0x7c, 0x02);
    painter->setPen(QPen(amber, 1.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(amber);
    painter->drawPath(triangle);
    painter->setPen(QPen(dark ? QColor(0x20, 0x20, 0x20) : QColor(Qt::white), 1.6, Qt::SolidLine,
                         Qt::RoundCap));
    const qreal x = box.center().x();
    painter->drawLine(QPointF(x, box.top() + box.height() * 0.38),
                      QPointF(x, box.top() + box.height() * 0.66));
    painter->drawPoint(QPointF(x, box.top() + box.height() * 0.82));
    painter->restore();
}

// The description is secondary: a little smaller than the title, and greyer.
QFont LMFormatCollectionItemDelegate::descriptionFont(QFont font) {
    font.setPointSizeF(font.pointSizeF() * 0.9);
    return font;
}

QColor LMFormatCollectionItemDelegate::focusRingColor(const QPalette& palette) {
    return palette.color(QPalette::Active, QPalette::Highlight);
}

// Drawn as the style draws a flat tool button: the glyph alone, sunk while held.
void LMFormatCollectionItemDelegate::paintButton(QPainter* painter,
                                                 const QStyleOptionViewItem& option,
                                                 const QRect& rect, const QIcon& icon,
                                                 bool down) const {
    if (rect.isEmpty())
        return;
    QStyleOptionToolButton button;
    if (option.widget)
        button.initFrom(option.widget);
    button.palette = option.palette;
    button.rect = rect;
    // A row's button never takes the focus, and the row's hover is not the
    // button's: the style draws it flat unless it is held.
    button.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
    button.state |= QStyle::State_Enabled | QStyle::State_AutoRaise;
    if (down)
        button.state |= QStyle::State_Sunken;
    button.subControls = QStyle::SC_ToolButton;
    button.activeSubControls = down ? QStyle::SC_ToolButton : QStyle::SC_None;
    button.icon = icon;
    button.iconSize = QSize(kGlyphSize, kGlyphSize);
    button.toolButtonStyle = Qt::ToolButtonIconOnly;
    button.font = option.font;
    const QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    style->drawComplexControl(QStyle::CC_ToolButton, &button, painter, option.widget);
}

QSize LMFormatCollectionItemDelegate::sizeHint(const QStyleOptionViewItem& option,
                                               const QModelIndex& index) const {
    (void)index;
    return QSize(qMax(1, option.rect.width()), m_height ? m_height() : kDefaultHeight);
}
