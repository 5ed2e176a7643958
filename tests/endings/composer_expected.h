#pragma once

#include <QStringList>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

inline constexpr char kSecondAttackerMessage[] =
    "To involve a second attacker, you either need to have the attacker's name as 'Any', or enter "
    "the names of the 2 attackers, separated by a comma, on the Attacker Details screen.";
inline constexpr char kAttackersManagerMessage[] =
    "You have the attacker's manager name as 'N/A' or 'None', which means you can't involve the "
    "attacker's manager in this finish.";
inline constexpr char kReceiversManagerMessage[] =
    "You have the receiver's manager name as 'N/A' or 'None', which means you can't involve the "
    "receiver's manager in this finish.";
inline constexpr char kAttackersStableMessage[] =
    "You have the attacker's stable as 'N/A' or 'None', which means you can't involve the "
    "attacker's stable in this finish.";
inline constexpr char kReceiversStableMessage[] =
    "You have the receiver's stable as 'N/A' or 'None', which means you can't involve the "
    "receiver's stable in this finish.";

/// A tag, and the field that decides whether it is refused.
struct ExpectedTag
{
    const char *item;
    const char *tag;
    const char *screen = nullptr;
    const char *box = nullptr;
    const char *message = nullptr;
};

inline const ExpectedTag kTags[] = {
    {"Attacker 1 Full Name", "<att1fullname>"},
    {"Attacker 1 Short Name", "<att1shortname>"},
    {"Attacker 2 Full Name", "<att2fullname>", "Form5", "Text2", kSecondAttackerMessage},
    {"Attacker 2 Short Name", "<att2shortname>", "Form5", "Text2", kSecondAttackerMessage},
    {"Receiver Full Name", "<recfullname>"},
    {"Receiver Short Name", "<recshortname>"},
    {"Attacker's Manager Name", "<attmanager>", "Form5", "Text1", kAttackersManagerMessage},
    {"Receiver's Manager Name", "<recmanager>", "Form6", "Text1", kReceiversManagerMessage},
    {"Attacker's Stable Name", "<attstable>", "Form5", "Text3", kAttackersStableMessage},
    {"Receiver's Stable Name", "<recstable>", "Form6", "Text3", kReceiversStableMessage},
    {"Attacker's Stable Member 1", "<attstablemem1>", "Form5", "Text3", kAttackersStableMessage},
    {"Attacker's Stable Member 2", "<attstablemem2>", "Form5", "Text3", kAttackersStableMessage},
    {"Receiver's Stable Member 1", "<recstablemem1>", "Form6", "Text3", kReceiversStableMessage},
    {"Receiver's Stable Member 2", "<recstablemem2>", "Form6", "Text3", kReceiversStableMessage},
    {"Attacker's Finisher Name", "<attfinisher>"},
    {"Receiver's Finisher Name", "<recfinisher>"},
    {"Title Name (eg. XWL Title)", "<titlename>"},
    {"Title of Holder (eg. XWL Champion)", "<titleholder>"},
};

/// Texts of the deciding field with which a tag is refused, and with which it is accepted.
inline const QStringList kRefusedNames = {u"Rocco Vance"_s, u"any"_s, u"ANY"_s, u" "_s, u""_s,
                                          u"N/A"_s,         u"Any "_s};
inline const QStringList kAcceptedNames = {u"Any"_s, u"Rocco Vance,Dex Vance"_s, u","_s, u",Dex"_s,
                                           u"Rocco,"_s};
inline const QStringList kRefusedOthers = {u"None"_s, u"N/A"_s};
inline const QStringList kAcceptedOthers = {u"Any"_s, u"none"_s, u"n/a"_s,       u"None "_s,
                                            u" "_s,   u""_s,     u"The Vances"_s};

} // namespace tarvold::testing
