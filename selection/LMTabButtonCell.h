// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QSize>
#include <QtGlobal>

class QAbstractButton;
class QPainter;
class QPalette;
class QRectF;
class QWidget;

// Draws one tab of the popup's tab strip: a flat rectangle with a thin border,
// white when the tab is the selected one and light lilac-grey otherwise (under a
// dark palette, the list's dark base and a dark lilac), with the tab's image
// leading its title. The button that owns the cell hands it the
// frame and its own state; the cell keeps only the colours.
class LMTabButtonCell {
public:
    LMTabButtonCell();

    // Puts every colour back to its default: white when selected, the strip's
    // grey for the border, light lilac-grey (241, 235, 243) otherwise.
    void setupDefaultValues();

    QColor selectedBackgroundColor() const;
    void setSelectedBackgroundColor(const QColor& color);
    QColor borderColor() const;
    void setBorderColor(const QColor& color);
    QColor backgroundColor() const;
    void setBackgroundColor(const QColor& color);

    // The whole tab: the bezel for the button's checked state, then its image
    // and title, and the focus ring while the button has the focus.
    void drawWithFrame(QPainter& painter, const QRectF& frame, const QAbstractButton& view) const;

    // Background and border in the cell's colours. A selected tab's rectangle is one point taller
    // than the frame, so its bottom border lies just outside the button and the tab reads as open
    // toward the list below it; the button's own bounds clip it.
    void drawBezelWithFrame(QPainter& painter, const QRectF& frame, bool on) const;

    // The button's image, scaled down to the tab's height and leading the title,
    // and its title, shortened in the middle when the tab is too narrow. Both
    // are centred together in the frame.
    void drawInteriorWithFrame(QPainter& painter, const QRectF& frame,
                               const QAbstractButton& view) const;
    // Size the button's image is drawn at in frame; empty without an image.
    static QSize imageSizeForBounds(const QRectF& frame, const QAbstractButton& view);
    // Width left for the title in frame beside the image: a title wider than
    // this is shortened.
    static qreal titleRoomForBounds(const QRectF& frame, const QAbstractButton& view);

    // A two-point ring inside the frame in the highlight colour of palette,
    // drawn over the tab while it has the keyboard focus.
    void drawFocusRingWithFrame(QPainter& painter, const QRectF& frame,
                                const QPalette& palette) const;
    static QColor focusRingColor(const QPalette& palette);

    // Tabs always show the arrow, whatever cursor the area around the strip
    // (the search field beside the tabs, for one) asks for.
    void resetCursorRect(QWidget& view) const;

private:
    // The tab's fill under palette, selected (on) or not.
    QColor fillFor(const QPalette& palette, bool on) const;
    static void drawBezel(QPainter& painter, const QRectF& frame, bool on, const QColor& fill,
                          const QColor& border);

    QColor m_selectedBackgroundColor;
    QColor m_borderColor;
    QColor m_backgroundColor;
};
