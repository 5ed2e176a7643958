#pragma once

#include "datafiles/record.h"

#include <array>

namespace tarvold {

/// One line of a stipulation.
using StipulationField = RecordField;

/// The fields of a match stipulation.
namespace stipulationfields {

// clang-format off
inline constexpr StipulationField kMatchType         = {"Connected With Match Type:",                        Coding::AsShown};
inline constexpr StipulationField kName              = {"Name Of Stipulation:",                              Coding::AsShown};
inline constexpr StipulationField kShownAs           = {"Shows On Results Screen As:",                       Coding::AsShown};
inline constexpr StipulationField kDqPossible        = {"Is DQ Possible In This Match?:",                    Coding::AsShown};
inline constexpr StipulationField kDefaultCommentary = {"Use Default Commentary Also?:",                     Coding::AsShown};
inline constexpr StipulationField kReserved          = {"Reserved",                                          Coding::AlwaysNo};
inline constexpr StipulationField kRunIns            = {"Can There Be Run-Ins For This Match?:",             Coding::AsShown};
inline constexpr StipulationField kInjuryRisk        = {"Injury Risk (5% = Normal)",                         Coding::Number};
inline constexpr StipulationField kDrawCurrent       = {"Match Draw Value: Current",                         Coding::AsShown};
inline constexpr StipulationField kEntCurrent        = {"Match Entertainment Value: Current",                Coding::AsShown};
inline constexpr StipulationField kDrawMaximum       = {"Match Draw Value: Maximum",                         Coding::AsShown};
inline constexpr StipulationField kEntMaximum        = {"Match Entertainment Value: Maximum",                Coding::AsShown};
inline constexpr StipulationField kDrawDecrease      = {"Match Draw Value: When Used, Decrease By",          Coding::AsShown};
inline constexpr StipulationField kEntDecrease       = {"Match Entertainment Value: When Used, Decrease By", Coding::AsShown};
inline constexpr StipulationField kDrawIncrease      = {"Match Draw Value: Increase Daily By",               Coding::AsShown};
inline constexpr StipulationField kEntIncrease       = {"Match Entertainment Value: Increase Daily By",      Coding::AsShown};
inline constexpr StipulationField kPromotion         = {"Promotion Initials:",                               Coding::NoOrText};
inline constexpr StipulationField kQuality           = {"Rate Match Quality By:",                            Coding::QualityWord};
inline constexpr StipulationField kTitleNeeded       = {"Does a title have to be on the line?:",             Coding::AsShown};
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
