#pragma once

#include "datafiles/code_page.h"

#include <QByteArrayList>
#include <QString>

#include <array>

/// Sample texts that an author may type or paste, and the expected result.
namespace tarvold::testing::texts {

using namespace Qt::StringLiterals;

/// A text and the expected bytes in the file.
struct Taken
{
    const char *name; ///< of its tests
    QString text;
    QByteArray bytes;
};

/// A text that must be refused, and the character named by the message.
struct Refused
{
    QString text;
    QString character; ///< as the message shows it
};

/// All 256 characters of the code page. CR and LF become spaces.
inline Taken wholePage()
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    const QString text = codepage::decode(bytes);
    return {"WholePage", text, bytes.replace('\r', ' ').replace('\n', ' ')};
}

/// Every kind of line break, each of which becomes a space, and characters that look like one but
/// are kept.
inline Taken lineBreaks()
{
    const QString breaks = u"a\r\nb\rc\nd"_s + QChar(0x2028) + u'e' + QChar(0x2029) + u'f' +
                           QChar(0x85) + u"g\th\vi\fj"_s + QChar(0) + u'k';
    return {"LineBreaks", breaks, QByteArray("a b c d e f g\th\vi\fj\0k", 21)};
}

/// Letters followed by combining marks.
inline Taken marks()
{
    return {"Marks", QString::fromUtf8("Cafe\u0301 Mu\u0308ller A\u030Arhus C\u0327a s\u030C"),
            QByteArray("Caf\xE9 M\xFCller \xC5rhus \xC7"
                       "a \x9A")};
}

/// A text of each class that no data file can contain.
inline std::array<Refused, 12> refused()
{
    return {{
        {QString::fromUtf8("Pawe\u0142"), QString::fromUtf8("\"\u0142\" (U+0142)")},
        {QString::fromUtf8("\u65E5\u672C"), QString::fromUtf8("\"\u65E5\" (U+65E5)")},
        {QString::fromUtf8("\U0001F93C wins"), QString::fromUtf8("\"\U0001F93C\" (U+1F93C)")},
        {QString::fromUtf8("c\u0301"), QString::fromUtf8("\"\u0107\" (U+0107)")},
        {QString::fromUtf8("q\u0301"), u"U+0301"_s},
        {QString::fromUtf8("\u05D0bc"), QString::fromUtf8("\"\u05D0\" (U+05D0)")},
        {QString::fromUtf8("a\u202Eb"), u"U+202E"_s},
        {QString::fromUtf8("a\u200Fb"), u"U+200F"_s},
        {QString::fromUtf8("a\u200Bb"), u"U+200B"_s},
        {QChar(0xFEFF) + u"a"_s, u"U+FEFF"_s},
        {u"a"_s + QChar(0xD83E), u"U+D83E"_s},
        {QChar(0xDD3C) + u"a"_s, u"U+DD3C"_s},
    }};
}

/// The refused texts in rotation.
inline Refused refusedAt(std::size_t place)
{
    static const auto all = refused();
    return all.at(place % all.size());
}

/// The message about a character that no data file can contain.
inline QString refusalOf(const QString &field, const QString &character)
{
    return u"The field \"%1\" holds the character %2, which the data files cannot "
           "hold.\n\nNothing was written, and everything that you typed is still "
           "here."_s.arg(field, character);
}

/// The lines of a file, without their CR LF.
inline QByteArrayList linesOf(const QByteArray &bytes)
{
    QByteArrayList lines;
    for (qsizetype start = 0; start < bytes.size();) {
        const qsizetype end = bytes.indexOf("\r\n", start);
        lines << bytes.mid(start, end - start);
        start = end < 0 ? bytes.size() : end + 2;
    }
    return lines;
}

} // namespace tarvold::testing::texts
