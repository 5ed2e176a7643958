#pragma once

#include "records/catalog.h"

/// A field's text in its editor, and the line that stands for it in the file.
namespace tarvold::records::fieldtext {

/// What the editor shows: the text of the field's screen, such as "Top Rope" for "t", or nothing
/// for "-BLANK-". Any other word stays as it stands.
QString shown(const KnownField &field, const QString &line);

/// The line for what the user put into the editor: a word of the field's list in its coding,
/// "-BLANK-" for nothing where the file says so, any other text unchanged.
QString lineFor(const KnownField &field, const QString &text);

/// Such as "-BLANK-" for a line that the editor shows as nothing; empty for others.
QString emptyMark(const KnownField &field, const QString &line);

} // namespace tarvold::records::fieldtext
