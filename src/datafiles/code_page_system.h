#pragma once

#include <QByteArray>

#include <optional>

namespace tarvold::codepage {

/// The bytes of one code point in the code page of this system, by which decode() gives it again.
/// Nothing when the code page lacks it.
std::optional<QByteArray> bytesOf(char32_t character);

} // namespace tarvold::codepage
