// What the list shows of a record.

#include "records/record_list_model.h"

#include "controls/contrast.h"
#include "records/document.h"
#include "records/preview.h"
#include "records/problem_scan.h"
#include "records/record_list_view.h"

#include <QApplication>
#include <QFont>
#include <QPalette>

#include <array>
#include <utility>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

/// The word for a state, and its colour where the background allows it.
struct StateRow
{
    EntryState state;
    const char *word;
    const char *colour;
};

constexpr std::array<StateRow, 5> kStates = {{
    {EntryState::Unchanged, "", "#000000"},
    {EntryState::Edited, "Edited", "#0b5cad"},
    {EntryState::Added, "Added", "#1a7431"},
    {EntryState::Moved, "Moved", "#7b3fa0"},
    {EntryState::Deleted, "Deleted", "#6b6b6b"},
}};
constexpr char kProblemColour[] = "#b3261e";

const StateRow &rowOfState(EntryState state)
{
    return kStates.at(std::size_t(state));
}

/// A colour that can be read on the list's background, be it light or dark.
QColor readable(const char *wanted)
{
    const QPalette palette = QApplication::palette();
    return contrast::visible(
        QColor(QLatin1StringView(wanted)),
        {palette.color(QPalette::Base), palette.color(QPalette::AlternateBase)}, contrast::kText);
}

QString problemWords(int count)
{
    return count == 0 ? QString() : count == 1 ? u"1 problem"_s : u"%1 problems"_s.arg(count);
}

/// Far more than fits into a row: Qt takes seconds to measure a text of some megabytes.
QString shortened(const QString &text)
{
    constexpr qsizetype kMostShown = 1000;
    return text.size() <= kMostShown ? text : QString(text.first(kMostShown) + u" [...]");
}

} // namespace

RecordListModel::RecordListModel(const Document &document, const ProblemScan &scan, QObject *parent)
    : QAbstractTableModel(parent)
    , m_document(document)
    , m_scan(scan)
{
    m_searchTimer.setInterval(0);
    m_sortTimer.setInterval(0);
    m_choiceTimer.setInterval(0);
    m_choiceTimer.setSingleShot(true);
    connect(&m_searchTimer, &QTimer::timeout, this, &RecordListModel::searchOn);
    connect(&m_sortTimer, &QTimer::timeout, this, &RecordListModel::sortOn);
    connect(&m_choiceTimer, &QTimer::timeout, this, &RecordListModel::reconsider);
    connect(&document, &Document::reset, this, &RecordListModel::noteReset);
    connect(&document, &Document::changed, this, &RecordListModel::noteChange);
    connect(&document, &Document::inserted, this, &RecordListModel::noteInsertion);
    connect(&document, &Document::removed, this, &RecordListModel::noteRemoval);
    connect(&document, &Document::saved, this, [this] { tellOfData(0, rowCount() - 1); });
    connect(&scan, &ProblemScan::found, this, &RecordListModel::noteProblems);
    connect(&scan, &ProblemScan::finished, this, [this] {
        if (std::exchange(m_isSortedTooSoon, false)) {
            sortAnew();
        }
    });
    noteReset();
}

int RecordListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int RecordListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : problemColumn() + 1;
}

QVariant RecordListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == RecordListView::kLongestText && section == State) {
        return QLatin1StringView(rowOfState(EntryState::Deleted).word);
    }
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section > problemColumn()) {
        return {};
    }
    if (section >= Telling && section < problemColumn()) {
        return m_telling.at(section - Telling);
    }
    return section == Number ? u"Number"_s : section == State ? u"Change"_s : u"Problems"_s;
}

QVariant RecordListModel::data(const QModelIndex &index, int role) const
{
    // The view also asks for an invalid index, and for a row that is about to go.
    const int record = index.isValid() ? indexAt(index.row()) : -1;
    if (record < 0) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        // Below its head a number is enough.
        return index.column() == problemColumn() && m_scan.countAt(record) > 0
                   ? QString::number(m_scan.countAt(record))
                   : textAt(record, index.column());
    case Qt::ForegroundRole:
        return colourOf(record, index.column());
    case Qt::FontRole:
        if (m_document.entry(record).isDeleted && index.column() != State) {
            QFont font = QApplication::font("QAbstractItemView");
            font.setStrikeOut(true);
            return font;
        }
        return {};
    case Qt::TextAlignmentRole:
        return index.column() == Number ? QVariant(int(Qt::AlignRight | Qt::AlignVCenter))
                                        : QVariant();
    case Qt::AccessibleTextRole:
        return index.column() == Number ? accessibleText(record) : textAt(record, index.column());
    default:
        return {};
    }
}

QString RecordListModel::textAt(int index, int column) const
{
    if (column == Number) {
        return QString::number(index + 1);
    }
    if (column == State) {
        return QLatin1StringView(rowOfState(m_document.stateOf(index)).word);
    }
    return column == problemColumn() ? problemWords(m_scan.countAt(index))
                                     : shortened(tellingTexts(index).value(column - Telling));
}

/// What a screen reader says first in a row: also what the eye sees in other columns at a glance.
QString RecordListModel::accessibleText(int index) const
{
    QStringList parts = {u"Record %1"_s.arg(index + 1)};
    for (const int column : {int(State), problemColumn()}) {
        const QString text = textAt(index, column);
        if (!text.isEmpty()) {
            parts.append(text);
        }
    }
    return parts.join(u", "_s);
}

QVariant RecordListModel::colourOf(int index, int column) const
{
    if (column == problemColumn()) {
        return readable(kProblemColour);
    }
    const EntryState state = m_document.stateOf(index);
    const bool isColoured = state == EntryState::Deleted || column == State;
    return isColoured && state != EntryState::Unchanged ? readable(rowOfState(state).colour)
                                                        : QVariant();
}

/// A row is painted column by column, and its record is taken apart once.
const QStringList &RecordListModel::tellingTexts(int index) const
{
    if (m_textsOf != index) {
        m_texts = columnTexts(Record(m_document.entry(index).bytes, m_document.catalog()));
        m_textsOf = index;
    }
    return m_texts;
}

void RecordListModel::tellOfData(int first, int last)
{
    m_textsOf = -1;
    if (first >= 0 && first <= last) {
        emit dataChanged(this->index(first, 0), this->index(last, problemColumn()));
    }
}

} // namespace tarvold::records
