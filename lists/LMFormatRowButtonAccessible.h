// SPDX-License-Identifier: MIT
#pragma once

#include "LMFormatDataView.h"

#include <QAccessibleInterface>

class LMFormatRowAccessible;

// The edit or remove button of a list row, as assistive technology sees it: a
// push button named in the current language, described by its tool tip (which
// names its keys), that does what a click on it does. The buttons are drawn on
// the row only while the pointer is over it, but a screen reader's user has no
// pointer: they are always there for it, where they would be drawn.
class LMFormatRowButtonAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    LMFormatRowButtonAccessible(const LMFormatRowAccessible* row,
                                LMFormatDataView::ActionButton button);

    LMFormatDataView::ActionButton button() const;

    bool isValid() const override;
    QObject* object() const override;
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QString text(QAccessible::Text t) const override;
    void setText(QAccessible::Text t, const QString& text) override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;
    QStringList keyBindingsForAction(const QString& actionName) const override;

private:
    const LMFormatRowAccessible* m_row;
    LMFormatDataView::ActionButton m_button;
};
