// SPDX-License-Identifier: MIT
#include "LMStoredListMerge.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <map>
#include <set>
#include <vector>

namespace Lumeran {

namespace {

using Counts = std::map<QByteArray, int>;

const QLatin1StringView kChildren("children");
const QLatin1StringView kPresets("presets");
const QLatin1StringView kTitle("title");

// A canonical text of any JSON value: QJsonObject keeps its keys sorted.
QByteArray Key(const QJsonValue& value) {
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
}

QByteArray GroupEntryKey(const QString& group, const QJsonValue& preset) {
    return group.toUtf8() + '\n' + Key(preset);
}

// a minus b, as multisets.
Counts Minus(const std::vector<QByteArray>& a, const std::vector<QByteArray>& b) {
    Counts counts;
    for (const QByteArray& key : a)
        ++counts[key];
    for (const QByteArray& key : b) {
        if (const auto found = counts.find(key); found != counts.end() && --found->second == 0)
            counts.erase(found);
    }
    return counts;
}

// Takes one of key out of counts; true when there was one.
bool Take(Counts& counts, const QByteArray& key) {
    const auto found = counts.find(key);
    if (found == counts.end())
        return false;
    if (--found->second == 0)
        counts.erase(found);
    return true;
}

std::vector<QByteArray> Keys(const QJsonArray& array) {
    std::vector<QByteArray> keys;
    keys.reserve(static_cast<std::size_t>(array.size()));
    for (const QJsonValue& value : array)
        keys.push_back(Key(value));
    return keys;
}

QJsonObject WithList(QJsonObject object, QLatin1StringView name, const QJsonArray& list) {
    if (list.isEmpty())
        object.remove(name);
    else
        object.insert(name, list);
    return object;
}

bool IsGroup(const QJsonValue& value) {
    return value.isObject() && value.toObject().value(kTitle).isString();
}

// Every entry of a custom tree: a preset under its group's title, or a child that
// is no group at all (kept whole, under an empty title).
std::vector<QByteArray> CustomEntries(const QJsonObject& root) {
    std::vector<QByteArray> entries;
    for (const QJsonValue& child : root.value(kChildren).toArray()) {
        if (!IsGroup(child)) {
            entries.push_back(GroupEntryKey(QString(), child));
            continue;
        }
        const QJsonObject group = child.toObject();
        const QString title = group.value(kTitle).toString();
        for (const QJsonValue& preset : group.value(kPresets).toArray())
            entries.push_back(GroupEntryKey(title, preset));
    }
    return entries;
}

// Theirs, less what we removed, in their order.
std::vector<QJsonValue> WithoutRemoved(const QJsonObject& theirs, Counts& removedByUs) {
    std::vector<QJsonValue> children;
    for (const QJsonValue& child : theirs.value(kChildren).toArray()) {
        if (!IsGroup(child)) {
            if (!Take(removedByUs, GroupEntryKey(QString(), child)))
                children.push_back(child);
            continue;
        }
        QJsonObject group = child.toObject();
        const QString title = group.value(kTitle).toString();
        QJsonArray presets;
        for (const QJsonValue& preset : group.value(kPresets).toArray()) {
            if (!Take(removedByUs, GroupEntryKey(title, preset)))
                presets.append(preset);
        }
        group.insert(kPresets, presets);
        children.push_back(group);
    }
    return children;
}

// Appends preset to the group titled like ourGroup, made (with ourGroup's other
// fields) at the end when there is none.
void AddToGroup(std::vector<QJsonValue>& children, const QJsonObject& ourGroup,
                const QJsonValue& preset) {
    const QString title = ourGroup.value(kTitle).toString();
    auto group = std::find_if(children.begin(), children.end(), [&](const QJsonValue& g) {
        return IsGroup(g) && g.toObject().value(kTitle).toString() == title;
    });
    if (group == children.end()) {
        QJsonObject fresh = ourGroup;
        fresh.insert(kPresets, QJsonArray());
        children.push_back(fresh);
        group = children.end() - 1;
    }
    QJsonObject updated = group->toObject();
    QJsonArray presets = updated.value(kPresets).toArray();
    presets.append(preset);
    updated.insert(kPresets, presets);
    *group = updated;
}

// Plus what we added, in our order.
void AddOurs(std::vector<QJsonValue>& children, const QJsonObject& ours, Counts& addedByUs) {
    for (const QJsonValue& child : ours.value(kChildren).toArray()) {
        if (!IsGroup(child)) {
            if (Take(addedByUs, GroupEntryKey(QString(), child)))
                children.push_back(child);
            continue;
        }
        const QJsonObject ourGroup = child.toObject();
        const QString title = ourGroup.value(kTitle).toString();
        for (const QJsonValue& preset : ourGroup.value(kPresets).toArray()) {
            if (Take(addedByUs, GroupEntryKey(title, preset)))
                AddToGroup(children, ourGroup, preset);
        }
    }
}

// A group whose presets are all gone disappears, as it does in memory.
QJsonArray WithoutEmptyGroups(const std::vector<QJsonValue>& children) {
    QJsonArray result;
    for (const QJsonValue& child : children) {
        if (!IsGroup(child) || !child.toObject().value(kPresets).toArray().isEmpty())
            result.append(child);
    }
    return result;
}

} // namespace

QJsonObject LMStoredListMerge::MergeRecent(const QJsonObject& base, const QJsonObject& theirs,
                                           const QJsonObject& ours) {
    const std::vector<QByteArray> baseKeys = Keys(base.value(kChildren).toArray());
    const QJsonArray ourList = ours.value(kChildren).toArray();
    const std::vector<QByteArray> ourKeys = Keys(ourList);
    Counts removedByUs = Minus(baseKeys, ourKeys);
    // Our list is the base, less what we removed or selected again, followed by
    // what we selected since: the longest head of it that keeps the base's order
    // is what we left in place; the rest are our selections.
    std::size_t kept = 0;
    for (std::size_t j = 0; kept < ourKeys.size() && j < baseKeys.size(); ++j) {
        if (baseKeys[j] == ourKeys[kept])
            ++kept;
    }
    std::set<QByteArray> selected(ourKeys.begin() + static_cast<std::ptrdiff_t>(kept),
                                  ourKeys.end());
    QJsonArray result;
    for (const QJsonValue& entry : theirs.value(kChildren).toArray()) {
        const QByteArray key = Key(entry);
        if (selected.count(key) || Take(removedByUs, key))
            continue;
        result.append(entry);
    }
    for (std::size_t i = kept; i < ourKeys.size(); ++i)
        result.append(ourList.at(static_cast<qsizetype>(i)));
    return WithList(ours, kChildren, result);
}

QJsonObject LMStoredListMerge::MergeCustom(const QJsonObject& base, const QJsonObject& theirs,
                                           const QJsonObject& ours) {
    const std::vector<QByteArray> baseEntries = CustomEntries(base);
    const std::vector<QByteArray> ourEntries = CustomEntries(ours);
    Counts removedByUs = Minus(baseEntries, ourEntries);
    Counts addedByUs = Minus(ourEntries, baseEntries);
    std::vector<QJsonValue> children = WithoutRemoved(theirs, removedByUs);
    AddOurs(children, ours, addedByUs);
    return WithList(ours, kChildren, WithoutEmptyGroups(children));
}

} // namespace Lumeran
