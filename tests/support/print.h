#pragma once

#include <QByteArray>
#include <QRect>
#include <QString>

#include <ostream>

/// Prints a QString as text.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

/// Prints a QRect as position and size.
inline void PrintTo(const QRect &place, std::ostream *out)
{
    *out << place.x() << ',' << place.y() << ' ' << place.width() << 'x' << place.height();
}

/// Prints bytes, with control and non-ASCII characters as {code}.
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
