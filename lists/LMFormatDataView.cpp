// SPDX-License-Identifier: MIT
#include "LMFormatDataView.h"

#include "LMFormatCellLayout.h"
#include "LMFormatDataViewDelegate.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMKeyText.h"

#include <QCursor>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

namespace {

constexpr qreal kHighlightInset = 4.0;
constexpr qreal kHighlightRadius = 6.0;

} // namespace

struct LMFormatDataView::Private {
    LMFormatDataViewDelegate* delegate = nullptr;
    QPointer<QWidget> host;
    QRect geometry;
    bool mouseIn = false;
    bool editVisible = false;
    bool removeVisible = false;
    ActionButton down = ActionButton::None;
};

LMFormatDataView::LMFormatDataView() : d(new Private) {}

LMFormatDataView::~LMFormatDataView() = default;

LMFormatDataViewDelegate* LMFormatDataView::delegate() const {
    return d->delegate;
}

void LMFormatDataView::setDelegate(LMFormatDataViewDelegate* delegate) {
    d->delegate = delegate;
}

QColor LMFormatDataView::borderColor() {
    static const QColor color = QColor::fromRgb(191, 191, 191);
    return color;
}

QColor LMFormatDataView::highlightColor() {
    return QColor::fromRgb(221, 220, 221);
}

bool LMFormatDataView::selected() const {
    return d->delegate && d->delegate->formatDataViewSelected(const_cast<LMFormatDataView*>(this));
}

bool LMFormatDataView::mouseIn() const {
    return d->mouseIn;
}

void LMFormatDataView::mouseEntered() {
    d->mouseIn = true;
    setNeedsDisplay();
    if (d->delegate)
        d->delegate->formatDataViewMouseEnter(this);
}

void LMFormatDataView::mouseExited() {
    d->mouseIn = false;
    setNeedsDisplay();
    if (d->delegate)
        d->delegate->formatDataViewMouseExited(this);
}

bool LMFormatDataView::resetMouseState() {
    bool inside = false;
    // Part of a row can lie outside the list's visible area while it scrolls,
    // and a list that is not on screen has nothing under the pointer.
    if (const QWidget* host = d->host.data()) {
        const QPoint pos = host->mapFromGlobal(QCursor::pos());
        inside = host->isVisible() && host->rect().contains(pos) && d->geometry.contains(pos);
    }
    if (inside != d->mouseIn) {
        d->mouseIn = inside;
        setNeedsDisplay();
    }
    return d->mouseIn;
}

void LMFormatDataView::setEditVisible(bool visible) {
    if (d->editVisible == visible)
        return;
    d->editVisible = visible;
    setNeedsDisplay();
}

void LMFormatDataView::setRemoveVisible(bool visible) {
    if (d->removeVisible == visible)
        return;
    d->removeVisible = visible;
    setNeedsDisplay();
}

bool LMFormatDataView::isEditVisible() const {
    return d->editVisible;
}

bool LMFormatDataView::isRemoveVisible() const {
    return d->removeVisible;
}

QWidget* LMFormatDataView::host() const {
    return d->host.data();
}

void LMFormatDataView::setHost(QWidget* host) {
    d->host = host;
}

void LMFormatDataView::placeAt(const QRect& rect) {
    d->geometry = rect;
}

QRect LMFormatDataView::geometry() const {
    return d->geometry;
}

QSize LMFormatDataView::size() const {
    return d->geometry.size();
}

QRect LMFormatDataView::rect() const {
    return QRect(QPoint(), d->geometry.size());
}

LMFormatDataView::ActionButton LMFormatDataView::actionButtonAt(const QPoint& pos) const {
    for (const ActionButton which : {ActionButton::Edit, ActionButton::Remove}) {
        if (actionButtonGeometry(which).contains(pos))
            return which;
    }
    return ActionButton::None;
}

// The buttons' places do not depend on the texts.
QRect LMFormatDataView::actionButtonGeometry(ActionButton button) const {
    const LMFormatCellLayout layout =
        LMFormatCellLayout::of(rect(), 0, 0, false, d->editVisible, d->removeVisible);
    switch (button) {
    case ActionButton::Edit:
        return layout.edit;
    case ActionButton::Remove:
        return layout.remove;
    case ActionButton::None:
        break;
    }
    return {};
}

void LMFormatDataView::setActionButtonDown(ActionButton button) {
    if (d->down == button)
        return;
    d->down = button;
    setNeedsDisplay();
}

LMFormatDataView::ActionButton LMFormatDataView::actionButtonDown() const {
    return d->down;
}

QString LMFormatDataView::actionButtonToolTip(ActionButton button) {
    // The tip names the keys that do the same on the list's current row.
    switch (button) {
    case ActionButton::Edit:
        return LMFormatInternationalizationMgr::sharedObject()
            ->stringForKey(QStringLiteral("Edit (%1)"))
            .arg(LMKeyText::names({QKeyCombination(Qt::Key_F2), Qt::CTRL | Qt::Key_E,
                                   QKeyCombination(Qt::Key_Menu)}));
    case ActionButton::Remove:
        return LMFormatInternationalizationMgr::sharedObject()
            ->stringForKey(QStringLiteral("Remove (%1)"))
            .arg(LMKeyText::names({QKeyCombination(Qt::Key_Delete)}));
    case ActionButton::None:
        break;
    }
    return {};
}

void LMFormatDataView::setNeedsDisplay() {
    if (QWidget* host = d->host.data())
        host->update(d->geometry);
}

bool LMFormatDataView::highlighted() const {
    return d->mouseIn || selected();
}

void LMFormatDataView::drawRect(QPainter* painter, const QColor& fill) const {
    if (!highlighted())
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    QPainterPath background;
    background.addRoundedRect(QRectF(rect()).adjusted(kHighlightInset, kHighlightInset,
                                                      -kHighlightInset, -kHighlightInset),
                              kHighlightRadius, kHighlightRadius);
    painter->fillPath(background, fill);
    painter->restore();
}

LMFormatInternationalizationMgr* LMFormatDataView::lizationMgr() const {
    return LMFormatInternationalizationMgr::sharedObject();
}
