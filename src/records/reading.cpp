#include "records/reading.h"

#include "records/alignment.h"
#include "records/rules.h"
#include "records/splitter.h"

#include <QThreadPool>

#include <algorithm>
#include <future>
#include <iterator>
#include <numeric>

namespace tarvold::records {

bool Layout::isWhole() const
{
    return surplus.empty() &&
           std::find(lineOfField.begin(), lineOfField.end(), -1) == lineOfField.end();
}

namespace {

/// What is taken off for the plain reading of a record that has the right number of lines: that one
/// is missing and another is too many must be clear from many lines.
constexpr int kPlain = 15 * LineCosts::kBit;

/// How much dearer a record must be where a line is missing than its lines one by one, or these are
/// no beginning of one: about what the missing line costs. A name that looks like a sentence is too
/// odd for them.
constexpr int kLacking = 8 * LineCosts::kBit;

/// The ways to read the lines of a record.
struct Reading
{
    Alignment alignment;
    int plain; ///< the cost of reading them one by one as the first fields
};

Reading readingOf(const std::vector<Line> &lines, const LineCosts &costs)
{
    Reading reading{Alignment(costs, Alignment::Records::One), 0};
    for (std::size_t line = 0; line < lines.size(); ++line) {
        const Sort sort = sortOf(lines[line].text);
        const bool isDoubled = line > 0 && lines[line].text == lines[line - 1].text;
        reading.alignment.add(sort, isDoubled);
        const bool isField = line < std::size_t(costs.fieldCount());
        reading.plain += isField ? costs.row(sort, isDoubled)[line] : 0;
    }
    return reading;
}

Layout wholeLayout(int fieldCount)
{
    Layout layout;
    layout.lineOfField.resize(std::size_t(fieldCount));
    std::iota(layout.lineOfField.begin(), layout.lineOfField.end(), 0);
    return layout;
}

} // namespace

bool mayBeBegun(const std::vector<Line> &lines, const Catalog &catalog)
{
    const LineCosts &costs = LineCosts::of(catalog.kind());
    const auto [alignment, plain] = readingOf(lines, costs);
    return lines.size() < std::size_t(costs.fieldCount()) &&
           plain <= alignment.costAtEnd() - kLacking;
}

Layout layoutOf(const std::vector<Line> &lines, const Catalog &catalog)
{
    const LineCosts &costs = LineCosts::of(catalog.kind());
    // Commentary may be anything, so that odd lines are no sign of damage where all others are as
    // they should be.
    if (Rules::of(catalog).areLegal(lines) ||
        costs.oddnessOf(lines).value_or(LineCosts::kMostOddness + 1) <= LineCosts::kMostOddness) {
        return wholeLayout(costs.fieldCount());
    }
    const auto [alignment, plain] = readingOf(lines, costs);
    if (lines.size() == std::size_t(costs.fieldCount()) &&
        plain <= alignment.costAtEnd() + kPlain) {
        return wholeLayout(costs.fieldCount());
    }
    Layout layout;
    layout.lineOfField.resize(std::size_t(costs.fieldCount()), -1);
    const std::vector<int> fieldOfLine = alignment.pathToEnd().fieldOfLine;
    for (int line = 0; line < int(fieldOfLine.size()); ++line) {
        if (const int field = fieldOfLine[std::size_t(line)]; field >= 0) {
            layout.lineOfField[std::size_t(field)] = line;
        } else {
            layout.surplus.push_back(line);
        }
    }
    return layout;
}

std::optional<std::vector<qsizetype>> splitIntoRecords(QByteArrayView file, const Catalog &catalog,
                                                       const Progress &progress)
{
    constexpr qsizetype kLarge = 4 << 20; // is worth a second thread
    Splitter splitter(file, catalog, progress);
    const auto middle = file.size() < kLarge ? std::nullopt : Splitter::middle(file, catalog);
    std::promise<std::vector<qsizetype>> promise;
    const auto divideBehind = [&] {
        const Progress none;
        promise.set_value(*Splitter(file.sliced(*middle), catalog, none).split());
    };
    if (!middle || !QThreadPool::globalInstance()->tryStart(divideBehind)) {
        return splitter.split();
    }
    std::optional<std::vector<qsizetype>> starts = splitter.split(*middle);
    const std::vector<qsizetype> behind = promise.get_future().get(); // it looks at what is here
    if (starts && splitter.isAt()) {
        std::transform(behind.begin(), behind.end(), std::back_inserter(*starts),
                       [&middle](qsizetype start) { return *middle + start; });
    }
    return starts;
}

std::optional<qsizetype> endOfRecords(QByteArrayView beginning, const Catalog &catalog)
{
    return Splitter::middle(beginning, catalog);
}

} // namespace tarvold::records
