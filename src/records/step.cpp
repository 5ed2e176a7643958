#include "records/step.h"

#include "records/broken_lines.h"
#include "records/edits.h"
#include "records/line_costs.h"

#include <algorithm>

namespace tarvold::records {
namespace {

constexpr int kMostTries = 50; ///< broken lines looked for in one record

/// Another reading that costs only so much more may be the right one as well.
constexpr int kDoubtful = 4 * LineCosts::kBit;

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

auto missingIn(const Layout &layout)
{
    return std::count(layout.lineOfField.begin(), layout.lineOfField.end(), -1);
}

/// Moves missing lines to other fields, one after the other, and tells what that costs.
class Shift
{
public:
    Shift(const Record &record, const Step &step)
        : m_record(record)
        , m_step(step)
        , m_costs(LineCosts::of(record.catalog().kind()))
    {
    }

    /// The line of a field is read as another's instead.
    void read(int field, int instead)
    {
        const int line = lineOf(field);
        const Step::Whole &whole = m_step.wholes.at(std::size_t(line));
        const auto *const row =
            m_costs.row(sortOf(edits::joinedText(m_record, whole.first, whole.last)));
        m_more += row[instead] - row[field];
    }

    bool isDoubtful() const { return m_more <= kDoubtful; }

    /// The line of a field; -1 if there is none, or no such field.
    int lineOf(int field) const
    {
        const std::vector<int> &lines = m_step.layout.lineOfField;
        return field < 0 || field >= int(lines.size()) ? -1 : lines.at(std::size_t(field));
    }

private:
    const Record &m_record;
    const Step &m_step;
    const LineCosts &m_costs;
    int m_more = 0;
};

} // namespace

Layout layoutOf(const Record &record, const std::vector<Step::Whole> &wholes)
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

std::vector<FieldRun> missingRuns(const Layout &layout)
{
    std::vector<FieldRun> runs;
    for (int field = 0; field < int(layout.lineOfField.size()); ++field) {
        if (layout.lineOfField.at(std::size_t(field)) >= 0) {
            continue;
        }
        if (!runs.empty() && runs.back().last == field - 1) {
            runs.back().last = field;
        } else {
            runs.push_back({field, field});
        }
    }
    return runs;
}

FieldRun fieldsInDoubt(const Record &record, const Step &step, const FieldRun &missing)
{
    FieldRun doubt = missing;
    const int count = missing.last - missing.first + 1;
    Shift up(record, step);
    for (int field = missing.first - 1; up.lineOf(field) >= 0; --field) {
        up.read(field, field + count);
        doubt.first = up.isDoubtful() ? field : doubt.first;
    }
    Shift down(record, step);
    for (int field = missing.last + 1; down.lineOf(field) >= 0; ++field) {
        down.read(field, field - count);
        doubt.last = down.isDoubtful() ? field : doubt.last;
    }
    return doubt;
}

Step Step::of(const Record &record)
{
    if (record.layout().isWhole()) {
        return {};
    }
    Step step = {.wholes = {}, .layout = record.layout()};
    for (int line = 0; line < int(record.lines().size()); ++line) {
        step.wholes.push_back({line, line});
    }
    int tries = 0;
    for (const Whole &lines : cutLines(record)) {
        const auto tooMany = std::size_t(lines.last - lines.first);
        if (tooMany > step.layout.surplus.size() || ++tries > kMostTries) {
            continue;
        }
        Step other = {.wholes = joined(step.wholes, lines), .layout = {}};
        other.layout = layoutOf(record, other.wholes);
        if (other.layout.surplus.size() + tooMany == step.layout.surplus.size() &&
            missingIn(other.layout) == missingIn(step.layout)) {
            step = std::move(other);
        }
    }
    joinBroken(record, step);
    return step;
}

} // namespace tarvold::records
