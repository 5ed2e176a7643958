// What becomes of a document when its file grows.

#include "disk/read.h"
#include "records/changes.h"
#include "records/document.h"
#include "records/record.h"
#include "records/step.h"

#include <algorithm>

namespace tarvold::records {
namespace {

/// Whether nothing is missing from a record, and nothing too much, but that it may lack lines that
/// the screens leave out.
bool isComplete(const Record &record)
{
    const std::vector<KnownField> &fields = record.catalog().fields();
    const Step step = Step::of(record);
    const auto isLeftOut = [&](const FieldRun &missing) {
        const FieldRun doubt = fieldsInDoubt(record, step, missing);
        return missing.isOne() &&
               std::any_of(
                   fields.begin() + doubt.first, fields.begin() + doubt.last + 1,
                   [](const KnownField &known) { return mayLackLine(known.field->coding); });
    };
    const std::vector<FieldRun> missing = missingRuns(record.layout());
    return record.layout().surplus.empty() &&
           std::all_of(missing.begin(), missing.end(), isLeftOut);
}

} // namespace

int Document::takeGrowth()
{
    const Result<QByteArray> longer = readFile(m_name);
    if (!longer || longer->size() <= m_file.size() || !longer->startsWith(m_file)) {
        return 0;
    }
    const QByteArrayView added = QByteArrayView(*longer).sliced(m_file.size());
    if (!isEndedBefore(added)) {
        return 0;
    }
    // Without a callback nothing stops it.
    const std::vector<qsizetype> starts = splitIntoRecords(added, catalog()).value();
    if (!areComplete(added, starts)) {
        return 0;
    }
    const int before = count();
    const int more = int(starts.size());
    emit aboutToInsert(before, before + more - 1);
    adopt(*longer, starts);
    emit inserted(before, before + more - 1);
    return more;
}

/// Whether records that were added are complete, and the last one has a line end and is not just
/// being written.
bool Document::areComplete(QByteArrayView added, const std::vector<qsizetype> &starts) const
{
    bool isEach = isEnded(added);
    for (std::size_t number = 0; isEach && number < starts.size(); ++number) {
        const bool isLast = number + 1 == starts.size();
        const qsizetype end = isLast ? added.size() : starts[number + 1];
        const QByteArrayView bytes = added.sliced(starts[number], end - starts[number]);
        const Record record(bytes.toByteArray(), catalog());
        isEach = isComplete(record) && !(isLast && mayBeBegun(record.lines(), catalog()));
    }
    return isEach;
}

/// Whether whatever record may come to be the last one, now or by undo, has a line end that stays
/// one when these bytes follow.
bool Document::isEndedBefore(QByteArrayView added) const
{
    const auto isApart = [added](QByteArrayView bytes) {
        return bytes.isEmpty() || (isEnded(bytes) && !joinsLines(bytes, added));
    };
    const std::vector<Entry> &all = m_entries.all();
    bool isEach = isApart(m_file) && std::all_of(all.begin(), all.end(), [&](const Entry &entry) {
                      return isApart(entry.bytes);
                  });
    visitChanges([&](const Entry &entry) { isEach = isEach && isApart(entry.bytes); });
    return isEach;
}

/// Takes a file that begins as the one before: all entries share its bytes, so that those of the
/// old one are free, and the records behind them are added.
/// \param starts of these records, from the end of the old file
void Document::adopt(const QByteArray &longer, const std::vector<qsizetype> &starts)
{
    const auto share = [&](Entry &entry) {
        if (isPartOf(entry.bytes, m_file)) {
            entry.bytes =
                partOf(longer, entry.bytes.constData() - m_file.constData(), entry.bytes.size());
        }
    };
    std::for_each(m_entries.all().begin(), m_entries.all().end(), share);
    visitChanges(share);
    const qsizetype end = m_file.size();
    m_file = longer;
    m_starts.pop_back(); // the end of the old file
    std::vector<Entry> added;
    added.reserve(starts.size());
    for (std::size_t number = 0; number < starts.size(); ++number) {
        const qsizetype start = end + starts[number];
        const qsizetype next =
            number + 1 < starts.size() ? end + starts[number + 1] : longer.size();
        added.push_back({partOf(longer, start, next - start), int(m_origins.size())});
        m_origins.push_back(int(m_starts.size()));
        m_starts.push_back(start);
    }
    m_starts.push_back(longer.size());
    m_entries.insert(int(m_entries.all().size()), added);
}

void Document::visitChanges(const std::function<void(Entry &)> &visitor) const
{
    for (int index = 0; index < m_undo.count(); ++index) {
        static_cast<const Change *>(m_undo.command(index))->visit(visitor);
    }
}

} // namespace tarvold::records
