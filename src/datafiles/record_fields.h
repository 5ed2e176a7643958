#pragma once

#include "datafiles/record.h"

#include <array>

/// The fields of match endings and segments. Records of several kinds share them.
///
/// A field is known by its address: records and screens that use the same constant mean the same
/// field.
namespace tarvold::fields {

using enum Coding;

// Match criteria.
inline constexpr RecordField kMatchType = {"Match Type", AsShown};
/// Endings with run-ins and turns offer four match types only, so they have a field of their own.
inline constexpr RecordField kBasicMatchType = kMatchType;
inline constexpr RecordField kStipulation = {"Stipulation", AsShown};
inline constexpr RecordField kTitleOnTheLine = {"Title On The Line?", AsShown};
inline constexpr RecordField kTitleChangesHands = {"Title Changes Hands?", AsShown};
inline constexpr RecordField kMatchFinish = {"Match Finish", AsShown};
inline constexpr RecordField kDqPossible = {"DQ Possible In This Match?", AsShown};

// The attacker.
inline constexpr RecordField kAttackerNames = {"Attacker(s) Name(s)", AsShown};
inline constexpr RecordField kAttackerDisposition = {"Attacker(s) Disposition", AsShown};
inline constexpr RecordField kAttackerRingStyle = {"Attacker(s) Ring Style", AsShown};
inline constexpr RecordField kAttackerGender = {"Attacker(s) Gender", AsShown};
inline constexpr RecordField kAttackerHoldsTitle = {"Attacker Is The Title Holder?", AsShown};
inline constexpr RecordField kAttackerManager = {"Attacker(s) Manager Name", AsShown};
inline constexpr RecordField kAttackerManagerGender = {"Attacker(s) Manager's Gender", AsShown};
inline constexpr RecordField kAttackerManagerWorks = {"Attacker(s) Manager - Worker?", AsShown};
inline constexpr RecordField kAttackerFinisher = {"Attacker(s) Finisher Type", FinisherType};
inline constexpr RecordField kAttackerStable = {"Attacker(s) Stable", AsShown};

// The receiver.
inline constexpr RecordField kReceiverName = {"Receiver Name", AsShown};
inline constexpr RecordField kReceiverDisposition = {"Receiver Disposition", AsShown};
inline constexpr RecordField kReceiverRingStyle = {"Receiver Ring Style", AsShown};
inline constexpr RecordField kReceiverGender = {"Receiver Gender", AsShown};
inline constexpr RecordField kReceiverHoldsTitle = {"Receiver Is The Title Holder?", AsShown};
inline constexpr RecordField kReceiverManager = {"Receiver Manager Name", AsShown};
inline constexpr RecordField kReceiverManagerGender = {"Receiver Manager's Gender", AsShown};
inline constexpr RecordField kReceiverManagerWorks = {"Receiver Manager - Worker?", AsShown};
inline constexpr RecordField kReceiverFinisher = {"Receiver Finisher Type", FinisherType};
inline constexpr RecordField kReceiverStable = {"Receiver Stable", AsShown};

// The feud, of a run-in or of a segment.
inline constexpr RecordField kForTelevisedShows = {"For Televised Shows?", AsShown};
inline constexpr RecordField kFeudType = {"Type of Feud", AsShown};
inline constexpr RecordField kFeudingNames = {"Feuding Wrestler(s)", AsShown};
inline constexpr RecordField kFeudingDisposition = {"Feuding Wrestler's Disposition", AsShown};
inline constexpr RecordField kFeudingRingStyle = {"Feud Wrestler's Ring Style", AsShown};
inline constexpr RecordField kFeudingFinisher = {"Feuding Wrestler's Finisher Type", FinisherType};
inline constexpr RecordField kFeudingWith = {"Feuding With", AsShown};
inline constexpr RecordField kHeatIncrease = {"Feud Heat Increase", Number};

// The turn.
inline constexpr RecordField kWrestler1Disposition = {"Wrestler 1 Disposition", AsShown};
inline constexpr RecordField kWrestler2Disposition = {"Wrestler 2 Disposition", AsShown};
inline constexpr RecordField kWrestler3Disposition = {"Wrestler 3 Disposition", AsShown};
inline constexpr RecordField kWrestler4Disposition = {"Wrestler 4 Disposition", AsShown};
inline constexpr RecordField kTurningSide = {"Turning Wrestler(s) Are On", AsShown};
inline constexpr RecordField kAttackerTurns = {"Turning Wrestler is Attacker?", AsShown};
inline constexpr RecordField kReceiverTurns = {"Turning Wrestler is Receiver?", AsShown};

// The interview.
inline constexpr RecordField kInterviewer = {"Interviewer?", AsShown};
inline constexpr RecordField kTelevised = {"Televised?", AsShown};
inline constexpr RecordField kSide1Disposition = {"Disposition Of Side 1", AsShown};
inline constexpr RecordField kSide2Disposition = {"Disposition Of Side 2", AsShown};
inline constexpr RecordField kSide1Names = {"Side 1 Wrestler Name(s)", AsShown};
inline constexpr RecordField kSide2Names = {"Side 2 Wrestler Name(s)", AsShown};
inline constexpr RecordField kFeudingGender = {"Gender of Feuding Wrestlers", AsShown};

// The talk show.
inline constexpr RecordField kHost = {"Host of Talk Show", AsShown};
inline constexpr RecordField kHostDisposition = {"Disposition Of Host", AsShown};
inline constexpr RecordField kTalkShowName = {"Name of Talk Show", AsShown};
inline constexpr RecordField kGuest1Name = {"Name of Guest # 1", AsShown};
inline constexpr RecordField kGuest1Disposition = {"Disposition Of Guest # 1", AsShown};
inline constexpr RecordField kGuest2Name = {"Name of Guest # 2", AsShown};
inline constexpr RecordField kGuest2Disposition = {"Disposition Of Guest # 2", AsShown};
inline constexpr RecordField kGuestGender = {"Gender of Guests", AsShown};

/// The ten lines of commentary, the last of every record but a stipulation.
inline constexpr std::array<RecordField, 10> kCommentary = {{
    {"Commentary line 1", AsShown},
    {"Commentary line 2", BlankIfEmpty},
    {"Commentary line 3", BlankIfEmpty},
    {"Commentary line 4", BlankIfEmpty},
    {"Commentary line 5", BlankIfEmpty},
    {"Commentary line 6", BlankIfEmpty},
    {"Commentary line 7", BlankIfEmpty},
    {"Commentary line 8", BlankIfEmpty},
    {"Commentary line 9", BlankIfEmpty},
    {"Commentary line 10", BlankIfEmpty},
}};

} // namespace tarvold::fields
