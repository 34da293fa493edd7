// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

#include <map>
#include <vector>

class LMFormatCollectionView;
class LMFormatRowAccessible;

// A format list as assistive technology sees it: a list whose children are its
// rows (LMFormatRowAccessible), one per entry whether it is in view or not,
// made when first asked for. Qt's own list interface would offer a row only
// the "Toggle" of its selection; these rows are chosen, edited and removed as
// the user does it with the pointer or the keys.
class LMFormatListAccessible : public QAccessibleWidget {
public:
    explicit LMFormatListAccessible(LMFormatCollectionView* view);
    ~LMFormatListAccessible() override;
    LMFormatListAccessible(const LMFormatListAccessible&) = delete;
    LMFormatListAccessible& operator=(const LMFormatListAccessible&) = delete;

    // Makes every LMFormatCollectionView answer with this interface; once per
    // process, from the thread of the widgets.
    static void installFactory();

    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QAccessible::State state() const override;

private:
    LMFormatCollectionView* view() const;
    // Files the rows under their numbers again after rows before them came or
    // went, and lets go of rows whose entries are gone.
    void refile() const;

    // Row number to the id of its interface in Qt's cache, which owns it.
    mutable std::map<int, QAccessible::Id> m_rows;
    // Set when rows came or went since the rows were last filed.
    mutable bool m_refile = false;
    std::vector<QMetaObject::Connection> m_modelConnections;
};
