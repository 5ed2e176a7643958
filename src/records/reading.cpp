#include "records/reading.h"

#include "records/alignment.h"
#include "records/splitter.h"

#include <algorithm>
#include <numeric>

namespace tarvold::records {

bool Layout::isWhole() const
{
    return surplus.empty() &&
           std::find(lineOfField.begin(), lineOfField.end(), -1) == lineOfField.end();
}

Layout layoutOf(const std::vector<Line> &lines, const Catalog &catalog)
{
    const LineCosts &costs = LineCosts::of(catalog.kind());
    Layout layout;
    layout.lineOfField.resize(std::size_t(costs.fieldCount()), -1);
    if (costs.oddnessOf(lines).value_or(LineCosts::kMostOddness + 1) <= LineCosts::kMostOddness) {
        std::iota(layout.lineOfField.begin(), layout.lineOfField.end(), 0);
        return layout;
    }
    Alignment alignment(costs, Alignment::Records::One);
    for (std::size_t line = 0; line < lines.size(); ++line) {
        const bool isDoubled = line > 0 && lines[line].text == lines[line - 1].text;
        alignment.add(sortOf(lines[line].text), isDoubled);
    }
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
    return Splitter(file, LineCosts::of(catalog.kind()), progress).split();
}

} // namespace tarvold::records
