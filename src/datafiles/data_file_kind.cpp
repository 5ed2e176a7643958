#include "datafiles/data_file_kind.h"

#include "datafiles/record_fields.h"
#include "datafiles/stipulation_format.h"

#include <algorithm>
#include <array>

namespace tarvold {
namespace {

using namespace fields;

template <std::size_t size>
using FieldList = std::array<const RecordField *, size>;

/// Joins groups of lines that formats share.
template <std::size_t... sizes>
constexpr FieldList<(sizes + ...)> joined(const FieldList<sizes> &...groups)
{
    FieldList<(sizes + ...)> all{};
    auto *end = all.begin();
    ((end = std::copy(groups.begin(), groups.end(), end)), ...);
    return all;
}

constexpr FieldList<1> kAnyMatch = {&kMatchType};
constexpr FieldList<1> kBasicMatch = {&kBasicMatchType};
constexpr FieldList<5> kCriteria = {&kStipulation, &kTitleOnTheLine, &kTitleChangesHands,
                                    &kMatchFinish, &kDqPossible};

constexpr FieldList<20> kSides = {
    &kAttackerNames,         &kAttackerDisposition,   &kAttackerRingStyle,
    &kAttackerGender,        &kAttackerHoldsTitle,    &kAttackerManager,
    &kAttackerManagerGender, &kAttackerManagerWorks,  &kAttackerFinisher,
    &kAttackerStable,        &kReceiverName,          &kReceiverDisposition,
    &kReceiverRingStyle,     &kReceiverGender,        &kReceiverHoldsTitle,
    &kReceiverManager,       &kReceiverManagerGender, &kReceiverManagerWorks,
    &kReceiverFinisher,      &kReceiverStable,
};

/// A turn has dispositions of its own, and leaves out managers and stables.
constexpr FieldList<10> kTurningSides = {
    &kAttackerNames,      &kAttackerRingStyle, &kAttackerGender,    &kAttackerHoldsTitle,
    &kAttackerFinisher,   &kReceiverName,      &kReceiverRingStyle, &kReceiverGender,
    &kReceiverHoldsTitle, &kReceiverFinisher,
};

constexpr FieldList<8> kFeud = {
    &kForTelevisedShows, &kFeudType,        &kFeudingNames, &kFeudingDisposition,
    &kFeudingRingStyle,  &kFeudingFinisher, &kFeudingWith,  &kHeatIncrease,
};

constexpr FieldList<7> kTurn = {
    &kWrestler1Disposition, &kWrestler2Disposition, &kWrestler3Disposition, &kWrestler4Disposition,
    &kTurningSide,          &kAttackerTurns,        &kReceiverTurns,
};

constexpr FieldList<9> kInterviewDetails = {
    &kFeudType,   &kInterviewer, &kTelevised,     &kSide1Disposition, &kSide2Disposition,
    &kSide1Names, &kSide2Names,  &kFeudingGender, &kHeatIncrease,
};

constexpr FieldList<9> kTalkShowDetails = {
    &kHost,       &kHostDisposition,   &kTalkShowName, &kGuest1Name,   &kGuest1Disposition,
    &kGuest2Name, &kGuest2Disposition, &kGuestGender,  &kHeatIncrease,
};

constexpr FieldList<10> kCommentaryLines = [] {
    FieldList<10> lines{};
    std::transform(kCommentary.begin(), kCommentary.end(), lines.begin(),
                   [](const RecordField &field) { return &field; });
    return lines;
}();

constexpr auto kNormalLines = joined(kAnyMatch, kCriteria, kSides, kCommentaryLines);
constexpr auto kRunInLines = joined(kBasicMatch, kCriteria, kSides, kFeud, kCommentaryLines);
constexpr auto kTurnLines = joined(kBasicMatch, kCriteria, kTurningSides, kTurn, kCommentaryLines);
constexpr auto kInterviewLines = joined(kInterviewDetails, kCommentaryLines);
constexpr auto kTalkShowLines = joined(kTalkShowDetails, kCommentaryLines);

} // namespace

// clang-format off
const std::array<DataFileKindRow, 6> kDataFileKinds = {{
    {DataFileKind::NormalEndings, "normreports.tvd",  "normal match endings",       kNormalLines},
    {DataFileKind::RunInEndings,  "feudreports.tvd",  "match endings with run-ins", kRunInLines},
    {DataFileKind::TurnEndings,   "turnreports.tvd",  "match endings with turns",   kTurnLines},
    {DataFileKind::Interviews,    "interviews.tvd",   "interview segments",         kInterviewLines},
    {DataFileKind::TalkShows,     "talkshow.tvd",     "talk show segments",         kTalkShowLines},
    {DataFileKind::Stipulations,  "stipulations.tvd", "match stipulations",         kStipulationFormat},
}};
// clang-format on

const DataFileKindRow &rowOf(DataFileKind kind)
{
    return *std::find_if(kDataFileKinds.begin(), kDataFileKinds.end(),
                         [kind](const DataFileKindRow &row) { return row.kind == kind; });
}

} // namespace tarvold
