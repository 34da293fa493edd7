// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>

namespace Lumeran {

// Three-way merge of a stored list that two processes changed: base is the value
// this process read (or last wrote), theirs what another process saved since,
// ours what this process is about to save. Entries are compared by their whole
// JSON form, so an entry changed in place counts as one removed and one added.
// What either side added is kept and what either side removed stays removed.
class LMStoredListMerge {
public:
    // The recent tree: children are entries, oldest first. Entries this process
    // selected since base stay the newest, in the order it selected them.
    static QJsonObject MergeRecent(const QJsonObject& base, const QJsonObject& theirs,
                                   const QJsonObject& ours);
    // The custom tree: children are groups named by title, their presets the
    // entries. An entry added here joins its group in theirs, or a new group at
    // the end; a group left without presets disappears.
    static QJsonObject MergeCustom(const QJsonObject& base, const QJsonObject& theirs,
                                   const QJsonObject& ours);
};

} // namespace Lumeran
