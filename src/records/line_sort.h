#pragma once

#include <QByteArrayView>

#include <cstdint>

namespace tarvold::records {

/// What a line's text is, whatever field it stands in. From `FirstWord` on each value stands for
/// one word of the lists that the screens of all kinds offer.
enum class Sort : std::uint8_t {
    Empty,
    Blank,       ///< "-BLANK-"
    Number,      ///< 1 to 100 in plain digits
    OtherNumber, ///< other digits
    Name,        ///< short, and nothing of the others
    Sentence,    ///< long, or ends as sentences do
    Tagged,      ///< has a tag
    FirstWord,
};

/// Tells the sort of a text.
Sort sortOf(QByteArrayView text);

} // namespace tarvold::records
