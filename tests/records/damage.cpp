#include "records/damage.h"

#include "records/line_costs.h"
#include "records/step.h"

#include <set>

namespace tarvold::records {
namespace {

/// How odd a record's lines are for the fields that hold them, without a line that holds none.
int oddnessOf(const Record &record, const std::vector<int> &lineOfField)
{
    const LineCosts &costs = LineCosts::of(record.catalog().kind());
    int oddness = 0;
    for (int field = 0; field < int(lineOfField.size()); ++field) {
        if (const int line = lineOfField[std::size_t(field)]; line >= 0) {
            const QByteArrayView text = record.lines()[std::size_t(line)].text;
            oddness += costs.oddnessOf(field, sortOf(text));
        }
    }
    return oddness;
}

/// Which line holds which field of a record with a fault.
std::vector<int> layoutWith(const Fault &fault, int fieldCount)
{
    std::vector<int> lines;
    for (int field = 0; field < fieldCount; ++field) {
        const int moved = field > fault.field ? (fault.isDoubled ? 1 : -1) : 0;
        lines.push_back(field == fault.field && !fault.isDoubled ? -1 : field + moved);
    }
    return lines;
}

/// What a record's layout says is wrong with it.
struct Named
{
    std::vector<int> missing; ///< fields
    std::vector<int> surplus; ///< lines
};

Named namedIn(const Layout &layout)
{
    Named named = {.missing = {}, .surplus = layout.surplus};
    for (int field = 0; field < int(layout.lineOfField.size()); ++field) {
        if (layout.lineOfField[std::size_t(field)] < 0) {
            named.missing.push_back(field);
        }
    }
    return named;
}

/// Compares what is named in a record with the one line that is missing from it.
void judgeMissing(const Record &found, int named, const RecordLines &original, const Fault &fault,
                  Tally &tally)
{
    const bool isAlike = found.withLine(named, original.at(fault.field)) == bytesOf(original);
    const auto real = layoutWith(fault, found.catalog().fieldCount());
    const bool isAsGood = oddnessOf(found, found.layout().lineOfField) <= oddnessOf(found, real);
    tally.fields += named == fault.field ? 1 : 0;
    tally.alike += isAlike ? 1 : 0;
    tally.asGood += isAlike || isAsGood ? 1 : 0;
    const FieldRun doubt = fieldsInDoubt(found, Step::of(found), {named, named});
    tally.missing += 1;
    tally.certain += doubt.isOne() ? 1 : 0;
    tally.wrong += doubt.isOne() && named != fault.field ? 1 : 0;
    tally.outside += fault.field < doubt.first || fault.field > doubt.last ? 1 : 0;
}

/// Compares what is named in a record with the one line that stands in it twice.
void judgeDoubled(const Record &found, int named, const RecordLines &original, const Fault &fault,
                  Tally &tally)
{
    const bool isAlike = found.withoutLine(named) == bytesOf(original);
    const auto real = layoutWith(fault, found.catalog().fieldCount());
    const bool isDouble = named > 0 && found.lines()[std::size_t(named)].text ==
                                           found.lines()[std::size_t(named - 1)].text;
    const bool isAsGood =
        isDouble && oddnessOf(found, found.layout().lineOfField) <= oddnessOf(found, real);
    tally.fields += named == fault.field || named == fault.field + 1 ? 1 : 0;
    tally.alike += isAlike ? 1 : 0;
    tally.asGood += isAlike || isAsGood ? 1 : 0;
}

void judge(const Record &found, const RecordLines &original, const Fault &fault, Tally &tally)
{
    const auto [missing, surplus] = namedIn(found.layout());
    if (fault.isDoubled && missing.empty() && surplus.size() == 1) {
        judgeDoubled(found, surplus.front(), original, fault, tally);
    } else if (!fault.isDoubled && surplus.empty() && missing.size() == 1) {
        judgeMissing(found, missing.front(), original, fault, tally);
    }
}

} // namespace

QByteArray damaged(std::vector<RecordLines> records, const std::vector<Fault> &faults)
{
    for (const Fault &fault : faults) {
        RecordLines &record = records.at(std::size_t(fault.record));
        if (fault.isDoubled) {
            record.insert(fault.field, QByteArray(record.at(fault.field)));
        } else {
            record.removeAt(fault.field);
        }
    }
    return bytesOf(records);
}

std::vector<Record> recordsOf(const QByteArray &file, const Catalog &catalog)
{
    std::vector<Record> records;
    const auto starts = splitIntoRecords(file, catalog).value();
    for (std::size_t record = 0; record < starts.size(); ++record) {
        const bool isLast = record + 1 == starts.size();
        const qsizetype end = isLast ? file.size() : starts[record + 1];
        records.emplace_back(file.sliced(starts[record], end - starts[record]), catalog);
    }
    return records;
}

void Tally::add(const std::vector<RecordLines> &originals, const std::vector<Fault> &made,
                const Catalog &catalog)
{
    const std::vector<Record> found = recordsOf(damaged(originals, made), catalog);
    std::set<int> expected;
    for (const Fault &fault : made) {
        expected.insert(fault.record);
    }
    std::set<int> named;
    for (int record = 0; record < int(found.size()); ++record) {
        if (!found[std::size_t(record)].layout().isWhole()) {
            named.insert(record);
        }
    }
    ++files;
    faults += int(made.size());
    const bool areNamed = found.size() == originals.size() && named == expected;
    records += areNamed ? 1 : 0;
    if (!areNamed) {
        return;
    }
    for (const Fault &fault : made) {
        const auto record = std::size_t(fault.record);
        judge(found[record], originals[record], fault, *this);
    }
}

Tally &Tally::operator+=(const Tally &other)
{
    files += other.files;
    faults += other.faults;
    records += other.records;
    fields += other.fields;
    alike += other.alike;
    missing += other.missing;
    certain += other.certain;
    wrong += other.wrong;
    outside += other.outside;
    asGood += other.asGood;
    return *this;
}

} // namespace tarvold::records
