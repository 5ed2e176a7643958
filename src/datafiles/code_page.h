#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The 8-bit text of the data files.
///
/// Every byte stands for one character, Windows-1252 as Windows itself maps it: the five bytes that
/// the code page leaves undefined (81, 8D, 8F, 90, 9D) stand for the control characters of the same
/// number, so that all 256 bytes survive a round trip.
/// Source of the table: the WHATWG Encoding Standard, index windows-1252.
namespace tarvold::codepage {

/// What encoding a text gives: its bytes, or the character that stopped it.
struct Encoded
{
    QByteArray bytes;                ///< one byte a character; empty when a character is missing
    std::optional<char32_t> missing; ///< the first character that the code page lacks
};

/// Encodes a text for a data file. Letters typed as a base letter and a combining mark are taken as
/// the one character that they form.
Encoded encode(const QString &text);

/// Decodes bytes from a data file; every byte gives exactly one character.
QString decode(QByteArrayView bytes);

} // namespace tarvold::codepage
