#pragma once

#include <QByteArray>
#include <QRect>
#include <QString>

#include <ostream>

/// Lets GoogleTest show texts as text.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

/// Lets GoogleTest show places as place and size.
inline void PrintTo(const QRect &place, std::ostream *out)
{
    *out << place.x() << ',' << place.y() << ' ' << place.width() << 'x' << place.height();
}

/// Lets GoogleTest show bytes with every control character to be seen.
inline void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        if (code >= 0x20 && code < 0x7F) {
            *out << byte;
        } else {
            *out << '{' << unsigned(code) << '}';
        }
    }
}
