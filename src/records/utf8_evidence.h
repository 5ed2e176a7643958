#pragma once

#include <QByteArrayView>

/// Whether a line was saved as UTF-8, or only happens to be valid in it.
namespace tarvold::records {

/// Whether nothing but UTF-8 explains the bytes of a line above ASCII: a line of the game's code
/// page may be valid UTF-8, too, where a letter stands before a mark, as in "OLÉ…" or "SPAß”".
///
/// \param line valid UTF-8
bool isSurelyUtf8(QByteArrayView line);

} // namespace tarvold::records
