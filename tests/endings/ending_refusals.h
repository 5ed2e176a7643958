#pragma once

#include "endings/composer_expected.h"
#include "support/commentary_test.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

inline const QStringList kExcluded = {u"None"_s, u"N/A"_s};
inline const QStringList kNotExcluded = {u"none"_s, u"n/a"_s, u"NONE"_s, u"None "_s,
                                         u" "_s,    u"Any"_s, {}};

inline const RefusalRow kSecondAttacker = {
    {"Form5", "Text2"},
    kSecondAttackerMessage,
    "Tarvold Data Editor",
    {u"Rocco Vance"_s, u"any"_s, u" "_s, {}},
    {u"Any"_s, u"Rocco Vance,Dex Vance"_s, u","_s, u",Dex"_s, u"Rocco,"_s}};
inline const RefusalRow kAttackersManager = {
    {"Form5", "Text1"}, kAttackersManagerMessage, "Tarvold Data Editor", kExcluded, kNotExcluded};
inline const RefusalRow kReceiversManager = {
    {"Form6", "Text1"}, kReceiversManagerMessage, "Tarvold Data Editor", kExcluded, kNotExcluded};
inline const RefusalRow kAttackersStable = {
    {"Form5", "Text3"}, kAttackersStableMessage, "Tarvold Data Editor", kExcluded, kNotExcluded};
inline const RefusalRow kReceiversStable = {
    {"Form6", "Text3"}, kReceiversStableMessage, "Tarvold Data Editor", kExcluded, kNotExcluded};

inline const QStringList kSinglesFeud = {u"Singles"_s};
inline const QStringList kOtherFeuds = {u"Tag Team"_s, u"singles"_s,    u"Singles "_s,
                                        u"SINGLES"_s,  u"Blood feud"_s, {}};

/// These two have the shorter title.
inline const RefusalRow kSecondInterferer = {
    {"Form8", "Combo3"},
    "Interfering Wrestler 2 can only be involved if the feud type is Tag Team.",
    "Tarvold",
    kSinglesFeud,
    kOtherFeuds};
inline const RefusalRow kInterferingTeam = {
    {"Form8", "Combo3"},
    "Interfering Team Name can only be used if the feud type is Tag Team.",
    "Tarvold",
    kSinglesFeud,
    kOtherFeuds};

inline constexpr char kFinishInstructions[] =
    "Here you have up to 10 lines of commentary which you can type in for this match ending. Where "
    "specific details are needed, such as a wrestler's name, click on the list above to insert the "
    "relevant code.";

} // namespace tarvold::testing
