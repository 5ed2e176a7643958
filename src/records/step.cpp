#include "records/step.h"

#include "records/edits.h"

#include <algorithm>

namespace tarvold::records {
namespace {

constexpr int kMostTries = 50; ///< broken lines looked for in one record

/// Whether a line ends with a single LF or CR. CR CR LF does not break a line, but ends it.
bool isCut(const Record &record, int line)
{
    return edits::endOf(record, line).size() == 1;
}

/// Lines of which all but the last are cut: these may be one that was broken.
std::vector<Step::Whole> cutLines(const Record &record)
{
    std::vector<Step::Whole> found;
    int first = 0;
    for (int line = 0; line < int(record.lines().size()); ++line) {
        if (isCut(record, line)) {
            continue;
        }
        if (first < line) {
            found.push_back({first, line});
        }
        first = line + 1;
    }
    return found;
}

/// The same with some lines made one.
std::vector<Step::Whole> joined(std::vector<Step::Whole> wholes, const Step::Whole &lines)
{
    const auto isPart = [&lines](const Step::Whole &whole) {
        return whole.first >= lines.first && whole.last <= lines.last;
    };
    const auto place = std::find_if(wholes.begin(), wholes.end(), isPart);
    *place = lines;
    wholes.erase(std::remove_if(place + 1, wholes.end(), isPart), wholes.end());
    return wholes;
}

Layout layoutOfWholes(const Record &record, const std::vector<Step::Whole> &wholes)
{
    std::vector<QByteArray> texts;
    texts.reserve(wholes.size());
    std::vector<Line> lines;
    lines.reserve(wholes.size());
    for (const Step::Whole &whole : wholes) {
        texts.push_back(edits::joinedText(record, whole.first, whole.last));
        lines.push_back({texts.back(), LineEnd::CrLf});
    }
    return layoutOf(lines, record.catalog());
}

auto missingIn(const Layout &layout)
{
    return std::count(layout.lineOfField.begin(), layout.lineOfField.end(), -1);
}

} // namespace

Step Step::of(const Record &record)
{
    if (record.layout().isWhole()) {
        return {};
    }
    Step step = {{}, record.layout()};
    for (int line = 0; line < int(record.lines().size()); ++line) {
        step.wholes.push_back({line, line});
    }
    int tries = 0;
    for (const Whole &lines : cutLines(record)) {
        const auto tooMany = std::size_t(lines.last - lines.first);
        if (tooMany > step.layout.surplus.size() || ++tries > kMostTries) {
            continue;
        }
        Step other = {joined(step.wholes, lines), {}};
        other.layout = layoutOfWholes(record, other.wholes);
        if (other.layout.surplus.size() + tooMany == step.layout.surplus.size() &&
            missingIn(other.layout) == missingIn(step.layout)) {
            step = std::move(other);
        }
    }
    return step;
}

} // namespace tarvold::records
