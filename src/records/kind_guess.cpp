#include "records/alignment.h"
#include "records/reading.h"

#include <QFileInfo>

#include <algorithm>

namespace tarvold::records {
namespace {

/// How many lines of a file tell its kind.
constexpr int kLinesRead = 1000;

/// How much less another reading must cost to be clearly the right one.
constexpr int kClear = 20 * LineCosts::kBit;

/// Lines that on average cost more than this look like no kind at all.
constexpr int kStrange = 5 * LineCosts::kBit;

/// One of so many lines at least must hold a field. The same line again and again costs little if
/// it is taken for a line that stands there twice, but tells nothing.
constexpr int kOneOf = 2;

struct Candidate
{
    DataFileKind kind;
    int cost;
    int surplus; ///< lines that hold no field then
};

/// What the first lines cost when they are read as records of each kind, the cheapest first.
std::vector<Candidate> candidatesFor(const std::vector<Line> &lines)
{
    std::vector<Candidate> candidates;
    for (const DataFileKindRow &row : kDataFileKinds) {
        Alignment alignment(LineCosts::of(row.kind), Alignment::Records::Many);
        for (std::size_t line = 0; line < lines.size(); ++line) {
            const bool isDoubled = line > 0 && lines[line].text == lines[line - 1].text;
            alignment.add(sortOf(lines[line].text), isDoubled);
        }
        const std::vector<int> fields = alignment.cheapestPath().fieldOfLine;
        candidates.push_back(
            {row.kind, alignment.leastCost(), int(std::count(fields.begin(), fields.end(), -1))});
    }
    std::stable_sort(
        candidates.begin(), candidates.end(),
        [](const Candidate &one, const Candidate &other) { return one.cost < other.cost; });
    return candidates;
}

/// The kind whose files have such a name.
std::optional<DataFileKind> kindOfName(const QString &fileName)
{
    const QString name = QFileInfo(fileName).fileName();
    for (const DataFileKindRow &row : kDataFileKinds) {
        if (name.compare(QLatin1StringView(row.defaultName), Qt::CaseInsensitive) == 0) {
            return row.kind;
        }
    }
    return std::nullopt;
}

} // namespace

KindGuess guessKind(QByteArrayView file, const QString &fileName)
{
    std::vector<Line> lines;
    for (AnyLineReader reader(file); !reader.atEnd() && lines.size() < kLinesRead;) {
        lines.push_back(reader.readLine());
    }
    const std::vector<Candidate> candidates = candidatesFor(lines);
    const int least = candidates.front().cost;
    const int count = int(lines.size());
    const bool isStrange =
        least > kStrange * count || (count - candidates.front().surplus) * kOneOf < count;
    KindGuess guess;
    for (const Candidate &candidate : candidates) {
        if (isStrange || candidate.cost < least + kClear) {
            guess.likely.push_back(candidate.kind);
        }
    }
    const auto named = kindOfName(fileName);
    if (guess.likely.size() == 1) {
        guess.kind = guess.likely.front();
        guess.named = named != guess.kind ? named : std::nullopt;
    } else if (named && std::count(guess.likely.begin(), guess.likely.end(), *named) > 0) {
        guess.kind = named;
    }
    return guess;
}

std::optional<DataFileKind> kindFor(QByteArrayView file, const QString &fileName,
                                    DataFileKind expected)
{
    const KindGuess guess = guessKind(file, fileName);
    const bool mayBe =
        std::find(guess.likely.begin(), guess.likely.end(), expected) != guess.likely.end();
    return mayBe ? expected : guess.kind;
}

std::optional<DataFileKind> looksLike(const std::vector<Line> &record, DataFileKind kind)
{
    std::optional<DataFileKind> found;
    int least = LineCosts::kMostOddness;
    if (const auto oddness = LineCosts::of(kind).oddnessOf(record)) {
        least = std::min(least, *oddness - kClear);
    }
    for (const DataFileKindRow &row : kDataFileKinds) {
        const auto oddness = LineCosts::of(row.kind).oddnessOf(record);
        if (row.kind != kind && oddness && *oddness <= least) {
            found = row.kind;
            least = *oddness - 1;
        }
    }
    return found;
}

} // namespace tarvold::records
