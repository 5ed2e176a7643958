#include "datafiles/record_fields.h"
#include "datafiles/stipulation_format.h"
#include "datafiles/tags.h"
#include "records/names.h"
#include "records/preview.h"
#include "screens/lists.h"

#include <algorithm>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

/// How much of a name a tag stands for.
enum class Form { Full, Short };

/// Which of a record's own names a tag stands for.
struct NameSource
{
    const char *tag;
    const RecordField *field;
    qsizetype which = 0; ///< of the names in that field
    Form form = Form::Full;
};

// The tag "<attstable>" and its like have one name each, so a comma is a part of it.
constexpr qsizetype kWholeText = -1;

constexpr NameSource kEndingSources[] = {
    {"<att1fullname>", &fields::kAttackerNames},
    {"<att1shortname>", &fields::kAttackerNames, 0, Form::Short},
    {"<att2fullname>", &fields::kAttackerNames, 1},
    {"<att2shortname>", &fields::kAttackerNames, 1, Form::Short},
    {"<recfullname>", &fields::kReceiverName},
    {"<recshortname>", &fields::kReceiverName, 0, Form::Short},
    {"<attmanager>", &fields::kAttackerManager, kWholeText},
    {"<recmanager>", &fields::kReceiverManager, kWholeText},
    {"<attstable>", &fields::kAttackerStable, kWholeText},
    {"<recstable>", &fields::kReceiverStable, kWholeText},
    {"<feudname1>", &fields::kFeudingNames},
    {"<feudname2>", &fields::kFeudingNames, 1},
};

constexpr NameSource kSinglesInterviewSources[] = {
    {"<wrestler1longname>", &fields::kSide1Names},
    {"<wrestler1shortname>", &fields::kSide1Names, 0, Form::Short},
    {"<wrestler2longname>", &fields::kSide2Names},
    {"<wrestler2shortname>", &fields::kSide2Names, 0, Form::Short},
};

/// As in a tag match with a turn, wrestlers 1 and 2 are one team, 3 and 4 the other.
constexpr NameSource kTeamInterviewSources[] = {
    {"<wrestler1longname>", &fields::kSide1Names},
    {"<wrestler1shortname>", &fields::kSide1Names, 0, Form::Short},
    {"<wrestler2longname>", &fields::kSide1Names, 1},
    {"<wrestler2shortname>", &fields::kSide1Names, 1, Form::Short},
    {"<wrestler3longname>", &fields::kSide2Names},
    {"<wrestler3shortname>", &fields::kSide2Names, 0, Form::Short},
    {"<wrestler4longname>", &fields::kSide2Names, 1},
    {"<wrestler4shortname>", &fields::kSide2Names, 1, Form::Short},
};

constexpr NameSource kTalkShowSources[] = {
    {"<hostname>", &fields::kHost, kWholeText},
    {"<talkshowname>", &fields::kTalkShowName, kWholeText},
    {"<guest1longname>", &fields::kGuest1Name},
    {"<guest1shortname>", &fields::kGuest1Name, 0, Form::Short},
    {"<guest2longname>", &fields::kGuest2Name},
    {"<guest2shortname>", &fields::kGuest2Name, 0, Form::Short},
};

std::span<const NameSource> sourcesOf(const Record &record)
{
    switch (record.catalog().kind()) {
    case DataFileKind::NormalEndings:
    case DataFileKind::RunInEndings:
    case DataFileKind::TurnEndings:
        return kEndingSources;
    case DataFileKind::Interviews:
        if (lists::isSingles(record.shownText(fields::kFeudType))) {
            return kSinglesInterviewSources;
        }
        return kTeamInterviewSources;
    case DataFileKind::TalkShows:
        return kTalkShowSources;
    case DataFileKind::Stipulations:
        break;
    }
    return {};
}

/// The record's own name for a tag; empty if it has none.
QString ownName(const Record &record, const QString &tag)
{
    const std::span<const NameSource> sources = sourcesOf(record);
    const auto source = std::find_if(sources.begin(), sources.end(), [&tag](const NameSource &row) {
        return tag == QLatin1StringView(row.tag);
    });
    if (source == sources.end()) {
        return {};
    }
    const QString text = record.shownText(*source->field);
    if (source->which == kWholeText) {
        return names::isNoName(text.trimmed()) ? QString() : text.trimmed();
    }
    const QStringList all =
        names::mayBeSeveral(*source->field) ? names::in(text) : names::only(text);
    return source->form == Form::Short ? names::shortOf(all, source->which)
                                       : all.value(source->which);
}

bool isKnown(const Catalog &catalog, const QString &tag)
{
    return std::any_of(catalog.tags().begin(), catalog.tags().end(),
                       [&tag](const KnownTag &known) { return known.tag == tag; });
}

ShownPart filledIn(const Record &record, const Cast &cast, const QString &tag)
{
    if (!isKnown(record.catalog(), tag)) {
        return {ShownPart::Type::UnknownTag, tag};
    }
    const QString own = ownName(record, tag);
    return {ShownPart::Type::FilledIn, own.isEmpty() ? cast.textFor(tag) : own};
}

/// The lines of the commentary that the audience sees, as they stand in the file.
QStringList seenLines(const Record &record)
{
    const Catalog &catalog = record.catalog();
    QStringList lines;
    for (int field = catalog.firstCommentary(); field < catalog.fieldCount(); ++field) {
        const std::optional<QString> line = record.lineText(field);
        const bool isFirst = field == catalog.firstCommentary();
        if (line && (isFirst || *line != QLatin1StringView(kBlankLine))) {
            lines << *line;
        }
    }
    return lines;
}

/// Of a tag that is not closed, only the first word: nobody knows where it was meant to end.
QString beginningOf(const tags::Tag &tag)
{
    return tag.text.section(u' ', 0, 0);
}

void add(ShownLine &line, const ShownPart &part)
{
    if (part.text.isEmpty()) {
        return;
    }
    if (!line.empty() && line.back().type == part.type && part.type == ShownPart::Type::Written) {
        line.back().text += part.text;
    } else {
        line.push_back(part);
    }
}

ShownLine shownLine(const Record &record, const Cast &cast, const QString &text)
{
    using enum ShownPart::Type;
    ShownLine line;
    qsizetype done = 0;
    for (auto tag = tags::nextTag(text, 0); tag; tag = tags::nextTag(text, done)) {
        add(line, {Written, text.sliced(done, tag->from - done)});
        if (tag->isClosed) {
            add(line, filledIn(record, cast, tag->text));
            done = tag->end();
        } else {
            const QString beginning = beginningOf(*tag);
            add(line, {UnknownTag, beginning});
            done = tag->from + beginning.size();
        }
    }
    add(line, {Written, text.sliced(done)});
    return line;
}

} // namespace

std::vector<ShownLine> asShown(const Record &record, const Cast &cast)
{
    std::vector<ShownLine> lines;
    if (record.catalog().kind() == DataFileKind::Stipulations) {
        if (const QString text = record.shownText(stipulationfields::kShownAs); !text.isEmpty()) {
            lines.push_back({{ShownPart::Type::Written, text}});
        }
        return lines;
    }
    for (const QString &line : seenLines(record)) {
        lines.push_back(shownLine(record, cast, line));
    }
    return lines;
}

QStringList openTags(const Record &record)
{
    QStringList open;
    for (const QString &line : seenLines(record)) {
        for (auto tag = tags::nextTag(line, 0); tag; tag = tags::nextTag(line, tag->end())) {
            if (!open.contains(tag->text) && isKnown(record.catalog(), tag->text) &&
                ownName(record, tag->text).isEmpty()) {
                open << tag->text;
            }
        }
    }
    return open;
}

} // namespace tarvold::records
