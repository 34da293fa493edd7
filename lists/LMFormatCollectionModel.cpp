#include "LMFormatCollectionModel.h"

LMFormatCollectionModel::LMFormatCollectionModel(CountProvider count, DataProvider data,
                                                 QObject* parent)
    : QAbstractListModel(parent), m_count(std::move(count)), m_data(std::move(data)) {}

LMFormatCollectionModel::~LMFormatCollectionModel() = default;

int LMFormatCollectionModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

QVariant LMFormatCollectionModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    int row = index.row();
    // While a row goes, the rows after it still have their old numbers here but
    // their entries already moved up in the controller.
    if (m_removing >= 0) {
        if (row == m_removing)
            return {};
        if (row > m_removing)
            --row;
    }
    return m_data ? m_data(row, role) : QVariant();
}

Qt::ItemFlags LMFormatCollectionModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

void LMFormatCollectionModel::reload() {
    beginResetModel();
    m_rows = m_count ? qMax(0, m_count()) : 0;
    endResetModel();
}

void LMFormatCollectionModel::removeItemAt(int row) {
    if (row < 0 || row >= m_rows)
        return;
    m_removing = row;
    beginRemoveRows(QModelIndex(), row, row);
    --m_rows;
    m_removing = -1;
    endRemoveRows();
}

void LMFormatCollectionModel::refreshAll() {
    if (m_rows > 0)
        Q_EMIT dataChanged(index(0), index(m_rows - 1));
}
