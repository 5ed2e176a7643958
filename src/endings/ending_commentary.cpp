#include "endings/ending_commentary.h"

#include "controls/message_box.h"
#include "endings/ending_flow.h"
#include "screens/lists.h"

#include <algorithm>
#include <array>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

/// Neither "Any" nor two names, which are separated by a comma.
bool isOneName(const QString &name)
{
    return name != "Any"_L1 && !name.contains(u',');
}

bool isNoneOrNotInvolved(const QString &text)
{
    return text == "None"_L1 || text == "N/A"_L1;
}

constexpr Refusal kSecondAttacker = {
    {"Form5", "Text2"},
    isOneName,
    "To involve a second attacker, you either need to have the attacker's name as 'Any', or enter "
    "the names of the 2 attackers, separated by a comma, on the Attacker Details screen.",
    messagebox::kTitle};
constexpr Refusal kAttackersManager = {
    {"Form5", "Text1"},
    isNoneOrNotInvolved,
    "You have the attacker's manager name as 'N/A' or 'None', which means you can't involve the "
    "attacker's manager in this finish.",
    messagebox::kTitle};
constexpr Refusal kReceiversManager = {
    {"Form6", "Text1"},
    isNoneOrNotInvolved,
    "You have the receiver's manager name as 'N/A' or 'None', which means you can't involve the "
    "receiver's manager in this finish.",
    messagebox::kTitle};
constexpr Refusal kAttackersStable = {
    {"Form5", "Text3"},
    isNoneOrNotInvolved,
    "You have the attacker's stable as 'N/A' or 'None', which means you can't involve the "
    "attacker's stable in this finish.",
    messagebox::kTitle};
constexpr Refusal kReceiversStable = {
    {"Form6", "Text3"},
    isNoneOrNotInvolved,
    "You have the receiver's stable as 'N/A' or 'None', which means you can't involve the "
    "receiver's stable in this finish.",
    messagebox::kTitle};

/// These two have a shorter title than all other messages.
constexpr char kFeudTitle[] = "Tarvold";
constexpr Refusal kSecondInterferer = {
    {"Form8", "Combo3"},
    lists::isSingles,
    "Interfering Wrestler 2 can only be involved if the feud type is Tag Team.",
    kFeudTitle};
constexpr Refusal kInterferingTeam = {
    {"Form8", "Combo3"},
    lists::isSingles,
    "Interfering Team Name can only be used if the feud type is Tag Team.",
    kFeudTitle};

template <std::size_t size>
using TagTable = std::array<CommentaryTag, size>;

constexpr TagTable<6> kNames = {{
    {"Attacker 1 Full Name", "<att1fullname>"},
    {"Attacker 1 Short Name", "<att1shortname>"},
    {"Attacker 2 Full Name", "<att2fullname>", &kSecondAttacker},
    {"Attacker 2 Short Name", "<att2shortname>", &kSecondAttacker},
    {"Receiver Full Name", "<recfullname>"},
    {"Receiver Short Name", "<recshortname>"},
}};
constexpr TagTable<8> kManagersAndStables = {{
    {"Attacker's Manager Name", "<attmanager>", &kAttackersManager},
    {"Receiver's Manager Name", "<recmanager>", &kReceiversManager},
    {"Attacker's Stable Name", "<attstable>", &kAttackersStable},
    {"Receiver's Stable Name", "<recstable>", &kReceiversStable},
    {"Attacker's Stable Member 1", "<attstablemem1>", &kAttackersStable},
    {"Attacker's Stable Member 2", "<attstablemem2>", &kAttackersStable},
    {"Receiver's Stable Member 1", "<recstablemem1>", &kReceiversStable},
    {"Receiver's Stable Member 2", "<recstablemem2>", &kReceiversStable},
}};
constexpr TagTable<4> kFinishersAndTitles = {{
    {"Attacker's Finisher Name", "<attfinisher>"},
    {"Receiver's Finisher Name", "<recfinisher>"},
    {"Title Name (eg. XWL Title)", "<titlename>"},
    {"Title of Holder (eg. XWL Champion)", "<titleholder>"},
}};
constexpr TagTable<4> kInterferers = {{
    {"Interfering Wrestler 1", "<feudname1>"},
    {"Interfering Wrestler 2", "<feudname2>", &kSecondInterferer},
    {"Interfering Team Name", "<feudteam>", &kInterferingTeam},
    {"Interfering's Finisher Name", "<feudfinisher>"},
}};
constexpr TagTable<6> kTurning = {{
    {"Wrestler 1", "<wrestler1>"},
    {"Wrestler 2", "<wrestler2>"},
    {"Wrestler 3", "<wrestler3>"},
    {"Wrestler 4", "<wrestler4>"},
    {"Tag Team 1", "<tagteam1>"},
    {"Tag Team 2", "<tagteam2>"},
}};

template <std::size_t... sizes>
constexpr TagTable<(sizes + ...)> joined(const TagTable<sizes> &...groups)
{
    TagTable<(sizes + ...)> all{};
    auto *end = all.begin();
    ((end = std::copy(groups.begin(), groups.end(), end)), ...);
    return all;
}

/// A run-in offers all of these, a normal ending those before the interfering wrestlers.
constexpr auto kRunInTags = joined(kNames, kManagersAndStables, kFinishersAndTitles, kInterferers);
constexpr std::size_t kNormalTags = kRunInTags.size() - kInterferers.size();

constexpr auto kTurnTags = joined(kTurning, kNames, kFinishersAndTitles);

/// The commentary screen of one kind of ending.
CommentaryTable tableOf(const char *name, std::span<const CommentaryTag> tags, DataFileKind kind)
{
    return {
        .name = name,
        .heading = "THE MATCH FINISH",
        .instructions =
            "Here you have up to 10 lines of commentary which you can type in for this match "
            "ending. Where specific details are needed, such as a wrestler's name, click on the "
            "list above to insert the relevant code.",
        .tags = tags,
        .addCaption = "Add This Finish",
        .missingMessage = "You haven't written the match finish!",
        .question = "Add this finish to the file?",
        .kind = kind,
        .chain = endingflow::chain()};
}

} // namespace

CommentaryTable Form7::commentaryTable()
{
    return tableOf(kName, std::span(kRunInTags).first(kNormalTags), DataFileKind::NormalEndings);
}

Form7::Form7(Screens &screens) : CommentaryScreen(screens, commentaryTable()) {}

CommentaryTable Form9::commentaryTable()
{
    return tableOf(kName, kRunInTags, DataFileKind::RunInEndings);
}

Form9::Form9(Screens &screens) : CommentaryScreen(screens, commentaryTable()) {}

CommentaryTable Form11::commentaryTable()
{
    return tableOf(kName, kTurnTags, DataFileKind::TurnEndings);
}

Form11::Form11(Screens &screens) : CommentaryScreen(screens, commentaryTable()) {}

} // namespace tarvold
