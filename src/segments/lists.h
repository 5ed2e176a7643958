#pragma once

/// The lists that more than one field of the segment screens offers.
namespace tarvold::lists {

inline constexpr const char *kYesNoNa[] = {"Yes", "No", "N/A"};
inline constexpr const char *kFaceHeelAny[] = {"Face", "Heel", "Any"};
inline constexpr const char *kMaleFemaleAny[] = {"Male", "Female", "Any"};

} // namespace tarvold::lists
