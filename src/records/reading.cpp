#include "records/reading.h"

#include "records/alignment.h"

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
    if (std::size_t(costs.fieldCount()) == lines.size() && costs.areLikely(lines)) {
        std::iota(layout.lineOfField.begin(), layout.lineOfField.end(), 0);
        return layout;
    }
    Alignment alignment(costs, Alignment::Records::One);
    std::optional<QByteArrayView> previous;
    for (const Line &line : lines) {
        alignment.add(line.text, previous);
        previous = line.text;
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
    std::vector<qsizetype> starts;
    AnyLineReader reader(file);
    for (int line = 0; !reader.atEnd(); line = (line + 1) % catalog.fieldCount()) {
        if (line == 0) {
            starts.push_back(file.size() - reader.rest().size());
            if (progress && starts.size() % 4096 == 0 &&
                !progress(double(starts.back()) / double(file.size()))) {
                return std::nullopt;
            }
        }
        reader.readLine();
    }
    return starts;
}

} // namespace tarvold::records
