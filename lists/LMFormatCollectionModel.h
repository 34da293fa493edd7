// SPDX-License-Identifier: MIT
#pragma once

#include "LMFormatEntry.h"

#include <QAbstractListModel>

#include <functional>
#include <memory>
#include <vector>

// The model behind a format list. Each row is an entry (LMFormatEntry) asked of
// the list's controller the first time the row is read, and kept with its title,
// description and image, so a list of ten thousand entries works out only the
// rows that are shown or read. The count is kept between changes, because a
// controller changes its data first and tells the list afterwards, as a
// collection view's data source does. When the host's FFmpeg answers which
// presets it can run (LMFFmpegAvailability), every row is read again.
class LMFormatCollectionModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        // The description, whether or not the row shows it.
        DescriptionRole = Qt::UserRole + 1,
        // bool: the row shows its description under the title.
        VisibleDescriptionRole,
        // Why the host's FFmpeg cannot run the row's preset and what to pick
        // instead (also the row's tool tip and accessible description); empty
        // when it can, when it is not known, or when the host named no FFmpeg.
        UnavailableRole,
    };

    using CountProvider = std::function<int()>;
    using EntryProvider = std::function<LMFormatEntry(int row)>;

    LMFormatCollectionModel(CountProvider count, EntryProvider entry, QObject* parent = nullptr);
    ~LMFormatCollectionModel() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    // Reads the count again and resets every row.
    void reload();
    // The controller already dropped the entry at row; the rows after it move up.
    void removeItemAt(int row);
    // Every row's texts may read differently (a new language).
    void refreshAll();
    // Drops what is kept of row, which is read again when next asked for
    // (a row that went out of view).
    void forgetRow(int row);

private:
    struct Row;
    const Row* rowAt(int row) const;

    CountProvider m_count;
    EntryProvider m_entry;
    int m_rows = 0;
    // The row being removed, between the announcement and the count's change.
    int m_removing = -1;
    // Rows read so far, by row number; the others are null.
    mutable std::vector<std::unique_ptr<Row>> m_cache;
};
