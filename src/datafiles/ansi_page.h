#pragma once

#include <QByteArrayView>
#include <QString>

#include <array>
#include <optional>

namespace tarvold::codepage {

/// A Windows code page of one or more bytes per character, converted by the system.
class AnsiPage
{
public:
    /// \param number the system's number for it, such as 1252
    explicit AnsiPage(unsigned number);

    /// The bytes of one code point, which decode() turns back into it. Nothing if the code page
    /// lacks it. Never a look-alike: what is saved is what the author typed.
    std::optional<QByteArray> bytesOf(char32_t character) const;

    /// The text of bytes. A byte that is invalid, or that does not survive the system's own round
    /// trip, becomes an unpaired surrogate: DC00 plus the byte.
    QString decode(QByteArrayView bytes) const;

private:
    QString characterOf(QByteArrayView bytes) const;
    QByteArray converted(const QString &character) const;
    QString takeFirst(QByteArrayView &bytes) const;

    unsigned m_number;
    int m_mostBytes;                   ///< of one character
    std::array<QChar, 256> m_single{}; ///< what each byte means by itself
};

} // namespace tarvold::codepage
