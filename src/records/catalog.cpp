#include "records/catalog.h"

#include "endings/attacker_receiver.h"
#include "endings/ending_commentary.h"
#include "endings/ending_flow.h"
#include "endings/feud_details.h"
#include "endings/match_criteria.h"
#include "endings/turn_details.h"
#include "segments/interview_details.h"
#include "segments/segment_commentary.h"
#include "segments/segment_flow.h"
#include "segments/talk_show_details.h"
#include "stipulations/form_tables.h"

#include <algorithm>

namespace tarvold::records {
namespace {

/// What the screens of a kind know: their fields, what these start with, and the commentary.
struct Screening
{
    struct Form
    {
        const char *screen;
        std::span<const Field> fields;
    };
    std::vector<Form> forms;
    std::optional<MatchEnding> ending;
    std::span<const Preset> presets;
    std::optional<CommentaryTable> commentary;
};

Screening endings(MatchEnding kind, const CommentaryTable &commentary)
{
    Screening screens = {.forms = {{Form4::kName, Form4::fields()},
                                   {Form5::kName, Form5::fields()},
                                   {Form6::kName, Form6::fields()}},
                         .ending = kind,
                         .presets = endingflow::endingRow(kind).ownValues,
                         .commentary = commentary};
    if (kind == MatchEnding::RunIn) {
        screens.forms.push_back({Form8::kName, Form8::fields()});
    } else if (kind == MatchEnding::Turn) {
        screens.forms.push_back({Form10::kName, Form10::fields()});
    }
    return screens;
}

Screening screensOf(DataFileKind kind)
{
    switch (kind) {
    case DataFileKind::NormalEndings:
        return endings(MatchEnding::Normal, Form7::commentaryTable());
    case DataFileKind::RunInEndings:
        return endings(MatchEnding::RunIn, Form9::commentaryTable());
    case DataFileKind::TurnEndings:
        return endings(MatchEnding::Turn, Form11::commentaryTable());
    case DataFileKind::Interviews:
        return {.forms = {{Form12::kName, Form12::fields()}},
                .ending = {},
                .presets = segmentflow::interviewValues(),
                .commentary = Form13::commentaryTable()};
    case DataFileKind::TalkShows:
        return {.forms = {{Form14::kName, Form14::fields()}},
                .ending = {},
                .presets = segmentflow::talkShowValues(),
                .commentary = Form15::commentaryTable()};
    case DataFileKind::Stipulations:
        break;
    }
    return {};
}

bool isSame(const ControlRef &one, const ControlRef &other)
{
    return qstrcmp(one.screen, other.screen) == 0 && qstrcmp(one.control, other.control) == 0;
}

/// What a flow puts into a control at its start; nullptr if the control keeps its text.
const char *startValue(const Screening &screens, const ControlRef &control)
{
    for (const Preset &preset : screens.presets) {
        if (isSame(preset.control, control)) {
            return preset.value;
        }
    }
    for (const auto &[screen, rows] : endingflow::values()) {
        for (const endingflow::ValueRow &row : rows) {
            if (screens.ending && isSame({screen, row.control}, control)) {
                return row.values.at(static_cast<std::size_t>(*screens.ending));
            }
        }
    }
    return nullptr;
}

/// What a control shows in a record that nobody filled in.
QString startText(const Screening &screens, const char *screen, const Field &row)
{
    if (const char *value = startValue(screens, {screen, row.control}); value != nullptr) {
        return QLatin1StringView(value);
    }
    return QLatin1StringView(row.items.empty() ? row.designText : row.items.front());
}

QString captionOf(const RecordField &field)
{
    const QString name = QLatin1StringView(field.name);
    return name.endsWith(u':') ? name.chopped(1) : name;
}

void addItems(KnownField &known, Items items)
{
    for (const char *item : items) {
        const QString text = QLatin1StringView(item);
        known.items << text;
        known.words << lineOf(known.field->coding, text).value_or(text);
    }
}

/// A field of a screen; a commentary line if no screen has it.
KnownField knownField(const Screening &screens, const RecordField &field)
{
    KnownField known = {.field = &field, .caption = captionOf(field)};
    for (const auto &[screen, rows] : screens.forms) {
        for (const Field &row : rows) {
            if (row.field == &field) {
                addItems(known, row.items);
                const QString text = startText(screens, screen, row);
                known.newText = lineOf(field.coding, text).value_or(text);
                return known;
            }
        }
    }
    known.newText = lineOf(field.coding, QString()).value_or(QString());
    return known;
}

/// The list that the stipulation form offers for a control.
Items stipulationItems(const stipulationform::FormLine &line)
{
    for (const auto &rows : {stipulationform::upperFields(), stipulationform::lowerFields()}) {
        for (const Field &row : rows) {
            if (qstrcmp(row.control, line.control) == 0) {
                return row.items;
            }
        }
    }
    for (const auto &column : stipulationform::kValueColumns) {
        if (line.field == column.draw || line.field == column.entertainment) {
            return stipulationform::valueItems(column.offersNa);
        }
    }
    return {};
}

/// A stipulation may belong to any match type that a match ending may be limited to, also to those
/// that its form does not offer.
void addOtherMatchTypes(KnownField &known)
{
    for (const Field &row : Form4::fields()) {
        for (const char *item : row.field == &fields::kMatchType ? row.items : Items()) {
            const QString word = QLatin1StringView(item);
            known.words += known.words.contains(word) ? QStringList() : QStringList(word);
        }
    }
}

/// The field that a control of a kind's screens feeds; nullptr if there is none.
const RecordField *fieldOf(const Screening &screens, const ControlRef &control)
{
    for (const auto &[screen, rows] : screens.forms) {
        for (const Field &row : rows) {
            if (isSame({screen, row.control}, control)) {
                return row.field;
            }
        }
    }
    return nullptr;
}

} // namespace

const Catalog &Catalog::of(DataFileKind kind)
{
    static const std::vector<Catalog> all = [] {
        std::vector<Catalog> made;
        made.reserve(kDataFileKinds.size());
        for (const DataFileKindRow &row : kDataFileKinds) {
            made.push_back(Catalog(row.kind));
        }
        return made;
    }();
    return *std::find_if(all.begin(), all.end(),
                         [kind](const Catalog &catalog) { return catalog.kind() == kind; });
}

int Catalog::placeOf(const RecordField &field) const
{
    const auto found = std::find_if(m_fields.begin(), m_fields.end(),
                                    [&](const KnownField &known) { return known.field == &field; });
    return found == m_fields.end() ? -1 : int(found - m_fields.begin());
}

Catalog::Catalog(DataFileKind kind) : m_kind(kind)
{
    if (kind == DataFileKind::Stipulations) {
        for (const stipulationform::FormLine &line : stipulationform::kLines) {
            m_fields.push_back({.field = line.field,
                                .caption = captionOf(*line.field),
                                .newText = QLatin1StringView(line.newValue)});
            addItems(m_fields.back(), stipulationItems(line));
        }
        addOtherMatchTypes(m_fields.at(std::size_t(placeOf(stipulationfields::kMatchType))));
        m_firstCommentary = fieldCount();
        return;
    }
    const Screening screens = screensOf(kind);
    for (const RecordField *field : rowOf(kind).format) {
        m_fields.push_back(knownField(screens, *field));
    }
    m_firstCommentary = placeOf(fields::kCommentary.front());
    for (const CommentaryTag &tag : screens.commentary->tags) {
        KnownTag known = {.tag = QLatin1StringView(tag.tag),
                          .meaning = QLatin1StringView(tag.item)};
        const RecordField *field =
            tag.refusal == nullptr ? nullptr : fieldOf(screens, tag.refusal->box);
        if (field != nullptr) {
            known.decider = placeOf(*field);
            known.isRefused = tag.refusal->isRefused;
            known.message = QLatin1StringView(tag.refusal->message);
        }
        m_tags.push_back(known);
    }
}

} // namespace tarvold::records
