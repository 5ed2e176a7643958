#pragma once

#include "datafiles/record.h"

#include <array>

namespace tarvold {

/// The fields of a match stipulation.
namespace stipulationfields {

// clang-format off
inline constexpr RecordField kMatchType         = {"Connected With Match Type:",                        Coding::AsShown};
inline constexpr RecordField kName              = {"Name Of Stipulation:",                              Coding::AsShown};
inline constexpr RecordField kShownAs           = {"Shows On Results Screen As:",                       Coding::AsShown};
inline constexpr RecordField kDqPossible        = {"Is DQ Possible In This Match?:",                    Coding::AsShown};
inline constexpr RecordField kDefaultCommentary = {"Use Default Commentary Also?:",                     Coding::AsShown};
inline constexpr RecordField kReserved          = {"Reserved",                                          Coding::AlwaysNo};
inline constexpr RecordField kRunIns            = {"Can There Be Run-Ins For This Match?:",             Coding::AsShown};
inline constexpr RecordField kInjuryRisk        = {"Injury Risk (5% = Normal)",                         Coding::Number};
inline constexpr RecordField kDrawCurrent       = {"Match Draw Value: Current",                         Coding::AsShown};
inline constexpr RecordField kEntCurrent        = {"Match Entertainment Value: Current",                Coding::AsShown};
inline constexpr RecordField kDrawMaximum       = {"Match Draw Value: Maximum",                         Coding::AsShown};
inline constexpr RecordField kEntMaximum        = {"Match Entertainment Value: Maximum",                Coding::AsShown};
inline constexpr RecordField kDrawDecrease      = {"Match Draw Value: When Used, Decrease By",          Coding::AsShown};
inline constexpr RecordField kEntDecrease       = {"Match Entertainment Value: When Used, Decrease By", Coding::AsShown};
inline constexpr RecordField kDrawIncrease      = {"Match Draw Value: Increase Daily By",               Coding::AsShown};
inline constexpr RecordField kEntIncrease       = {"Match Entertainment Value: Increase Daily By",      Coding::AsShown};
inline constexpr RecordField kPromotion         = {"Promotion Initials:",                               Coding::NoOrText};
inline constexpr RecordField kQuality           = {"Rate Match Quality By:",                            Coding::QualityWord};
inline constexpr RecordField kTitleNeeded       = {"Does a title have to be on the line?:",             Coding::AsShown};
// clang-format on

} // namespace stipulationfields

/// The 19 lines of a match stipulation, in their order in the file.
inline constexpr std::array kStipulationFormat = {
    &stipulationfields::kMatchType,
    &stipulationfields::kName,
    &stipulationfields::kShownAs,
    &stipulationfields::kDqPossible,
    &stipulationfields::kDefaultCommentary,
    &stipulationfields::kReserved,
    &stipulationfields::kRunIns,
    &stipulationfields::kInjuryRisk,
    &stipulationfields::kDrawCurrent,
    &stipulationfields::kEntCurrent,
    &stipulationfields::kDrawMaximum,
    &stipulationfields::kEntMaximum,
    &stipulationfields::kDrawDecrease,
    &stipulationfields::kEntDecrease,
    &stipulationfields::kDrawIncrease,
    &stipulationfields::kEntIncrease,
    &stipulationfields::kPromotion,
    &stipulationfields::kQuality,
    &stipulationfields::kTitleNeeded,
};

} // namespace tarvold
