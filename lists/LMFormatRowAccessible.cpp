// SPDX-License-Identifier: MIT
#include "LMFormatRowAccessible.h"

#include "LMFormatCollectionView.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMFormatRowButtonAccessible.h"
#include "LMKeyText.h"

#include <QItemSelectionModel>
#include <QWidget>

using ActionButton = LMFormatDataView::ActionButton;

namespace {

QString Localized(const QString& key) {
    return LMFormatInternationalizationMgr::sharedObject()->stringForKey(key);
}

std::size_t Slot(ActionButton button) {
    return button == ActionButton::Edit ? 0 : 1;
}

} // namespace

LMFormatRowAccessible::LMFormatRowAccessible(LMFormatCollectionView* view, const QModelIndex& index)
    : m_view(view), m_index(index) {}

LMFormatRowAccessible::~LMFormatRowAccessible() {
    for (const QAccessible::Id id : m_buttonIds) {
        if (id != 0)
            QAccessible::deleteAccessibleInterface(id);
    }
}

QString LMFormatRowAccessible::chooseAction() {
    return QStringLiteral("Choose");
}

QString LMFormatRowAccessible::editAction() {
    return QStringLiteral("Edit");
}

QString LMFormatRowAccessible::removeAction() {
    return QStringLiteral("Remove");
}

int LMFormatRowAccessible::row() const {
    return isValid() ? m_index.row() : -1;
}

LMFormatCollectionView* LMFormatRowAccessible::view() const {
    return m_view;
}

bool LMFormatRowAccessible::isValid() const {
    return m_view && m_index.isValid();
}

QObject* LMFormatRowAccessible::object() const {
    return nullptr;
}

QWindow* LMFormatRowAccessible::window() const {
    return m_view ? m_view->window()->windowHandle() : nullptr;
}

QAccessibleInterface* LMFormatRowAccessible::parent() const {
    return m_view ? QAccessible::queryAccessibleInterface(m_view.data()) : nullptr;
}

bool LMFormatRowAccessible::offers(ActionButton button) const {
    if (!isValid())
        return false;
    switch (button) {
    case ActionButton::Edit:
        return m_view->canEditItemAtIndexPath(m_index.row());
    case ActionButton::Remove:
        return m_view->canRemoveItemAtIndexPath(m_index.row());
    case ActionButton::None:
        break;
    }
    return false;
}

QList<ActionButton> LMFormatRowAccessible::buttons() const {
    QList<ActionButton> offered;
    for (const ActionButton button : {ActionButton::Edit, ActionButton::Remove}) {
        if (offers(button))
            offered.append(button);
    }
    return offered;
}

void LMFormatRowAccessible::press(ActionButton button) const {
    if (!offers(button))
        return;
    act([button](LMFormatCollectionView* view, int row) {
        if (button == ActionButton::Edit)
            view->editItemAtIndexPath(row);
        else
            view->removeItemAtIndexPath(row);
    });
}

void LMFormatRowAccessible::act(std::function<void(LMFormatCollectionView*, int)> work) const {
    // An action answers at once and is done afterwards, from the event loop:
    // editing opens a modal editor, and the caller (a screen reader, over
    // D-Bus) would otherwise wait for its answer until the editor closes. The
    // row may be gone by then, and then nothing is done.
    QMetaObject::invokeMethod(
        m_view.data(),
        [view = m_view, index = m_index, work = std::move(work)] {
            if (view && index.isValid())
                work(view.data(), index.row());
        },
        Qt::QueuedConnection);
}

QRect LMFormatRowAccessible::buttonRect(ActionButton button) const {
    if (!isValid())
        return {};
    const QRect local = m_view->actionButtonRect(m_index.row(), button);
    return local.isEmpty() ? QRect()
                           : QRect(m_view->viewport()->mapToGlobal(local.topLeft()), local.size());
}

QAccessibleInterface* LMFormatRowAccessible::buttonInterface(ActionButton button) const {
    QAccessible::Id& id = m_buttonIds.at(Slot(button));
    if (id == 0)
        id =
            QAccessible::registerAccessibleInterface(new LMFormatRowButtonAccessible(this, button));
    return QAccessible::accessibleInterface(id);
}

int LMFormatRowAccessible::childCount() const {
    return static_cast<int>(buttons().size());
}

QAccessibleInterface* LMFormatRowAccessible::child(int index) const {
    const QList<ActionButton> offered = buttons();
    return index >= 0 && index < offered.size() ? buttonInterface(offered.at(index)) : nullptr;
}

int LMFormatRowAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto* button = dynamic_cast<const LMFormatRowButtonAccessible*>(child);
    return button ? static_cast<int>(buttons().indexOf(button->button())) : -1;
}

QAccessibleInterface* LMFormatRowAccessible::childAt(int x, int y) const {
    for (const ActionButton button : buttons()) {
        if (buttonRect(button).contains(x, y))
            return buttonInterface(button);
    }
    return nullptr;
}

QString LMFormatRowAccessible::text(QAccessible::Text t) const {
    if (!isValid())
        return {};
    switch (t) {
    case QAccessible::Name:
        return m_index.data(Qt::DisplayRole).toString();
    case QAccessible::Description:
        return m_index.data(Qt::AccessibleDescriptionRole).toString();
    default:
        return {};
    }
}

void LMFormatRowAccessible::setText(QAccessible::Text t, const QString& text) {
    // A row's texts are its entry's.
    (void)t;
    (void)text;
}

QRect LMFormatRowAccessible::rect() const {
    if (!isValid())
        return {};
    const QRect local = m_view->visualRect(m_index);
    return QRect(m_view->viewport()->mapToGlobal(local.topLeft()), local.size());
}

QAccessible::Role LMFormatRowAccessible::role() const {
    return QAccessible::ListItem;
}

QAccessible::State LMFormatRowAccessible::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.selectable = true;
    state.focusable = true;
    state.selected = m_view->selectionModel()->isRowSelected(m_index.row(), QModelIndex());
    state.focused = m_view->hasFocus() && m_view->currentIndex() == m_index;
    const QRect local = m_view->visualRect(m_index);
    state.offscreen = !local.intersects(m_view->viewport()->rect());
    state.invisible = !m_view->isVisible();
    return state;
}

void* LMFormatRowAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
}

QStringList LMFormatRowAccessible::actionNames() const {
    QStringList names{chooseAction()};
    for (const ActionButton button : buttons())
        names << (button == ActionButton::Edit ? editAction() : removeAction());
    return names;
}

QString LMFormatRowAccessible::localizedActionName(const QString& actionName) const {
    return Localized(actionName);
}

QString LMFormatRowAccessible::localizedActionDescription(const QString& actionName) const {
    // The buttons' tool tips name the keys that do the same.
    if (actionName == editAction())
        return LMFormatDataView::actionButtonToolTip(ActionButton::Edit);
    if (actionName == removeAction())
        return LMFormatDataView::actionButtonToolTip(ActionButton::Remove);
    return Localized(actionName);
}

void LMFormatRowAccessible::doAction(const QString& actionName) {
    if (!isValid())
        return;
    if (actionName == chooseAction())
        act([](LMFormatCollectionView* view, int row) { view->chooseItemAtIndexPath(row); });
    else if (actionName == editAction())
        press(ActionButton::Edit);
    else if (actionName == removeAction())
        press(ActionButton::Remove);
}

QStringList LMFormatRowAccessible::keyBindingsForAction(const QString& actionName) const {
    if (actionName == chooseAction())
        return {LMKeyText::names({QKeyCombination(Qt::Key_Return)})};
    if (actionName == editAction())
        return {LMKeyText::names({QKeyCombination(Qt::Key_F2)})};
    if (actionName == removeAction())
        return {LMKeyText::names({QKeyCombination(Qt::Key_Delete)})};
    return {};
}
