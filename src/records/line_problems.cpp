// Lines that are missing, too many, or not ended as the game expects.

#include "datafiles/code_page.h"
#include "records/checks.h"
#include "records/edits.h"
#include "records/wording.h"

#include <algorithm>

namespace tarvold::records::checks {

using namespace Qt::StringLiterals;
using namespace wording;

namespace {

bool isBare(LineEnd end)
{
    return end == LineEnd::Lf || end == LineEnd::Cr;
}

/// What follows from lines that are missing or too many.
/// \param isAtEnd whether no line of the record follows
QString consequence(const Examined &examined, bool isAtEnd)
{
    const auto lines = int(examined.record.lines().size());
    if (lines == examined.record.catalog().fieldCount()) {
        return u" The game reads this %1 wrongly."_s.arg(
            recordOf(examined.record.catalog().kind()));
    }
    return examined.isLast && isAtEnd
               ? u" The game reads everything that is added to the file wrongly."_s
               : u" The game reads everything after it wrongly."_s;
}

/// "Ending 17 has 35 lines".
QString howManyLines(const Examined &examined)
{
    const QString record = atStart(recordOf(examined.record.catalog().kind()));
    const auto lines = examined.record.lines().size();
    return lines == 1 ? u"%1 %2 has 1 line"_s.arg(record).arg(examined.number)
                      : u"%1 %2 has %3 lines"_s.arg(record).arg(examined.number).arg(lines);
}

/// Fields in a row whose lines are missing.
struct MissingRun
{
    int first;
    int last;
};

std::vector<MissingRun> missingRuns(const Examined &examined)
{
    std::vector<MissingRun> runs;
    for (int field = 0; field < examined.record.catalog().fieldCount(); ++field) {
        if (examined.lineOf(field) >= 0) {
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

/// What a repair puts where lines are missing.
QString repairOf(const Examined &examined, const MissingRun &run)
{
    const QString text = examined.known(run.first).newText;
    if (run.first == run.last) {
        return text.isEmpty() ? u"Put an empty line there"_s : u"Put \"%1\" there"_s.arg(text);
    }
    return u"Put %1 lines there as in a new %2"_s.arg(run.last - run.first + 1)
        .arg(recordOf(examined.record.catalog().kind()));
}

Problem missing(const Examined &examined, const MissingRun &run)
{
    const QString which =
        run.first == run.last
            ? u"the line for %1 is missing."_s.arg(captionOf(examined.known(run.first)))
            : u"the lines from %1 to %2 are missing."_s.arg(captionOf(examined.known(run.first)),
                                                            captionOf(examined.known(run.last)));
    const auto lines = int(examined.record.lines().size());
    const bool isShort = lines < examined.record.catalog().fieldCount();
    const int place = run.first == 0 ? 0 : examined.lineOf(run.first - 1) + 1;
    std::vector<QByteArray> texts;
    for (int field = run.first; field <= run.last; ++field) {
        texts.push_back(codepage::encode(examined.known(field).newText).bytes);
    }
    return {.type = Problem::Type::MissingLine,
            .field = run.first,
            .line = place,
            .text = howManyLines(examined) + (isShort ? u"; "_s : u", but "_s) + which +
                    consequence(examined, place == lines),
            .repair = repairOf(examined, run),
            .repaired = edits::withInserted(examined.record, place, texts)};
}

/// Lines in a row that hold no field.
struct SurplusRun
{
    int first;
    int last;
    /// If bare line ends broke one line into several: the lines of that one; else none.
    int brokenFirst = 0;
    int brokenLast = -1;

    bool isBroken() const { return brokenFirst <= brokenLast; }
};

/// Finds out whether the lines are parts of a broken one: all but the last part end with a bare
/// line end, and that part does not, so that it is the whole line's end.
void findBroken(const Examined &examined, SurplusRun &run)
{
    const auto breaks = [&examined](int line) {
        return edits::endOf(examined.record, line).size() == 1; // CR CR LF ends a line
    };
    const auto areParts = [&](int first, int last) {
        const auto lines = int(examined.record.lines().size());
        if (first < 0 || last >= lines || breaks(last)) {
            return false;
        }
        int part = first;
        while (part < last && breaks(part)) {
            ++part;
        }
        return part == last;
    };
    if (areParts(run.first - 1, run.last)) {
        run.brokenFirst = run.first - 1;
        run.brokenLast = run.last;
    } else if (areParts(run.first, run.last + 1)) {
        run.brokenFirst = run.first;
        run.brokenLast = run.last + 1;
    }
}

std::vector<SurplusRun> surplusRuns(const Examined &examined)
{
    std::vector<SurplusRun> runs;
    for (const int line : examined.record.layout().surplus) {
        if (!runs.empty() && runs.back().last == line - 1) {
            runs.back().last = line;
        } else {
            runs.push_back({.first = line, .last = line});
        }
    }
    for (SurplusRun &run : runs) {
        findBroken(examined, run);
    }
    return runs;
}

Problem broken(const Examined &examined, const SurplusRun &run)
{
    const QString end =
        examined.line(run.brokenFirst).end == LineEnd::Lf ? u"LF alone"_s : u"CR alone"_s;
    const QString lines = linesOf(run.brokenFirst, run.brokenLast);
    return {.type = Problem::Type::SurplusLine,
            .line = run.first,
            .text = howManyLines(examined) +
                    u"; %1 were one, which %2 has broken."_s.arg(lines, end) +
                    consequence(examined, false),
            .repair = u"Join %1"_s.arg(lines),
            .repaired = edits::withJoined(examined.record, run.brokenFirst, run.brokenLast)};
}

Problem surplus(const Examined &examined, const SurplusRun &run)
{
    if (run.isBroken()) {
        return broken(examined, run);
    }
    const QString lines = linesOf(run.first, run.last);
    const bool isOne = run.first == run.last;
    const QString which =
        isOne ? u"%1 (%2)"_s.arg(lines, quoted(examined.line(run.first).text)) : lines;
    const auto count = int(examined.record.lines().size());
    const bool isLong = count > examined.record.catalog().fieldCount();
    const QString tooMany = isOne ? u"%1 is one too many."_s : u"%1 are too many."_s;
    const QString strange = isOne ? u"%1 does not belong there."_s : u"%1 do not belong there."_s;
    return {.type = Problem::Type::SurplusLine,
            .line = run.first,
            .text = howManyLines(examined) + (isLong ? u"; "_s : u", but "_s) +
                    (isLong ? tooMany : strange).arg(which) +
                    consequence(examined, run.last == count - 1),
            .repair = u"Remove %1"_s.arg(lines),
            .repaired = edits::withoutLines(examined.record, run.first, run.last)};
}

/// The lines with a bare end that a repair would change, not those that are parts of a broken one.
std::vector<int> bareLines(const Examined &examined, bool isOfKind)
{
    std::vector<int> lines;
    for (int line = 0; line < int(examined.record.lines().size()); ++line) {
        if (isBare(examined.line(line).end)) {
            lines.push_back(line);
        }
    }
    if (lines.empty() || !isOfKind) {
        return lines;
    }
    for (const SurplusRun &run : surplusRuns(examined)) {
        std::erase_if(lines, [&run](int line) {
            return run.isBroken() && line >= run.brokenFirst && line < run.brokenLast;
        });
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

void checkStep(const Examined &examined, Problems &problems)
{
    if (examined.record.layout().isWhole()) {
        return;
    }
    for (const MissingRun &run : missingRuns(examined)) {
        problems.push_back(missing(examined, run));
    }
    for (const SurplusRun &run : surplusRuns(examined)) {
        problems.push_back(surplus(examined, run));
    }
}

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
