#pragma once

#include <QString>

/// Texts that come from files or names, and can be of any length, made fit to be shown.
namespace tarvold::longtext {

/// The text, or its beginning and end with at most so many characters.
QString quoted(const QString &text, qsizetype most);

/// A text that can be wrapped anywhere in its longest words, such as the name of a file.
QString breakable(QString text);

} // namespace tarvold::longtext
