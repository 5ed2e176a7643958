#include "records/alignment.h"
#include "records/reading.h"

#include <QFileInfo>

#include <algorithm>
#include <map>

namespace tarvold::records {
namespace {

/// How many lines of a file tell its kind.
constexpr int kLinesRead = 1000;

/// How much less another reading must cost to be clearly the right one.
constexpr int kClear = 20 * LineCosts::kBit;

/// Lines that on average cost more than this look like no kind at all.
constexpr int kStrange = 5 * LineCosts::kBit;

/// Lines of which more than so many percent are the same tell nothing: half of the lines of a
/// record that nobody filled in are "-BLANK-".
constexpr qsizetype kMostAlike = 75;

struct Candidate
{
    DataFileKind kind;
    int cost;
};

/// Whether the file was saved with two bytes for each character, so that every line looks odd, and
/// none like one of a kind.
bool isWide(QByteArrayView file)
{
    constexpr qsizetype kRead = 1000;
    constexpr qsizetype kOneByteOf = 4;
    const QByteArrayView start = file.first(std::min(file.size(), kRead));
    return std::count(start.begin(), start.end(), '\0') * kOneByteOf > start.size();
}

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
        candidates.push_back({row.kind, alignment.leastCost()});
    }
    std::stable_sort(
        candidates.begin(), candidates.end(),
        [](const Candidate &one, const Candidate &other) { return one.cost < other.cost; });
    return candidates;
}

/// Whether nearly all lines are the same.
bool areAlike(const std::vector<Line> &lines)
{
    std::map<QByteArrayView, qsizetype> counts;
    qsizetype most = 0;
    for (const Line &line : lines) {
        most = std::max(most, ++counts[line.text]);
    }
    return most * 100 > kMostAlike * qsizetype(lines.size());
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
    const bool isStrange = isWide(file) || least > kStrange * int(lines.size()) || areAlike(lines);
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
