// Lines that are too many, or that were broken in two.

#include "records/checks.h"
#include "records/edits.h"
#include "records/line_sort.h"
#include "records/step_words.h"
#include "records/wording.h"

#include <algorithm>

namespace tarvold::records::checks {

using namespace Qt::StringLiterals;
using namespace wording;

namespace {

/// Lines in a row that hold no field.
struct SurplusRun
{
    int first;
    int last;
};

std::vector<SurplusRun> surplusRuns(const Examined &examined)
{
    std::vector<SurplusRun> runs;
    for (const int whole : examined.step.layout.surplus) {
        const auto [first, last] = examined.step.wholes.at(std::size_t(whole));
        if (!runs.empty() && runs.back().last == first - 1) {
            runs.back().last = last;
        } else {
            runs.push_back({first, last});
        }
    }
    return runs;
}

/// The commentary's line that a surplus run is in or behind; whether there is one.
bool isInCommentary(const Examined &examined, const SurplusRun &run)
{
    const int before = examined.record.catalog().firstCommentary() - 1;
    return examined.step.layout.lineOfField.at(std::size_t(before)) >= 0 &&
           run.first > lastLineOf(examined, before);
}

/// Whether a line is the same as the one before or behind it.
bool isDoubled(const Examined &examined, int line)
{
    const QByteArrayView text = examined.line(line).text;
    const auto count = int(examined.record.lines().size());
    return (line > 0 && examined.line(line - 1).text == text) ||
           (line + 1 < count && examined.line(line + 1).text == text);
}

/// Whether a line has nothing that an author wrote: neither letters nor digits, or "-BLANK-".
bool isNothing(QByteArrayView text)
{
    return text == QByteArrayView(kBlankLine) ||
           std::all_of(text.begin(), text.end(),
                       [](char character) { return std::uint8_t(character) <= ' '; });
}

/// Whether removing lines takes no text away that may be meant: they have none, stand there twice,
/// or are a single word of the lists among the details.
bool isHarmless(const Examined &examined, const SurplusRun &run)
{
    bool areNothing = true;
    for (int line = run.first; line <= run.last; ++line) {
        areNothing = areNothing && isNothing(examined.line(line).text);
    }
    if (areNothing || run.first < run.last) {
        return areNothing;
    }
    const Sort sort = sortOf(examined.line(run.first).text);
    const bool isWord = sort == Sort::Number || sort >= Sort::FirstWord;
    return isInCommentary(examined, run) ? isDoubled(examined, run.first) && examined.step.isSure
                                         : isWord || isDoubled(examined, run.first);
}

/// Whether any other line of the commentary may as well be the one that is too many.
bool isAnyLine(const Examined &examined, const SurplusRun &run)
{
    return run.first == run.last && isInCommentary(examined, run) &&
           !isNothing(examined.line(run.first).text) && !isDoubled(examined, run.first) &&
           !isNothing(examined.line(run.first - 1).text);
}

/// Which lines are too many.
QString whichOf(const Examined &examined, const SurplusRun &run)
{
    const QString lines = linesOf(run.first, run.last);
    const bool isLong =
        int(examined.record.lines().size()) > examined.record.catalog().fieldCount();
    if (isLong && isAnyLine(examined, run)) {
        return u"one line of its commentary is too many, and it is not certain which."_s;
    }
    if (run.first < run.last) {
        return (isLong ? u"%1 are too many."_s : u"%1 do not belong there."_s).arg(lines);
    }
    const QString line = u"%1 (%2)"_s.arg(lines, quoted(examined.line(run.first).text));
    return (isLong ? u"%1 is one too many."_s : u"%1 does not belong there."_s).arg(line);
}

/// What a repair removes; with the text where that is one that an author may have written.
QString repairOf(const Examined &examined, const SurplusRun &run, bool isSafe)
{
    const QString first = quoted(examined.line(run.first).text);
    const QString lines = linesOf(run.first, run.last);
    if (isSafe) {
        return u"Remove %1"_s.arg(lines);
    }
    return run.first == run.last
               ? u"Remove %1: %2"_s.arg(lines, first)
               : u"Remove %1: %2 to %3"_s.arg(lines, first, quoted(examined.line(run.last).text));
}

Problem surplus(const Examined &examined, const SurplusRun &run)
{
    const auto count = int(examined.record.lines().size());
    const bool isLong = count > examined.record.catalog().fieldCount();
    const bool isSafe = isHarmless(examined, run);
    return {.type = Problem::Type::SurplusLine,
            .line = run.first,
            .text = howManyLines(examined) + (isLong ? u"; "_s : u", but "_s) +
                    whichOf(examined, run) + consequence(examined, run.last == count - 1),
            .repair = repairOf(examined, run, isSafe),
            .repaired = edits::withoutLines(examined.record, run.first, run.last),
            .isSingle = !isSafe};
}

/// How the parts of a line became lines.
QString brokenBy(const Examined &examined, const Step::Whole &whole)
{
    const QString lines = linesOf(whole.first, whole.last);
    const LineEnd end = examined.line(whole.first).end;
    if (end == LineEnd::CrLf || edits::endOf(examined.record, whole.first).size() > 1) {
        return u"%1 were probably one that was broken."_s.arg(lines);
    }
    return u"%1 were one that was broken by %2 alone."_s.arg(lines, end == LineEnd::Lf ? u"LF"_s
                                                                                       : u"CR"_s);
}

Problem broken(const Examined &examined, const Step::Whole &whole)
{
    return {.type = Problem::Type::SurplusLine,
            .line = whole.first,
            .text = howManyLines(examined) + u"; "_s + brokenBy(examined, whole) +
                    consequence(examined, false),
            .repair = u"Join %1"_s.arg(linesOf(whole.first, whole.last)),
            .repaired = edits::withJoined(examined.record, whole.first, whole.last),
            .isSingle = !examined.step.isSure};
}

} // namespace

void checkSurplus(const Examined &examined, Problems &problems)
{
    for (const SurplusRun &run : surplusRuns(examined)) {
        problems.push_back(surplus(examined, run));
    }
    for (const Step::Whole &whole : examined.step.wholes) {
        if (whole.isBroken()) {
            problems.push_back(broken(examined, whole));
        }
    }
}

} // namespace tarvold::records::checks
