#pragma once

#include <QByteArray>

#include <array>
#include <map>

namespace tarvold::testing {

/// Replacement lines of a record, by line number, starting at 1.
using OtherLines = std::map<int, QByteArray>;

/// The 19 lines of a stipulation. Values that the form shows differ from its defaults and, where
/// possible, from each other, so that swapped lines are noticed.
inline std::array<QByteArray, 19>
stipulationLines(const QByteArray &matchType, const QByteArray &name, const OtherLines &others = {})
{
    std::array<QByteArray, 19> lines = {matchType, name, "Shown", "No",   "Yes", "No", "No",
                                        "7",       "9",  "10",    "11",   "12",  "13", "14",
                                        "15",      "16", "ABC",   "Both", "Yes"};
    for (const auto &[number, line] : others) {
        lines.at(static_cast<std::size_t>(number - 1)) = line;
    }
    return lines;
}

/// The bytes of a stipulation in its file.
inline QByteArray stipulation(const QByteArray &matchType, const QByteArray &name,
                              const OtherLines &others = {})
{
    QByteArray bytes;
    for (const QByteArray &line : stipulationLines(matchType, name, others)) {
        bytes += line + "\r\n";
    }
    return bytes;
}

} // namespace tarvold::testing
