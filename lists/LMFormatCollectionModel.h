#pragma once

#include <QAbstractListModel>

#include <functional>

// The model behind a format list. It holds no entries of its own: the count and
// each row's data are asked of the list (which asks its controller), and the
// count is kept between changes, because a controller changes its data first and
// tells the list afterwards, as a collection view's data source does.
class LMFormatCollectionModel : public QAbstractListModel {
    Q_OBJECT

public:
    using CountProvider = std::function<int()>;
    using DataProvider = std::function<QVariant(int row, int role)>;

    LMFormatCollectionModel(CountProvider count, DataProvider data, QObject* parent = nullptr);
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

private:
    CountProvider m_count;
    DataProvider m_data;
    int m_rows = 0;
    // The row being removed, between the announcement and the count's change.
    int m_removing = -1;
};
