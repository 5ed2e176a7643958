#include "records/similar.h"

#include "controls/controls.h"
#include "endings/ending_commentary.h"
#include "records/step.h"
#include "screens/screens.h"
#include "segments/segment_commentary.h"
#include "stipulations/form_tables.h"
#include "stipulations/stipulation_form.h"

#include <QScrollBar>

#include <algorithm>

namespace tarvold::records::similar {

using namespace Qt::StringLiterals;

namespace {

constexpr char kEnding[] = "Finish or leave the match ending that you are writing first.";
constexpr char kInterview[] = "Finish or leave the interview segment that you are writing first.";
constexpr char kTalkShow[] = "Finish or leave the talk show segment that you are writing first.";

struct Work
{
    const char *screen;
    const char *refusal;
};

/// What the user is doing on each screen but the main menu.
constexpr Work kWorks[] = {
    {"Form4", kEnding},
    {"Form5", kEnding},
    {"Form6", kEnding},
    {"Form7", kEnding},
    {"Form8", kEnding},
    {"Form9", kEnding},
    {"Form10", kEnding},
    {"Form11", kEnding},
    {"Form12", kInterview},
    {"Form13", kInterview},
    {"Form14", kTalkShow},
    {"Form15", kTalkShow},
    {"Form16", "Leave the list of match stipulations first."},
    {"Form3", "Finish or leave the match stipulation that you are editing first."},
    {"Form2", "Finish or leave the import first."},
};

/// The commentary screen of a kind of record, which knows the controls of its whole flow.
const char *commentaryOf(DataFileKind kind)
{
    switch (kind) {
    case DataFileKind::NormalEndings:
        return Form7::kName;
    case DataFileKind::RunInEndings:
        return Form9::kName;
    case DataFileKind::TurnEndings:
        return Form11::kName;
    case DataFileKind::Interviews:
        return Form13::kName;
    case DataFileKind::TalkShows:
        return Form15::kName;
    case DataFileKind::Stipulations:
        break;
    }
    return nullptr;
}

/// A line is missing, as far as can be told that of this field.
QString noteOnMissing(const Record &record, int field)
{
    const auto caption = [&record](int any) {
        return record.catalog().fields().at(std::size_t(any)).caption;
    };
    const Step step = Step::of(record);
    for (const FieldRun &run : missingRuns(step.layout)) {
        const FieldRun doubt = fieldsInDoubt(record, step, run);
        if (run.first <= field && field <= run.last && doubt != run) {
            return u"A line from \"%1\" to \"%2\" is missing, and it is not certain which; the box "
                   u"of "
                   "\"%3\" is as for a new record."_s.arg(caption(doubt.first), caption(doubt.last),
                                                          caption(field));
        }
    }
    return u"The line for \"%1\" is missing; its box is as for a new record."_s.arg(caption(field));
}

/// What of a field's line cannot be shown or saved as it stands; empty if nothing.
QString noteOn(const KnownField &known, QByteArrayView line)
{
    const Coding coding = known.field->coding;
    const std::optional<QString> shown = textOf(coding, line);
    const QString quoted = u"\"%1\" for \"%2\" "_s.arg(codepage::decode(line), known.caption);
    if (!shown) {
        return quoted + u"is no word that its screen knows; it is shown as it stands."_s;
    }
    const int number = controls::numericValue(*shown);
    if (coding == Coding::Number && *shown != QString::number(qBound(1, number, 100))) {
        return quoted +
               u"is no whole number from 1 to 100; the bar shows %1."_s.arg(qBound(1, number, 100));
    }
    if (coding == Coding::AlwaysNo && *shown != "No"_L1) {
        return quoted + u"is not shown; it is saved as \"No\"."_s;
    }
    return {};
}

QStringList notesOn(const Record &record)
{
    QStringList notes;
    for (int place = 0; const KnownField &known : record.catalog().fields()) {
        const auto line = record.lineBytes(place);
        notes << (line ? noteOn(known, *line) : noteOnMissing(record, place));
        ++place;
    }
    notes.removeAll(QString());
    constexpr qsizetype kMost = 6;
    if (notes.size() > kMost) {
        const qsizetype more = notes.size() - kMost + 1;
        notes.resize(kMost - 1);
        notes << u"%1 more fields are not shown as they stand in the file."_s.arg(more);
    }
    const std::size_t surplus = record.layout().surplus.size();
    if (surplus == 1) {
        notes << u"One line belongs to no field and is left out."_s;
    } else if (surplus > 1) {
        notes << u"%1 lines belong to no field and are left out."_s.arg(surplus);
    }
    return notes;
}

void show(QWidget &control, const QString &text)
{
    if (auto *bar = qobject_cast<QScrollBar *>(&control)) {
        bar->setValue(qBound(bar->minimum(), controls::numericValue(text), bar->maximum()));
    } else {
        controls::setTextOf(control, text);
    }
}

void fillForm(Form3 &form, const Record &record)
{
    for (int place = 0; const stipulationform::FormLine &line : stipulationform::kLines) {
        const auto bytes = record.lineBytes(place++);
        if (bytes && !form.show(line, *bytes)) {
            form.setText(line.control, codepage::decode(*bytes));
        }
    }
}

} // namespace

QString refusal(const Screens &screens)
{
    const Screen *shown = screens.shown();
    const QString name = shown != nullptr ? shown->objectName() : QString();
    const auto *work = std::find_if(std::begin(kWorks), std::end(kWorks), [&name](const Work &row) {
        return name == QLatin1StringView(row.screen);
    });
    return work == std::end(kWorks) ? QString() : QLatin1StringView(work->refusal);
}

QString refusal(const Record &record)
{
    // Qt lays out every character of a box, each time it changes.
    constexpr qsizetype kMostCharacters = 1'000'000;
    for (int place = 0; const KnownField &known : record.catalog().fields()) {
        const qsizetype length = record.lineBytes(place++).value_or(QByteArrayView()).size();
        if (length > kMostCharacters) {
            return u"The line for \"%1\" has %2 characters. Its screen can show %3 at most."_s.arg(
                known.caption, QString::number(length), QString::number(kMostCharacters));
        }
    }
    return {};
}

QStringList fill(Screens &screens, const Record &record)
{
    const char *commentary = commentaryOf(record.catalog().kind());
    if (commentary == nullptr) {
        fillForm(screens.get<Form3>(), record);
        return notesOn(record);
    }
    auto &last = dynamic_cast<CommentaryScreen &>(screens[commentary]);
    for (int place = 0; const KnownField &known : record.catalog().fields()) {
        if (record.lineBytes(place)) {
            // Not a choice by the user, so the feud type that follows the match type stays.
            show(last.source(*known.field), record.shownText(place));
        }
        ++place;
    }
    return notesOn(record);
}

} // namespace tarvold::records::similar
