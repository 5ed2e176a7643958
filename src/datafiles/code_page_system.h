#pragma once

#include "datafiles/code_page.h"

#include <functional>

namespace tarvold::codepage {

/// The bytes of one code point in the code page of this system, by which decode() gives it again.
/// Nothing when the code page lacks it.
std::optional<QByteArray> bytesOf(char32_t character);

/// What encoding needs of any code page: what bytesOf() and decode() are for that of this system.
struct Page
{
    std::function<std::optional<QByteArray>(char32_t)> bytesOf;
    std::function<QString(QByteArrayView)> decode;
};

/// The same as encode(), by a page that need not be that of this system.
Encoded encodeBy(const Page &page, const QString &text);

} // namespace tarvold::codepage
