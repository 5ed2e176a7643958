#include "stipulations/stipulation_list_model.h"

#include "datafiles/code_page.h"
#include "datafiles/stipulation_table.h"

namespace tarvold {

StipulationListModel::StipulationListModel(const StipulationTable &table, QObject *parent)
    : QAbstractListModel(parent)
    , m_table(table)
{
}

void StipulationListModel::show(std::vector<int> records)
{
    beginResetModel();
    m_records = std::move(records);
    endResetModel();
}

QByteArray StipulationListModel::entry(int row) const
{
    return m_table.displayText(m_records.at(static_cast<std::size_t>(row)));
}

int StipulationListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

QVariant StipulationListModel::data(const QModelIndex &index, int role) const
{
    return role == Qt::DisplayRole ? codepage::decode(entry(index.row())) : QVariant();
}

} // namespace tarvold
