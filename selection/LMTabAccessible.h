// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

class LMTabButton;

// A tab of the strip as assistive technology sees it: a page tab, selected
// while its category shows, that switches to its category when pressed, as a
// click does. Qt would show the checkable button as a check box. The strip's
// tabs sit together in one list of page tabs, so a screen reader can say "tab
// 2 of 6".
class LMTabAccessible : public QAccessibleWidget {
public:
    explicit LMTabAccessible(LMTabButton* tab);

    // Makes every tab and the strip's tab area answer as above; once per
    // process, from the thread of the widgets.
    static void installFactory();

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;
    QStringList keyBindingsForAction(const QString& actionName) const override;

private:
    LMTabButton* tab() const;
};
