#pragma once

#include "support/commentary_test.h"

namespace tarvold::testing {

inline const QStringList kExcluded = {QStringLiteral("None"), QStringLiteral("N/A")};
inline const QStringList kNotExcluded = {QStringLiteral("none"),
                                         QStringLiteral("n/a"),
                                         QStringLiteral("NONE"),
                                         QStringLiteral("None "),
                                         QStringLiteral(" "),
                                         QStringLiteral("Any"),
                                         {}};

inline const RefusalRow kSecondAttacker = {
    {"Form5", "Text2"},
    "To involve a second attacker, you either need to have the attacker's name as 'Any', or enter "
    "the names of the 2 attackers, separated by a comma, on the Attacker Details screen.",
    "Tarvold Data Editor",
    {QStringLiteral("Rocco Vance"), QStringLiteral("any"), QStringLiteral(" "), {}},
    {QStringLiteral("Any"), QStringLiteral("Rocco Vance,Dex Vance"), QStringLiteral(","),
     QStringLiteral(",Dex"), QStringLiteral("Rocco,")}};
inline const RefusalRow kAttackersManager = {
    {"Form5", "Text1"},
    "You have the attacker's manager name as 'N/A' or 'None', which means you can't involve the "
    "attacker's manager in this finish.",
    "Tarvold Data Editor",
    kExcluded,
    kNotExcluded};
inline const RefusalRow kReceiversManager = {
    {"Form6", "Text1"},
    "You have the receiver's manager name as 'N/A' or 'None', which means you can't involve the "
    "receiver's manager in this finish.",
    "Tarvold Data Editor",
    kExcluded,
    kNotExcluded};
inline const RefusalRow kAttackersStable = {
    {"Form5", "Text3"},
    "You have the attacker's stable as 'N/A' or 'None', which means you can't involve the "
    "attacker's stable in this finish.",
    "Tarvold Data Editor",
    kExcluded,
    kNotExcluded};
inline const RefusalRow kReceiversStable = {
    {"Form6", "Text3"},
    "You have the receiver's stable as 'N/A' or 'None', which means you can't involve the "
    "receiver's stable in this finish.",
    "Tarvold Data Editor",
    kExcluded,
    kNotExcluded};

inline const QStringList kSinglesFeud = {QStringLiteral("Singles")};
inline const QStringList kOtherFeuds = {QStringLiteral("Tag Team"),   QStringLiteral("singles"),
                                        QStringLiteral("Singles "),   QStringLiteral("SINGLES"),
                                        QStringLiteral("Blood feud"), {}};

/// These two bear the shorter title.
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
