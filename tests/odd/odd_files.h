#pragma once

#include <QString>

#include <iosfwd>
#include <string>
#include <vector>

namespace tarvold::testing {

/// Something that a file name can refer to but that is not a data file.
struct OddFile
{
    const char *name;  ///< of its test
    QString file;      ///< with the extension that the stipulations and the import require
    bool (*make)();    ///< creates it in the current folder; `false` on failure
    const char *cause; ///< a part of the error message
};

void PrintTo(const OddFile &odd, std::ostream *out);

/// Everything that no use of a data file accepts.
const std::vector<OddFile> &oddFiles();

/// The state of the current folder: names, types, modes, inodes, times, links and bytes.
std::string wholeFolder();

} // namespace tarvold::testing
