// Lines that are missing.

#include "datafiles/code_page.h"
#include "records/checks.h"
#include "records/edits.h"
#include "records/step_words.h"
#include "records/wording.h"

#include <algorithm>

namespace tarvold::records::checks {

using namespace Qt::StringLiterals;
using namespace wording;

namespace {

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
    return run.first > 0 && run.last + 1 == examined.record.catalog().fieldCount() &&
           run.last - run.first >= 2;
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
    if (count == 1 && mayLackLine(examined.known(run.first).field->coding)) {
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

} // namespace

void checkStep(const Examined &examined, Problems &problems)
{
    if (examined.record.layout().isWhole()) {
        return;
    }
    for (const FieldRun &run : missingRuns(examined.step.layout)) {
        problems.push_back(missing(examined, run));
    }
    checkSurplus(examined, problems);
}

} // namespace tarvold::records::checks
