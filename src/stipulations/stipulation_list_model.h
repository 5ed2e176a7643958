#pragma once

#include <QAbstractListModel>

#include <vector>

namespace tarvold {

class StipulationTable;

/// Shows stipulations as a list, each as its match type and name; makes texts only for the
/// visible rows, so that the length of the list does not matter.
class StipulationListModel : public QAbstractListModel
{
    Q_OBJECT
public:
    /// \param table kept by the caller for as long as the model lives
    StipulationListModel(const StipulationTable &table, QObject *parent);

    /// Lists the stipulations that start at these indexes of the table.
    void show(std::vector<int> records);

    /// The text of a row, as bytes of the file.
    QByteArray entry(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    const StipulationTable &m_table;
    std::vector<int> m_records;
};

} // namespace tarvold
