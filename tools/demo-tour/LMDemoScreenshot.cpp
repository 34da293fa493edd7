// SPDX-License-Identifier: MIT
#include "LMDemoScreenshot.h"

#include <QApplication>
#include <QCursor>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QWidget>

namespace {

bool s_showsToolTips = false;

// Host windows first, then tool windows (the popup), then dialogs, a dialog
// over the one it belongs to (the name prompt over the editor): the order in
// which a window manager stacks them. topLevelWidgets() has no order of its own.
int StackingRank(const QWidget* window) {
    if (window->windowType() == Qt::ToolTip)
        return 1000;
    if (window->isModal() || window->windowType() == Qt::Dialog) {
        int depth = 0;
        for (const QWidget* owner = window->parentWidget(); owner; owner = owner->parentWidget())
            ++depth;
        return 2 + depth;
    }
    if (window->windowType() == Qt::Tool)
        return 1;
    return 0;
}

QList<QWidget*> VisibleWindows() {
    QList<QWidget*> windows;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && (widget->windowType() != Qt::ToolTip || s_showsToolTips) &&
            widget->windowType() != Qt::Desktop)
            windows.append(widget);
    }
    std::stable_sort(windows.begin(), windows.end(), [](const QWidget* a, const QWidget* b) {
        return StackingRank(a) < StackingRank(b);
    });
    return windows;
}

void DrawPointer(QPainter& painter, QPointF tip) {
    QPainterPath arrow;
    arrow.moveTo(tip);
    arrow.lineTo(tip + QPointF(0, 17));
    arrow.lineTo(tip + QPointF(4.5, 13));
    arrow.lineTo(tip + QPointF(7.5, 19.5));
    arrow.lineTo(tip + QPointF(10, 18.5));
    arrow.lineTo(tip + QPointF(7, 12));
    arrow.lineTo(tip + QPointF(12.5, 12));
    arrow.closeSubpath();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 1.2));
    painter.setBrush(Qt::black);
    painter.drawPath(arrow);
}

} // namespace

QImage LMDemoScreenshot::compose(const QRect& area) {
    const qreal ratio = qApp->primaryScreen() ? qApp->primaryScreen()->devicePixelRatio() : 1.0;
    QImage image(area.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(QColor(96, 112, 134));
    QPainter painter(&image);
    painter.translate(-area.topLeft());
    for (QWidget* window : VisibleWindows()) {
        const QRect frame = window->geometry();
        // A thin shadow, so windows stand off the desktop and each other.
        painter.fillRect(frame.adjusted(-1, 0, 3, 4), QColor(0, 0, 0, 60));
        painter.drawPixmap(frame.topLeft(), window->grab());
    }
    DrawPointer(painter, QCursor::pos());
    return image;
}

void LMDemoScreenshot::setShowsToolTips(bool shows) {
    s_showsToolTips = shows;
}

bool LMDemoScreenshot::save(const QString& path) {
    QRect area;
    for (QWidget* window : VisibleWindows())
        area |= window->geometry();
    return compose(area.adjusted(-24, -24, 24, 24)).save(path);
}
