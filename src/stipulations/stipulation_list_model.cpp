#include "stipulations/stipulation_list_model.h"

#include "datafiles/code_page.h"
#include "datafiles/stipulation_table.h"

namespace tarvold {

using namespace Qt::StringLiterals;

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
    // Far more than fits in a row: Qt takes seconds to measure a text of some megabytes.
    constexpr qsizetype kMostShown = 5000;
    // The view also asks for an invalid index, when the user copies and no row is selected.
    if (role != Qt::DisplayRole || !index.isValid()) {
        return {};
    }
    const QByteArray whole = entry(index.row());
    if (whole.size() <= kMostShown) {
        return codepage::decode(whole);
    }
    return QString(codepage::decode(QByteArrayView(whole).first(kMostShown)) + u" [...]"_s);
}

} // namespace tarvold
