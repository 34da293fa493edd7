// SPDX-License-Identifier: MIT
#include "LMFormatRowButtonAccessible.h"

#include "LMFormatInternationalizationMgr.h"
#include "LMFormatRowAccessible.h"

LMFormatRowButtonAccessible::LMFormatRowButtonAccessible(const LMFormatRowAccessible* row,
                                                         LMFormatDataView::ActionButton button)
    : m_row(row), m_button(button) {}

LMFormatDataView::ActionButton LMFormatRowButtonAccessible::button() const {
    return m_button;
}

bool LMFormatRowButtonAccessible::isValid() const {
    return m_row->isValid() && m_row->offers(m_button);
}

QObject* LMFormatRowButtonAccessible::object() const {
    return nullptr;
}

QWindow* LMFormatRowButtonAccessible::window() const {
    return m_row->window();
}

QAccessibleInterface* LMFormatRowButtonAccessible::parent() const {
    // The row is registered in Qt's cache, and outlives its buttons there.
    return const_cast<LMFormatRowAccessible*>(m_row);
}

QAccessibleInterface* LMFormatRowButtonAccessible::child(int index) const {
    (void)index;
    return nullptr;
}

int LMFormatRowButtonAccessible::childCount() const {
    return 0;
}

int LMFormatRowButtonAccessible::indexOfChild(const QAccessibleInterface* child) const {
    (void)child;
    return -1;
}

QAccessibleInterface* LMFormatRowButtonAccessible::childAt(int x, int y) const {
    (void)x;
    (void)y;
    return nullptr;
}

QString LMFormatRowButtonAccessible::text(QAccessible::Text t) const {
    switch (t) {
    case QAccessible::Name:
        return LMFormatInternationalizationMgr::sharedObject()->stringForKey(
            m_button == LMFormatDataView::ActionButton::Edit
                ? LMFormatRowAccessible::editAction()
                : LMFormatRowAccessible::removeAction());
    case QAccessible::Description:
        return LMFormatDataView::actionButtonToolTip(m_button);
    default:
        return {};
    }
}

void LMFormatRowButtonAccessible::setText(QAccessible::Text t, const QString& text) {
    // The buttons' texts follow the language.
    (void)t;
    (void)text;
}

QRect LMFormatRowButtonAccessible::rect() const {
    return m_row->buttonRect(m_button);
}

QAccessible::Role LMFormatRowButtonAccessible::role() const {
    return QAccessible::PushButton;
}

QAccessible::State LMFormatRowButtonAccessible::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const QAccessible::State row = m_row->state();
    state.offscreen = row.offscreen;
    state.invisible = row.invisible;
    return state;
}

void* LMFormatRowButtonAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
}

QStringList LMFormatRowButtonAccessible::actionNames() const {
    return {pressAction()};
}

void LMFormatRowButtonAccessible::doAction(const QString& actionName) {
    if (actionName == pressAction())
        m_row->press(m_button);
}

QStringList LMFormatRowButtonAccessible::keyBindingsForAction(const QString& actionName) const {
    // The keys of the row's action of the same name.
    if (actionName != pressAction())
        return {};
    return m_row->keyBindingsForAction(m_button == LMFormatDataView::ActionButton::Edit
                                           ? LMFormatRowAccessible::editAction()
                                           : LMFormatRowAccessible::removeAction());
}
