#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The text of the data files, which the game reads in the system's own code page.
///
/// On Windows that is the ANSI code page, by the system's own conversion; elsewhere it is
/// Windows-1252. A byte that means nothing in it is shown as half a surrogate pair, DC00 and its
/// number, which nobody can type: all bytes survive a round trip.
namespace tarvold::codepage {

/// What encoding a text gives: its bytes, or the character that stopped it.
struct Encoded
{
    QByteArray bytes;                ///< empty when a character is missing
    std::optional<char32_t> missing; ///< the first character that the code page lacks
};

/// Encodes a text for a data file. Letters typed as a base letter and a combining mark are taken as
/// the one character that they form, unless the code page has the mark.
Encoded encode(const QString &text);

/// Decodes bytes from a data file. encode() gives the same bytes again.
QString decode(QByteArrayView bytes);

} // namespace tarvold::codepage
