// SPDX-License-Identifier: MIT
#include "LMTabButtonCell.h"

#include "LMTabHeaderView.h"
#include "LMThemeColors.h"

#include <QAbstractButton>
#include <QFontMetricsF>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QPen>
#include <QRectF>

#include <algorithm>

namespace {

// Room kept free between the tab's edges and its image and title. The tab's
// width is fixed, so every point kept here is one less for the title; titles
// in the longer languages need nearly all of what is left.
constexpr qreal kHorizontalMargin = 4.0;
constexpr qreal kVerticalMargin = 4.0;
// Gap between the image and the title.
constexpr qreal kImageSpacing = 3.0;
// Artwork is drawn at most this size; larger sources are scaled down to it.
// A small-icon size reads well beside the title and leaves it the room.
constexpr int kMaxImageExtent = 16;
constexpr qreal kFocusRingWidth = 2.0;

} // namespace

LMTabButtonCell::LMTabButtonCell() {
    setupDefaultValues();
}

void LMTabButtonCell::setupDefaultValues() {
    m_selectedBackgroundColor = QColor(255, 255, 255);
    // The tab's border continues the strip's rule, so both use one grey.
    m_borderColor = LMTabHeaderView::borderColor();
    m_backgroundColor = QColor(241, 235, 243);
}

QColor LMTabButtonCell::selectedBackgroundColor() const {
    return m_selectedBackgroundColor;
}

void LMTabButtonCell::setSelectedBackgroundColor(const QColor& color) {
    m_selectedBackgroundColor = color;
}

QColor LMTabButtonCell::borderColor() const {
    return m_borderColor;
}

void LMTabButtonCell::setBorderColor(const QColor& color) {
    m_borderColor = color;
}

QColor LMTabButtonCell::backgroundColor() const {
    return m_backgroundColor;
}

void LMTabButtonCell::setBackgroundColor(const QColor& color) {
    m_backgroundColor = color;
}

// A light palette shows the cell's own colours; a dark one their dark
// counterparts, so the strip does not stand light over a dark list.
QColor LMTabButtonCell::fillFor(const QPalette& palette, bool on) const {
    const LMThemeColors colors(palette);
    if (!colors.dark())
        return on ? m_selectedBackgroundColor : m_backgroundColor;
    return on ? colors.selectedTabBackground() : colors.tabBackground();
}

void LMTabButtonCell::drawWithFrame(QPainter& painter, const QRectF& frame,
                                    const QAbstractButton& view) const {
    const LMThemeColors colors(view.palette());
    drawBezel(painter, frame, view.isChecked(), fillFor(view.palette(), view.isChecked()),
              colors.dark() ? colors.border() : m_borderColor);
    drawInteriorWithFrame(painter, frame, view);
    if (view.hasFocus())
        drawFocusRingWithFrame(painter, frame, view.palette());
}

void LMTabButtonCell::drawFocusRingWithFrame(QPainter& painter, const QRectF& frame,
                                             const QPalette& palette) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(focusRingColor(palette), kFocusRingWidth));
    painter.setBrush(Qt::NoBrush);
    // A point inside the border, so the tab's grey edge stays a line of its own.
    const qreal inset = 2.0 + kFocusRingWidth / 2.0;
    painter.drawRoundedRect(frame.adjusted(inset, inset, -inset, -inset), 2.0, 2.0);
    painter.restore();
}

QColor LMTabButtonCell::focusRingColor(const QPalette& palette) {
    return palette.color(QPalette::Active, QPalette::Highlight);
}

void LMTabButtonCell::drawBezelWithFrame(QPainter& painter, const QRectF& frame, bool on) const {
    drawBezel(painter, frame, on, on ? m_selectedBackgroundColor : m_backgroundColor,
              m_borderColor);
}

void LMTabButtonCell::drawBezel(QPainter& painter, const QRectF& frame, bool on, const QColor& fill,
                                const QColor& border) {
    painter.save();
    // Start from nothing, so a translucent fill shows what lies behind the
    // strip rather than an earlier drawing of the tab.
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(frame, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);

    QRectF box = frame;
    if (on)
        box.setHeight(frame.height() + 1.0);
    painter.fillRect(box, fill);

    // A one-point pen centred half a point inside the edges lies wholly inside
    // the rectangle, so the border is one crisp line at every scale factor.
    QPen pen(border, 1.0);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.drawRect(box.adjusted(0.5, 0.5, -0.5, -0.5));
    painter.restore();
}

QSize LMTabButtonCell::imageSizeForBounds(const QRectF& frame, const QAbstractButton& view) {
    const QIcon image = view.icon();
    if (image.isNull())
        return {};
    const int extent =
        std::clamp(static_cast<int>(frame.height() - 2 * kVerticalMargin), 0, kMaxImageExtent);
    return image.actualSize(QSize(extent, extent));
}

qreal LMTabButtonCell::titleRoomForBounds(const QRectF& frame, const QAbstractButton& view) {
    const QSize imageSize = imageSizeForBounds(frame, view);
    const qreal imageWidth = imageSize.isEmpty() ? 0.0 : imageSize.width();
    const qreal spacing = imageWidth > 0.0 && !view.text().isEmpty() ? kImageSpacing : 0.0;
    return std::max(0.0, frame.width() - 2 * kHorizontalMargin - imageWidth - spacing);
}

void LMTabButtonCell::drawInteriorWithFrame(QPainter& painter, const QRectF& frame,
                                            const QAbstractButton& view) const {
    const QIcon image = view.icon();
    const QSize imageSize = imageSizeForBounds(frame, view);
    const qreal imageWidth = imageSize.isEmpty() ? 0.0 : imageSize.width();
    const qreal spacing = imageWidth > 0.0 && !view.text().isEmpty() ? kImageSpacing : 0.0;

    const QFontMetricsF metrics(view.font());
    const QString title =
        metrics.elidedText(view.text(), Qt::ElideMiddle, titleRoomForBounds(frame, view));
    const qreal titleWidth = title.isEmpty() ? 0.0 : metrics.horizontalAdvance(title);

    painter.save();
    qreal x = frame.left() + (frame.width() - (imageWidth + spacing + titleWidth)) / 2.0;
    if (imageWidth > 0.0) {
        const QRect imageRect(qRound(x), qRound(frame.center().y() - imageSize.height() / 2.0),
                              imageSize.width(), imageSize.height());
        image.paint(&painter, imageRect, Qt::AlignCenter,
                    view.isEnabled() ? QIcon::Normal : QIcon::Disabled, QIcon::Off);
        x += imageWidth + spacing;
    }
    if (!title.isEmpty()) {
        painter.setFont(view.font());
        painter.setPen(LMThemeColors(view.palette())
                           .tabTitle(fillFor(view.palette(), view.isChecked()), view.isEnabled()));
        painter.drawText(QRectF(x, frame.top(), titleWidth, frame.height()),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip,
                         title);
    }
    painter.restore();
}

void LMTabButtonCell::resetCursorRect(QWidget& view) const {
    view.setCursor(Qt::ArrowCursor);
}
