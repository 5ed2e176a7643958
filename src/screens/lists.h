#pragma once

/// The lists that more than one field offers.
namespace tarvold::lists {

inline constexpr const char *kYesNoNa[] = {"Yes", "No", "N/A"};
inline constexpr const char *kNaYesNo[] = {"N/A", "Yes", "No"};
inline constexpr const char *kDispositions[] = {"Any", "Face", "Heel"};
inline constexpr const char *kRingStyles[] = {
    "Any",        "Basic Wrestler",  "Big Man",  "Cruiserweight", "Hardcore",
    "High Flyer", "Old Heavyweight", "Powerful", "Technical",     "Non-Worker",
};
inline constexpr const char *kFaceHeelAny[] = {"Face", "Heel", "Any"};
inline constexpr const char *kMaleFemaleAny[] = {"Male", "Female", "Any"};
inline constexpr const char *kFeudTypes[] = {"Singles", "Tag Team"};
inline constexpr const char *kGenders[] = {"Any", "Male", "Female"};
inline constexpr const char *kManagerGenders[] = {"N/A", "Any", "Male", "Female"};
inline constexpr const char *kFinisherTypes[] = {"Any", "Pin", "Submission", "Top Rope"};

} // namespace tarvold::lists
