#pragma once

#include <QString>

#include <iosfwd>
#include <string>
#include <vector>

namespace tarvold::testing {

/// Something that a name can lead to and that is no data file.
struct OddFile
{
    const char *name;  ///< of its tests
    QString file;      ///< ends in the extension, as the stipulations and the import require it
    bool (*make)();    ///< puts it in the current folder; `false` when it could not
    const char *cause; ///< a part of what the user is told
};

void PrintTo(const OddFile &odd, std::ostream *out);

/// All that no use of a data file accepts.
const std::vector<OddFile> &oddFiles();

/// Everything about what is in the current folder: names, types, modes, times, links, bytes.
std::string wholeFolder();

} // namespace tarvold::testing
