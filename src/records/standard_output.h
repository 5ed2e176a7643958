#pragma once

#include <QString>

/// Text for the terminal, or for the file or program that the output goes to.
namespace tarvold::records::standardoutput {

/// Writes a line to the standard output, as UTF-8. What has been written so far reaches the other
/// side at once.
/// \return whether all of it was written
[[nodiscard]] bool writeLine(const QString &text);

/// The same for the standard error, where nobody needs to know whether it was written.
void writeErrorLine(const QString &text);

} // namespace tarvold::records::standardoutput
