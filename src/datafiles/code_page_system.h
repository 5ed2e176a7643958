#pragma once

#include "datafiles/code_page.h"

#include <functional>

namespace tarvold::codepage {

/// The bytes of one code point in this system's code page, which decode() turns back into it.
/// Nothing if the code page lacks it.
std::optional<QByteArray> bytesOf(char32_t character);

/// What encoding needs of a code page: the counterparts of bytesOf() and decode().
struct Page
{
    std::function<std::optional<QByteArray>(char32_t)> bytesOf;
    std::function<QString(QByteArrayView)> decode;
};

/// The same as encode(), for any code page.
Encoded encodeBy(const Page &page, const QString &text);

} // namespace tarvold::codepage
