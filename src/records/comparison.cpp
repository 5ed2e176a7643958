// What can only be seen by comparing records.

#include "datafiles/stipulation_format.h"
#include "records/problems.h"
#include "records/wording.h"

#include <algorithm>
#include <array>
#include <span>

namespace tarvold::records {

using namespace Qt::StringLiterals;
using namespace wording;

namespace {

/// The number of the first that had this print; nothing if this is the first.
template <class Prints, class Print>
std::optional<int> earlier(Prints &prints, const Print &print, int number)
{
    const auto found = prints.constFind(print);
    if (found != prints.constEnd()) {
        return *found;
    }
    prints.insert(print, number);
    return std::nullopt;
}

/// The texts of lines, each ended by CR LF.
QByteArray joined(std::span<const Line> lines)
{
    QByteArray bytes;
    for (const Line &line : lines) {
        bytes.append(line.text).append(kLineEnd);
    }
    return bytes;
}

/// The record without regard to what its lines end with.
QByteArray textOf(const Record &record)
{
    const bool isPlain = std::all_of(record.lines().begin(), record.lines().end(),
                                     [](const Line &line) { return line.end == LineEnd::CrLf; });
    return isPlain ? record.bytes() : joined(record.lines());
}

/// The lines of a stipulation's match type and name, which are its key; nothing if one is missing.
std::optional<std::array<Line, 2>> keyOf(const Record &record)
{
    const auto lineOf = [&record](const RecordField &field) {
        const int place = record.catalog().placeOf(field);
        return place < 0 ? -1 : record.layout().lineOfField.at(std::size_t(place));
    };
    const int matchType = lineOf(stipulationfields::kMatchType);
    const int name = lineOf(stipulationfields::kName);
    if (matchType < 0 || name < 0) {
        return std::nullopt;
    }
    return std::array{record.lines().at(std::size_t(matchType)),
                      record.lines().at(std::size_t(name))};
}

} // namespace

Comparison::Print Comparison::printOf(QByteArrayView text)
{
    // Two seeds: one print alone could be the same by chance.
    return {qHash(text, 0x7461), qHash(text, 0x7276)};
}

std::vector<Problem> Comparison::add(const Record &record, std::optional<int> number)
{
    ++m_count;
    const int own = number.value_or(m_count);
    const QString word = recordOf(m_catalog.kind());
    const std::optional<std::array<Line, 2>> key = keyOf(record);
    const std::optional<int> sameKey =
        key ? earlier(m_keys, printOf(joined(*key)), own) : std::nullopt;
    if (const std::optional<int> same = earlier(m_records, printOf(textOf(record)), own)) {
        return {{.type = Problem::Type::SameRecord,
                 .text = u"%1 %2 is the same as %3 %4."_s.arg(atStart(word), QString::number(own),
                                                              word, QString::number(*same))}};
    }
    // Of another kind it has no key. That is asked only now, as it takes long.
    if (sameKey && !looksLike(record.lines(), m_catalog.kind())) {
        return {{.type = Problem::Type::SameKey,
                 .field = m_catalog.placeOf(stipulationfields::kName),
                 .line = record.layout().lineOfField.at(1),
                 .text = u"%1 %2 has the match type and name of %3 %4: %5 for %6."_s.arg(
                     atStart(word), QString::number(own), word, QString::number(*sameKey),
                     quoted((*key)[1].text), quoted((*key)[0].text))}};
    }
    return {};
}

} // namespace tarvold::records
