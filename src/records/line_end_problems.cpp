// Lines that end with LF or CR alone, or not at all.

#include "records/checks.h"
#include "records/edits.h"
#include "records/wording.h"

#include <algorithm>

namespace tarvold::records::checks {

using namespace Qt::StringLiterals;
using namespace wording;

namespace {

/// The lines with a bare end that a repair would change, not those that are parts of a broken one.
std::vector<int> bareLines(const Examined &examined, bool isOfKind)
{
    std::vector<int> lines;
    for (int line = 0; line < int(examined.record.lines().size()); ++line) {
        const LineEnd end = examined.line(line).end;
        if (end == LineEnd::Lf || end == LineEnd::Cr) {
            lines.push_back(line);
        }
    }
    if (isOfKind && !lines.empty()) {
        for (const Step::Whole &whole : examined.step.wholes) {
            std::erase_if(lines,
                          [&whole](int line) { return line >= whole.first && line < whole.last; });
        }
    }
    return lines;
}

/// What the lines end with, such as "LF alone".
QString endsOf(const Examined &examined, const std::vector<int> &lines)
{
    const auto has = [&](QByteArrayView end) {
        return std::any_of(lines.begin(), lines.end(),
                           [&](int line) { return edits::endOf(examined.record, line) == end; });
    };
    QStringList ends;
    for (const char *end : {"\n", "\r"}) {
        if (has(end)) {
            ends << (*end == '\n' ? u"LF alone"_s : u"CR alone"_s);
        }
    }
    if (has("\r\r\n")) {
        ends << u"CR CR LF"_s;
    }
    return ends.join(u" or "_s);
}

Problem bare(const Examined &examined, const std::vector<int> &lines)
{
    const bool isOne = lines.size() == 1;
    const bool isRow = lines.back() - lines.front() + 1 == int(lines.size());
    const QString which =
        isRow ? atStart(linesOf(lines.front(), lines.back()))
              : u"%1 lines, the first of them line %2,"_s.arg(lines.size()).arg(lines.front() + 1);
    return {.type = Problem::Type::BareLineEnd,
            .line = lines.front(),
            .text = u"%1 %2 with %3. The game needs CR LF."_s.arg(
                which, isOne ? u"ends"_s : u"end"_s, endsOf(examined, lines)),
            .repair = isOne ? u"End it with CR LF"_s : u"End them with CR LF"_s,
            .repaired = edits::withCrLf(examined.record, lines)};
}

} // namespace

void checkLineEnds(const Examined &examined, bool isOfKind, Problems &problems)
{
    if (const std::vector<int> lines = bareLines(examined, isOfKind); !lines.empty()) {
        problems.push_back(bare(examined, lines));
    }
    const auto last = int(examined.record.lines().size()) - 1;
    if (last >= 0 && examined.line(last).end == LineEnd::None) {
        problems.push_back(
            {.type = Problem::Type::NoLastLineEnd,
             .line = last,
             .text = u"The last line has no line end. What follows in the file, or is added to "
                     "it, becomes part of this line."_s,
             .repair = u"End it with CR LF"_s,
             .repaired = edits::withCrLf(examined.record, {last})});
    }
}

} // namespace tarvold::records::checks
