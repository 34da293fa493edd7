// SPDX-License-Identifier: MIT
#pragma once

#include "LMFormatDataView.h"

#include <QAccessibleInterface>
#include <QPersistentModelIndex>
#include <QPointer>

#include <array>
#include <functional>

class LMFormatCollectionView;

// One row of a format list, as assistive technology sees it: a list item named
// by its title and described by its description, selected and focused as the
// list shows it. Its actions are the user's: Choose (as a click or Enter),
// Edit and Remove where the row offers them (as its buttons or F2 and
// Delete), and its edit and remove buttons are its children. The row follows
// its entry while rows before it come and go; once the entry is gone it is no
// longer valid.
class LMFormatRowAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    LMFormatRowAccessible(LMFormatCollectionView* view, const QModelIndex& index);
    ~LMFormatRowAccessible() override;
    LMFormatRowAccessible(const LMFormatRowAccessible&) = delete;
    LMFormatRowAccessible& operator=(const LMFormatRowAccessible&) = delete;

    // The row's number now; -1 once its entry is gone.
    int row() const;
    LMFormatCollectionView* view() const;
    // The button's rectangle on the screen; empty when the row offers none.
    QRect buttonRect(LMFormatDataView::ActionButton button) const;
    // Whether the row offers the button now.
    bool offers(LMFormatDataView::ActionButton button) const;
    // As a click on the button, soon after (see act()).
    void press(LMFormatDataView::ActionButton button) const;

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
    QString localizedActionName(const QString& actionName) const override;
    QString localizedActionDescription(const QString& actionName) const override;
    void doAction(const QString& actionName) override;
    QStringList keyBindingsForAction(const QString& actionName) const override;

    // The names of the row's actions, whatever the language on screen.
    static QString chooseAction();
    static QString editAction();
    static QString removeAction();

private:
    // The buttons the row offers now, edit before remove.
    QList<LMFormatDataView::ActionButton> buttons() const;
    QAccessibleInterface* buttonInterface(LMFormatDataView::ActionButton button) const;
    // Runs work on the list and the row's number from the event loop, if the
    // row is still there.
    void act(std::function<void(LMFormatCollectionView*, int)> work) const;

    QPointer<LMFormatCollectionView> m_view;
    QPersistentModelIndex m_index;
    // The buttons' interfaces, made when first asked for, owned by Qt's cache
    // of interfaces and removed from it with the row.
    mutable std::array<QAccessible::Id, 2> m_buttonIds{};
};
