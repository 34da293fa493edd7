// SPDX-License-Identifier: MIT
#include "LMFormatListAccessible.h"

#include "LMFormatCollectionModel.h"
#include "LMFormatCollectionView.h"
#include "LMFormatRowAccessible.h"

#include <mutex>

namespace {

QAccessibleInterface* MakeListInterface(const QString& className, QObject* object) {
    (void)className;
    if (auto* view = qobject_cast<LMFormatCollectionView*>(object))
        return new LMFormatListAccessible(view);
    return nullptr;
}

} // namespace

LMFormatListAccessible::LMFormatListAccessible(LMFormatCollectionView* view)
    : QAccessibleWidget(view, QAccessible::List) {
    // Rows that come or go renumber the rows after them; the rows are filed
    // again when next asked for.
    const QAbstractItemModel* model = view->collectionModel();
    const auto moved = [this] { m_refile = true; };
    m_modelConnections = {QObject::connect(model, &QAbstractItemModel::rowsRemoved, view, moved),
                          QObject::connect(model, &QAbstractItemModel::rowsInserted, view, moved),
                          QObject::connect(model, &QAbstractItemModel::rowsMoved, view, moved),
                          QObject::connect(model, &QAbstractItemModel::modelReset, view, moved),
                          QObject::connect(model, &QAbstractItemModel::layoutChanged, view, moved)};
}

LMFormatListAccessible::~LMFormatListAccessible() {
    for (const QMetaObject::Connection& connection : m_modelConnections)
        QObject::disconnect(connection);
    for (const auto& entry : m_rows)
        QAccessible::deleteAccessibleInterface(entry.second);
}

void LMFormatListAccessible::installFactory() {
    static std::once_flag once;
    std::call_once(once, [] { QAccessible::installFactory(MakeListInterface); });
}

LMFormatCollectionView* LMFormatListAccessible::view() const {
    return static_cast<LMFormatCollectionView*>(widget());
}

int LMFormatListAccessible::childCount() const {
    return view()->collectionModel()->rowCount();
}

QAccessibleInterface* LMFormatListAccessible::child(int index) const {
    if (index < 0 || index >= childCount())
        return nullptr;
    if (m_refile) {
        refile();
        m_refile = false;
    }
    auto found = m_rows.find(index);
    if (found != m_rows.end()) {
        const auto* row =
            static_cast<LMFormatRowAccessible*>(QAccessible::accessibleInterface(found->second));
        if (row && row->row() == index)
            return QAccessible::accessibleInterface(found->second);
        refile();
        found = m_rows.find(index);
        if (found != m_rows.end())
            return QAccessible::accessibleInterface(found->second);
    }
    auto* row = new LMFormatRowAccessible(view(), view()->collectionModel()->index(index));
    m_rows[index] = QAccessible::registerAccessibleInterface(row);
    return row;
}

void LMFormatListAccessible::refile() const {
    std::map<int, QAccessible::Id> refiled;
    for (const auto& [number, id] : m_rows) {
        const auto* row = static_cast<LMFormatRowAccessible*>(QAccessible::accessibleInterface(id));
        const int now = row ? row->row() : -1;
        if (now < 0 || refiled.count(now) != 0)
            QAccessible::deleteAccessibleInterface(id);
        else
            refiled[now] = id;
    }
    m_rows = std::move(refiled);
}

int LMFormatListAccessible::indexOfChild(const QAccessibleInterface* child) const {
    if (!child || child->role() != QAccessible::ListItem)
        return -1;
    const auto* row = dynamic_cast<const LMFormatRowAccessible*>(child);
    if (!row)
        return -1;
    return row->view() == view() ? row->row() : -1;
}

QAccessibleInterface* LMFormatListAccessible::childAt(int x, int y) const {
    const QPoint pos = view()->viewport()->mapFromGlobal(QPoint(x, y));
    const QModelIndex index = view()->indexAt(pos);
    return index.isValid() ? child(index.row()) : nullptr;
}

QAccessibleInterface* LMFormatListAccessible::focusChild() const {
    const QModelIndex current = view()->currentIndex();
    return view()->hasFocus() && current.isValid() ? child(current.row()) : nullptr;
}

QAccessible::State LMFormatListAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.selectable = true;
    return state;
}
