// Lines that are missing or too many.

#include "datafiles/code_page.h"
#include "records/checks.h"
#include "records/edits.h"
#include "records/wording.h"

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

/// What a repair puts where lines are missing.
/// \param doubt see fieldsInDoubt()
QString repairOf(const Examined &examined, const FieldRun &run, const FieldRun &doubt)
{
    const QString text = examined.known(run.first).newText;
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

/// Which lines are missing, as far as that can be told.
QString whichOf(const Examined &examined, const FieldRun &run, const FieldRun &doubt)
{
    const QString first = captionOf(examined.known(doubt.first));
    const QString last = captionOf(examined.known(doubt.last));
    if (doubt.isOne()) {
        return u"the line for %1 is missing."_s.arg(first);
    }
    if (run == doubt) {
        return u"the lines from %1 to %2 are missing."_s.arg(first, last);
    }
    const int count = run.last - run.first + 1;
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
        texts.push_back(codepage::encode(examined.known(field).newText).bytes);
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

Problem surplus(const Examined &examined, const SurplusRun &run)
{
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

Problem broken(const Examined &examined, const Step::Whole &whole)
{
    const bool isLf = examined.line(whole.first).end == LineEnd::Lf;
    const QString lines = linesOf(whole.first, whole.last);
    return {.type = Problem::Type::SurplusLine,
            .line = whole.first,
            .text = howManyLines(examined) +
                    u"; %1 were one that was broken by %2 alone."_s.arg(lines,
                                                                        isLf ? u"LF"_s : u"CR"_s) +
                    consequence(examined, false),
            .repair = u"Join %1"_s.arg(lines),
            .repaired = edits::withJoined(examined.record, whole.first, whole.last)};
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
