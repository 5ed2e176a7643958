#include "endings/ending_tags.h"

#include "shell/message_box.h"

namespace tarvold::endingtags {
namespace {

/// Neither any attacker nor two names, which a comma separates.
bool isOneName(const QString &name)
{
    return name != QLatin1StringView("Any") && !name.contains(u',');
}

bool isNoneOrNotInvolved(const QString &text)
{
    return text == QLatin1StringView("None") || text == QLatin1StringView("N/A");
}

} // namespace

const Refusal kSecondAttacker = {
    {"Form5", "Text2"},
    isOneName,
    "To involve a second attacker, you either need to have the attacker's name as 'Any', or enter "
    "the names of the 2 attackers, separated by a comma, on the Attacker Details screen.",
    messagebox::kTitle};
const Refusal kAttackersManager = {
    {"Form5", "Text1"},
    isNoneOrNotInvolved,
    "You have the attacker's manager name as 'N/A' or 'None', which means you can't involve the "
    "attacker's manager in this finish.",
    messagebox::kTitle};
const Refusal kReceiversManager = {
    {"Form6", "Text1"},
    isNoneOrNotInvolved,
    "You have the receiver's manager name as 'N/A' or 'None', which means you can't involve the "
    "receiver's manager in this finish.",
    messagebox::kTitle};
const Refusal kAttackersStable = {
    {"Form5", "Text3"},
    isNoneOrNotInvolved,
    "You have the attacker's stable as 'N/A' or 'None', which means you can't involve the "
    "attacker's stable in this finish.",
    messagebox::kTitle};
const Refusal kReceiversStable = {
    {"Form6", "Text3"},
    isNoneOrNotInvolved,
    "You have the receiver's stable as 'N/A' or 'None', which means you can't involve the "
    "receiver's stable in this finish.",
    messagebox::kTitle};

const std::array<CommentaryTag, 18> kNormal = {{
    {"Attacker 1 Full Name", "<att1fullname>"},
    {"Attacker 1 Short Name", "<att1shortname>"},
    {"Attacker 2 Full Name", "<att2fullname>", &kSecondAttacker},
    {"Attacker 2 Short Name", "<att2shortname>", &kSecondAttacker},
    {"Receiver Full Name", "<recfullname>"},
    {"Receiver Short Name", "<recshortname>"},
    {"Attacker's Manager Name", "<attmanager>", &kAttackersManager},
    {"Receiver's Manager Name", "<recmanager>", &kReceiversManager},
    {"Attacker's Stable Name", "<attstable>", &kAttackersStable},
    {"Receiver's Stable Name", "<recstable>", &kReceiversStable},
    {"Attacker's Stable Member 1", "<attstablemem1>", &kAttackersStable},
    {"Attacker's Stable Member 2", "<attstablemem2>", &kAttackersStable},
    {"Receiver's Stable Member 1", "<recstablemem1>", &kReceiversStable},
    {"Receiver's Stable Member 2", "<recstablemem2>", &kReceiversStable},
    {"Attacker's Finisher Name", "<attfinisher>"},
    {"Receiver's Finisher Name", "<recfinisher>"},
    {"Title Name (eg. XWL Title)", "<titlename>"},
    {"Title of Holder (eg. XWL Champion)", "<titleholder>"},
}};

} // namespace tarvold::endingtags
