// Lines that are missing or too many.

#include "datafiles/code_page.h"
#include "records/checks.h"
#include "records/edits.h"
#include "records/line_sort.h"
#include "records/wording.h"

#include <algorithm>

namespace tarvold::records::checks {

using namespace Qt::StringLiterals;
using namespace wording;

namespace {

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

/// Whether the commentary has a tag that a text would refuse, if it were the line of a field.
bool isRefused(const Examined &examined, int field, const QString &text)
{
    const std::vector<KnownTag> &tags = examined.record.catalog().tags();
    return std::any_of(tags.begin(), tags.end(), [&](const KnownTag &tag) {
        return tag.decider == field && tag.isRefused != nullptr && tag.isRefused(text) &&
               examined.record.bytes().contains(tag.tag.toLatin1());
    });
}

/// The line that a repair puts for a field: that of a new record, unless the commentary tells that
/// there is somebody.
QString fillFor(const Examined &examined, int field)
{
    const QString text = examined.known(field).newText;
    const QString any = u"Any"_s;
    const bool isAny = isRefused(examined, field, text) && !isRefused(examined, field, any) &&
                       examined.rules.takes(field, any.toLatin1());
    return isAny ? any : text;
}

/// What a repair puts where lines are missing.
/// \param doubt see fieldsInDoubt()
QString repairOf(const Examined &examined, const FieldRun &run, const FieldRun &doubt)
{
    const QString text = fillFor(examined, run.first);
    const QString first = captionOf(examined.known(run.first));
    if (run.isOne()) {
        const QString place = run == doubt ? u"there"_s : u"at %1"_s.arg(first);
        return text.isEmpty() ? u"Put an empty line %1"_s.arg(place)
                              : u"Put \"%1\" %2"_s.arg(text, place);
    }
    const QString place = run == doubt
                              ? u"there"_s
                              : u"from %1 to %2"_s.arg(first, captionOf(examined.known(run.last)));
    return u"Put %1 lines %2 as in a new %3"_s.arg(QString::number(run.last - run.first + 1), place,
                                                   recordOf(examined.record.catalog().kind()));
}

/// Whether so much is missing up to the end of a record that its writing was interrupted.
bool isCutShort(const Examined &examined, const FieldRun &run)
{
    return run.last + 1 == examined.record.catalog().fieldCount() && run.last - run.first >= 2;
}

/// Whether the screens write no line for a text that is not in the field's list.
bool isCode(const KnownField &known)
{
    return known.field->coding == Coding::FinisherType ||
           known.field->coding == Coding::QualityWord;
}

/// Which lines are missing, as far as that can be told.
QString whichOf(const Examined &examined, const FieldRun &run, const FieldRun &doubt)
{
    const QString first = captionOf(examined.known(doubt.first));
    const QString last = captionOf(examined.known(doubt.last));
    if (doubt.isOne()) {
        return u"the line for %1 is missing."_s.arg(first);
    }
    if (isCutShort(examined, run)) {
        return u"the lines from %1 on are missing."_s.arg(captionOf(examined.known(run.first)));
    }
    if (run == doubt) {
        return u"the lines from %1 to %2 are missing."_s.arg(first, last);
    }
    const int count = run.last - run.first + 1;
    if (count == 1 && isCode(examined.known(run.first))) {
        return u"one of the lines from %1 to %2 is missing, probably the one for %3."_s.arg(
            first, last, captionOf(examined.known(run.first)));
    }
    if (count == 1) {
        return u"one of the lines from %1 to %2 is missing, and it is not certain which."_s.arg(
            first, last);
    }
    return u"%1 of the lines from %2 to %3 are missing, and it is not certain which."_s.arg(
        QString::number(count), first, last);
}

/// The line of a field; of a broken one its last part.
int lastLineOf(const Examined &examined, int field)
{
    const int whole = examined.step.layout.lineOfField.at(std::size_t(field));
    return examined.step.wholes.at(std::size_t(whole)).last;
}

Problem missing(const Examined &examined, const FieldRun &run)
{
    const FieldRun doubt = fieldsInDoubt(examined.record, examined.step, run);
    const auto lines = int(examined.record.lines().size());
    const bool isShort = lines < examined.record.catalog().fieldCount();
    const int place = run.first == 0 ? 0 : lastLineOf(examined, run.first - 1) + 1;
    std::vector<QByteArray> texts;
    for (int field = run.first; field <= run.last; ++field) {
        texts.push_back(codepage::encode(fillFor(examined, field)).bytes);
    }
    return {.type = Problem::Type::MissingLine,
            .field = run.first,
            .line = place,
            .text = howManyLines(examined) + (isShort ? u"; "_s : u", but "_s) +
                    whichOf(examined, run, doubt) + consequence(examined, place == lines),
            .repair = repairOf(examined, run, doubt),
            .repaired = edits::withInserted(examined.record, place, texts)};
}

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
    return (isLong ? u"%1 (%2) is one too many."_s : u"%1 (%2) does not belong there."_s)
        .arg(lines, quoted(examined.line(run.first).text));
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

void checkStep(const Examined &examined, Problems &problems)
{
    if (examined.record.layout().isWhole()) {
        return;
    }
    for (const FieldRun &run : missingRuns(examined.step.layout)) {
        problems.push_back(missing(examined, run));
    }
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
