// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPointer>
#include <QRect>
#include <QString>

#include <memory>

class LMFormatDataViewDelegate;
class LMFormatInternationalizationMgr;
class QPainter;
class QWidget;

// The state of one row as its list shows it: where the row lies in the list's
// viewport, whether the pointer is over it, which action buttons show and which
// one is held down. It is no widget: the list's delegate paints the row, and the
// view draws only the rounded background of a hovered or selected row. It
// reports the pointer's entry and exit to its delegate (the item).
class LMFormatDataView {
public:
    enum class ActionButton { None, Edit, Remove };

    LMFormatDataView();
    ~LMFormatDataView();
    LMFormatDataView(const LMFormatDataView&) = delete;
    LMFormatDataView& operator=(const LMFormatDataView&) = delete;

    // Not owned; nullptr drops pointer messages and makes the row unselected.
    LMFormatDataViewDelegate* delegate() const;
    void setDelegate(LMFormatDataViewDelegate* delegate);

    // The grey offered for row borders; the list strokes it around the
    // keyboard's current row.
    static QColor borderColor();
    // Colour of the hover and selection background under a light palette; a
    // dark one gets LMThemeColors' dark counterpart.
    static QColor highlightColor();

    // The delegate's answer; false without a delegate.
    bool selected() const;
    bool mouseIn() const;

    void mouseEntered();
    void mouseExited();
    // Asks the pointer where it is instead of waiting for entry or exit, for
    // when the row moved under a still pointer. Repaints on a change and tells
    // the delegate nothing. Returns whether the pointer is inside.
    bool resetMouseState();

    void setEditVisible(bool visible);
    void setRemoveVisible(bool visible);
    bool isEditVisible() const;
    bool isRemoveVisible() const;

    // The widget the row is painted in (the list's viewport) and the row's
    // rectangle there.
    QWidget* host() const;
    void setHost(QWidget* host);
    void placeAt(const QRect& rect);
    QRect geometry() const;
    QSize size() const;
    QRect rect() const;

    // The visible action button under pos (row coordinates).
    ActionButton actionButtonAt(const QPoint& pos) const;
    // Where a visible action button lies in the row; empty when it is hidden.
    QRect actionButtonGeometry(ActionButton button) const;
    // Shows a button pressed while the mouse is held on it (None releases).
    void setActionButtonDown(ActionButton button);
    ActionButton actionButtonDown() const;
    // The button's name in the current language, with the keys that do the same.
    static QString actionButtonToolTip(ActionButton button);

    // Repaints the row where its list shows it.
    void setNeedsDisplay();
    // The background of a hovered or selected row (hover and selection look
    // the same), in row coordinates, in fill; nothing otherwise.
    void drawRect(QPainter* painter, const QColor& fill = highlightColor()) const;
    // Whether drawRect paints anything: the row is hovered or selected.
    bool highlighted() const;

    LMFormatInternationalizationMgr* lizationMgr() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
