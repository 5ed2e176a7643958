#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The text encoding of the data files, which the game reads in the system's own code page.
///
/// On Windows that is the ANSI code page, converted by the system; elsewhere it is Windows-1252. A
/// byte that is invalid in it is decoded to an unpaired surrogate, DC00 plus the byte, which nobody
/// can type: all bytes survive a round trip.
namespace tarvold::codepage {

/// The result of encoding a text: its bytes, or the character that stopped it.
struct Encoded
{
    QByteArray bytes;                ///< empty when a character is missing
    std::optional<char32_t> missing; ///< the first character that the code page lacks
};

/// Encodes a text for a data file. A base letter and a combining mark are encoded as the single
/// character that they form, unless the code page has the mark.
Encoded encode(const QString &text);

/// Decodes bytes from a data file. encode() turns the result back into the same bytes.
QString decode(QByteArrayView bytes);

} // namespace tarvold::codepage
