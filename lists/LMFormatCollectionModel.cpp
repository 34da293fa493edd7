// SPDX-License-Identifier: MIT
#include "LMFormatCollectionModel.h"

#include "LMFFmpegAvailability.h"
#include "LMFormatInternationalizationMgr.h"

#include <optional>

namespace {

QString Localized(const std::string& key) {
    return LMFormatInternationalizationMgr::sharedObject()->stringForKey(
        QString::fromStdString(key));
}

// "This FFmpeg has no libx265 encoder — try MP4 High Quality", in the popup's
// language; empty when the entry's preset can be run or nobody knows.
QString UnavailableText(const LMFormatEntry& entry) {
    auto* availability = LMFFmpegAvailability::shared();
    if (!availability->isActive())
        return {};
    auto preset = entry.preset();
    if (!preset && entry.recentItem())
        preset = entry.recentItem()->FormatPreset();
    if (!preset)
        return {};
    const auto found = availability->availability(preset);
    if (!found.IsMissing())
        return {};
    const bool muxer = found.missingKind == "muxer";
    const QString name = QString::fromStdString(found.missingName);
    if (!found.alternative)
        return (muxer ? Localized("This FFmpeg has no %1 muxer")
                      : Localized("This FFmpeg has no %1 encoder"))
            .arg(name);
    QString instead = Localized(found.alternative->Title());
    if (found.alternativeNode)
        instead = Localized(found.alternativeNode->Title()) + QLatin1Char(' ') + instead;
    return (muxer ? Localized("This FFmpeg has no %1 muxer — try %2")
                  : Localized("This FFmpeg has no %1 encoder — try %2"))
        .arg(name, instead);
}

} // namespace

struct LMFormatCollectionModel::Row {
    explicit Row(LMFormatEntry source)
        : entry(std::move(source)), title(entry.title()), description(entry.description()),
          unavailable(UnavailableText(entry)) {}

    // The image is worked out only when a row is drawn or asked for it.
    const QIcon& icon() const {
        if (!image)
            image = entry.image();
        return *image;
    }

    LMFormatEntry entry;
    QString title;
    QString description;
    QString unavailable;
    mutable std::optional<QIcon> image;
};

LMFormatCollectionModel::LMFormatCollectionModel(CountProvider count, EntryProvider entry,
                                                 QObject* parent)
    : QAbstractListModel(parent), m_count(std::move(count)), m_entry(std::move(entry)) {
    connect(LMFFmpegAvailability::shared(), &LMFFmpegAvailability::availabilityChanged, this,
            &LMFormatCollectionModel::refreshAll);
}

LMFormatCollectionModel::~LMFormatCollectionModel() = default;

int LMFormatCollectionModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

const LMFormatCollectionModel::Row* LMFormatCollectionModel::rowAt(int row) const {
    if (static_cast<std::size_t>(row) >= m_cache.size())
        m_cache.resize(static_cast<std::size_t>(m_rows));
    std::unique_ptr<Row>& cached = m_cache[static_cast<std::size_t>(row)];
    if (cached)
        return cached.get();
    // While a row goes, the rows after it still have their old numbers here but
    // their entries already moved up in the controller.
    int source = row;
    if (m_removing >= 0) {
        if (row == m_removing)
            return nullptr;
        if (row > m_removing)
            --source;
    }
    cached = std::make_unique<Row>(m_entry ? m_entry(source) : LMFormatEntry());
    return cached.get();
}

QVariant LMFormatCollectionModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
    case Qt::DecorationRole:
    case Qt::AccessibleTextRole:
    case Qt::AccessibleDescriptionRole:
    case DescriptionRole:
    case VisibleDescriptionRole:
    case UnavailableRole:
        break;
    default:
        return {};
    }
    const Row* row = rowAt(index.row());
    if (!row)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return row->title;
    case Qt::ToolTipRole:
        if (!row->unavailable.isEmpty())
            return row->unavailable;
        return row->description.isEmpty() ? QVariant() : QVariant(row->description);
    case Qt::DecorationRole:
        return row->icon();
    case Qt::AccessibleTextRole:
        return row->description.isEmpty() ? row->title
                                          : row->title + QStringLiteral(", ") + row->description;
    case Qt::AccessibleDescriptionRole:
        return row->unavailable.isEmpty() ? row->description : row->unavailable;
    case DescriptionRole:
        return row->description;
    case UnavailableRole:
        return row->unavailable;
    case VisibleDescriptionRole:
        return row->entry.visibleDescription();
    default:
        return {};
    }
}

Qt::ItemFlags LMFormatCollectionModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

void LMFormatCollectionModel::reload() {
    beginResetModel();
    m_rows = m_count ? qMax(0, m_count()) : 0;
    m_cache.clear();
    endResetModel();
}

void LMFormatCollectionModel::removeItemAt(int row) {
    if (row < 0 || row >= m_rows)
        return;
    m_removing = row;
    beginRemoveRows(QModelIndex(), row, row);
    --m_rows;
    if (static_cast<std::size_t>(row) < m_cache.size())
        m_cache.erase(m_cache.begin() + row);
    m_removing = -1;
    endRemoveRows();
}

void LMFormatCollectionModel::refreshAll() {
    m_cache.clear();
    if (m_rows > 0)
        Q_EMIT dataChanged(index(0), index(m_rows - 1));
}

void LMFormatCollectionModel::forgetRow(int row) {
    if (row >= 0 && static_cast<std::size_t>(row) < m_cache.size())
        m_cache[static_cast<std::size_t>(row)].reset();
}
