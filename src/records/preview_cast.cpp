#include "records/preview.h"

#include <algorithm>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

struct ExampleMember
{
    const char *tag;
    const char *text;
};

/// The first two and the league are those of the screens' own examples, the others plainly made up.
constexpr ExampleMember kExample[] = {
    {"<att1fullname>", "Rocco Vance"},
    {"<att1shortname>", "Rocco"},
    {"<att2fullname>", "Dex Vance"},
    {"<att2shortname>", "Dex"},
    {"<recfullname>", "Kit Sample"},
    {"<recshortname>", "Sample"},
    {"<attmanager>", "Ann Attmanager"},
    {"<recmanager>", "Rex Recmanager"},
    {"<attstable>", "The First Stable"},
    {"<recstable>", "The Second Stable"},
    {"<attstablemem1>", "Al First"},
    {"<attstablemem2>", "Bo First"},
    {"<recstablemem1>", "Cy Second"},
    {"<recstablemem2>", "Di Second"},
    {"<attfinisher>", "Vance Driver"},
    {"<recfinisher>", "Sample Slam"},
    {"<titlename>", "XWL Title"},
    {"<titleholder>", "XWL Champion"},
    {"<feudname1>", "Ty Rival"},
    {"<feudname2>", "Vi Rival"},
    {"<feudteam>", "The Rivals"},
    {"<feudfinisher>", "Rival Drop"},
    {"<wrestler1>", "Rocco Vance"},
    {"<wrestler2>", "Dex Vance"},
    {"<wrestler3>", "Kit Sample"},
    {"<wrestler4>", "Lee Sample"},
    {"<tagteam1>", "The Vances"},
    {"<tagteam2>", "The Samples"},
    {"<wrestler1longname>", "Rocco Vance"},
    {"<wrestler1shortname>", "Rocco"},
    {"<wrestler2longname>", "Dex Vance"},
    {"<wrestler2shortname>", "Dex"},
    {"<wrestler3longname>", "Kit Sample"},
    {"<wrestler3shortname>", "Kit"},
    {"<wrestler4longname>", "Lee Sample"},
    {"<wrestler4shortname>", "Lee"},
    {"<interviewer>", "Quin Asker"},
    {"<town>", "Sampleton"},
    {"<hostname>", "Hal Host"},
    {"<guest1longname>", "Rocco Vance"},
    {"<guest1shortname>", "Rocco"},
    {"<guest2longname>", "Dex Vance"},
    {"<guest2shortname>", "Dex"},
    {"<talkshowname>", "The Sample Hour"},
};

} // namespace

Cast Cast::example()
{
    Cast cast;
    for (const ExampleMember &member : kExample) {
        cast.members.push_back({QLatin1StringView(member.tag), QLatin1StringView(member.text)});
    }
    return cast;
}

Cast &Cast::ofThisRun()
{
    static Cast cast = example();
    return cast;
}

QString Cast::textFor(const QString &tag) const
{
    const auto found = std::find_if(members.begin(), members.end(),
                                    [&tag](const Member &member) { return member.tag == tag; });
    return found == members.end() ? QString() : found->text;
}

void Cast::setText(const QString &tag, const QString &text)
{
    const auto found = std::find_if(members.begin(), members.end(),
                                    [&tag](const Member &member) { return member.tag == tag; });
    if (found == members.end()) {
        members.push_back({tag, text});
    } else {
        found->text = text;
    }
}

} // namespace tarvold::records
