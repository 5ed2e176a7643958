#pragma once

#include "screens/form_grid.h"

#include <QString>

/// The lists that more than one field offers, and what else the tables of several screens share.
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
inline constexpr const char *kGenders[] = {"Any", "Male", "Female"};
inline constexpr const char *kManagerGenders[] = {"N/A", "Any", "Male", "Female"};
inline constexpr const char *kFinisherTypes[] = {"Any", "Pin", "Submission", "Top Rope"};

inline constexpr char kSingles[] = "Singles";
inline constexpr char kTagTeam[] = "Tag Team";
inline constexpr const char *kFeudTypes[] = {kSingles, kTagTeam};

/// Whether a feud type is "Singles", which has no partners.
inline bool isSingles(const QString &feudType)
{
    return feudType == QLatin1StringView(kSingles);
}

/// The bar of "Feud Heat Increase".
inline constexpr Bar kFeudHeat = {
    .valueLabel = "Label8", .designText = "100%", .prefix = "", .followsDrag = false};

} // namespace tarvold::lists
