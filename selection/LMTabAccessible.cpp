// SPDX-License-Identifier: MIT
#include "LMTabAccessible.h"

#include "LMTabButton.h"
#include "LMTabHeaderView.h"

#include <mutex>

namespace {

QAccessibleInterface* MakeTabInterface(const QString& className, QObject* object) {
    (void)className;
    if (auto* tab = qobject_cast<LMTabButton*>(object))
        return new LMTabAccessible(tab);
    auto* header = object ? qobject_cast<LMTabHeaderView*>(object->parent()) : nullptr;
    if (header && header->tabArea() == object)
        return new QAccessibleWidget(header->tabArea(), QAccessible::PageTabList);
    return nullptr;
}

} // namespace

LMTabAccessible::LMTabAccessible(LMTabButton* tab) : QAccessibleWidget(tab, QAccessible::PageTab) {}

void LMTabAccessible::installFactory() {
    static std::once_flag once;
    std::call_once(once, [] { QAccessible::installFactory(MakeTabInterface); });
}

LMTabButton* LMTabAccessible::tab() const {
    return static_cast<LMTabButton*>(widget());
}

QAccessible::State LMTabAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.selectable = true;
    state.selected = tab()->isChecked();
    // Selection, not a check mark, is what a tab has.
    state.checkable = false;
    state.checked = false;
    return state;
}

QStringList LMTabAccessible::actionNames() const {
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
}

void LMTabAccessible::doAction(const QString& actionName) {
    if (actionName == pressAction())
        tab()->click();
    else
        QAccessibleWidget::doAction(actionName);
}

QStringList LMTabAccessible::keyBindingsForAction(const QString& actionName) const {
    if (actionName == pressAction())
        return {};
    return QAccessibleWidget::keyBindingsForAction(actionName);
}
