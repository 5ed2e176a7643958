#pragma once

#include <QByteArrayView>
#include <QString>

#include <array>
#include <optional>

namespace tarvold::codepage {

/// A code page of Windows with one or more bytes a character, by the system's own conversion.
class AnsiPage
{
public:
    /// \param number the system's, such as 1252
    explicit AnsiPage(unsigned number);

    /// The bytes of one code point, by which decode() gives it again. No look-alikes: what is saved
    /// is what the author typed. Nothing when the code page lacks it.
    std::optional<QByteArray> bytesOf(char32_t character) const;

    /// The text of bytes. One that means nothing at its place, or by which the system would not
    /// write the character that it reads, is half a surrogate pair: DC00 and its number.
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
