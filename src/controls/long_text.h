#pragma once

#include <QString>

/// Shortens and wraps text from files and file names, which may be of any length.
namespace tarvold::longtext {

/// The text, or if it is longer than `most` characters, its beginning and end.
QString quoted(const QString &text, qsizetype most);

/// Adds invisible break points so that very long words, such as file names, can wrap.
QString breakable(QString text);

/// A text as QToolTip shows it: wrapped, never taken for markup, with all its spaces. Of a very
/// long text, only the beginning and end, so that the tooltip fits the display.
QString toolTip(const QString &text);

} // namespace tarvold::longtext
