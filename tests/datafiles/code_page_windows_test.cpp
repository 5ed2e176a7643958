// What the ANSI code pages of Windows do to texts and bytes, the odd ones included.

#include "datafiles/ansi_page.h"
#include "datafiles/code_page_system.h"
#include "support/print.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace tarvold::codepage {

using namespace Qt::StringLiterals;

namespace {

/// Japanese, Chinese, Korean, Chinese; Thai; Cyrillic to Vietnamese; UTF-8.
constexpr unsigned kPages[] = {932,  936,  949,  950,  874,  1250, 1251, 1252,
                               1253, 1254, 1255, 1256, 1257, 1258, 65001};

QString utf16(const char16_t *text)
{
    return QString::fromUtf16(text);
}

Encoded encoded(const AnsiPage &page, const QString &text)
{
    return encodeBy({[&page](char32_t character) { return page.bytesOf(character); },
                     [&page](QByteArrayView bytes) { return page.decode(bytes); }},
                    text);
}

/// The bytes of a text, all of whose characters are in the page.
QByteArray written(const AnsiPage &page, const QString &text)
{
    const Encoded all = encoded(page, text);
    EXPECT_FALSE(all.missing) << std::hex << unsigned(all.missing.value_or(0));
    return all.bytes;
}

class AnsiPages : public ::testing::TestWithParam<unsigned>
{
protected:
    const AnsiPage page = AnsiPage(GetParam());
};

TEST_P(AnsiPages, EveryTwoBytesSurviveARoundTrip)
{
    for (int pair = 0; pair < 0x10000; ++pair) {
        const QByteArray bytes = {2, char(pair % 0x100)};
        QByteArray two = bytes;
        two[0] = char(pair / 0x100);
        ASSERT_EQ(written(page, page.decode(two)), two) << std::hex << pair;
    }
}

TEST_P(AnsiPages, AsciiIsAscii)
{
    for (char32_t character = 0; character < 0x80; ++character) {
        EXPECT_EQ(page.bytesOf(character), QByteArray(1, char(character)));
        EXPECT_EQ(page.decode(QByteArray(1, char(character))), QString(QChar(char16_t(character))));
    }
}

TEST_P(AnsiPages, WhatIsWrittenIsReadAsTheSame)
{
    int taken = 0;
    for (char32_t character = 0x80; character <= 0xFFFF; ++character) {
        if (const auto bytes = page.bytesOf(character)) {
            ++taken;
            ASSERT_EQ(page.decode(*bytes), QString(QChar(char16_t(character))))
                << std::hex << unsigned(character);
        }
    }
    EXPECT_GE(taken, 90); // which is what the smallest one has
}

INSTANTIATE_TEST_SUITE_P(, AnsiPages, ::testing::ValuesIn(kPages),
                         ::testing::PrintToStringParamName());

TEST(AnsiPage, HasNoLookAlikes)
{
    const AnsiPage western(1252);
    for (const char32_t character : {0x100U, 0x141U, 0x3B1U, 0x2032U, 0xFF21U, 0x221EU}) {
        EXPECT_FALSE(western.bytesOf(character)) << std::hex << unsigned(character);
    }
    EXPECT_EQ(western.bytesOf(0x160), "\x8A");
}

TEST(AnsiPage, WritesWhatTheSystemsLanguageHas)
{
    EXPECT_EQ(AnsiPage(1251).bytesOf(0x416), "\xC6");
    EXPECT_EQ(AnsiPage(932).bytesOf(0x3042), "\x82\xA0");
    EXPECT_EQ(AnsiPage(65001).bytesOf(0x1F93C), "\xF0\x9F\xA4\xBC");
    EXPECT_EQ(AnsiPage(932).decode("\x82\xA0"), utf16(u"\u3042"));
    EXPECT_FALSE(AnsiPage(932).bytesOf(0x1F93C));
}

TEST(AnsiPage, HalvesOfPairsAreNoCharacters)
{
    for (const unsigned number : kPages) {
        const AnsiPage page(number);
        EXPECT_FALSE(page.bytesOf(0xD83E)) << number;
        EXPECT_FALSE(page.bytesOf(0xDD3C)) << number;
    }
    EXPECT_FALSE(AnsiPage(1252).bytesOf(0xDC81)); // all bytes mean something there
}

TEST(AnsiPage, BytesWithoutMeaningAreKept)
{
    const AnsiPage utf8(65001);
    const QString text = utf8.decode("a\xFF\xC3"
                                     "b\xC3\xA9");
    EXPECT_EQ(text, u'a' + QString(QChar(0xDCFF)) + QChar(0xDCC3) + u"b"_s + QChar(0xE9));
    EXPECT_EQ(written(utf8, text), "a\xFF\xC3"
                                   "b\xC3\xA9");
}

TEST(AnsiPage, MarksInAFileStayMarks)
{
    const AnsiPage utf8(65001);
    const AnsiPage vietnamese(1258);
    EXPECT_EQ(utf8.decode("e\xCC\x81"), utf16(u"e\u0301"));
    EXPECT_EQ(written(utf8, utf8.decode("e\xCC\x81")), "e\xCC\x81");
    for (const char *mark : {"\xCC", "\xD2", "\xDE", "\xEC", "\xF2"}) {
        for (const char *letter : {"a", "e", "\xE2", "\xF5", "\xFD"}) {
            const QByteArray bytes = QByteArray(letter) + mark;
            EXPECT_EQ(written(vietnamese, vietnamese.decode(bytes)), bytes);
        }
    }
}

TEST(AnsiPage, MarksThatThePageLacksFormOneCharacter)
{
    EXPECT_EQ(written(AnsiPage(1252), utf16(u"e\u0301")), "\xE9");
    EXPECT_EQ(written(AnsiPage(932), utf16(u"\u304B\u3099")), "\x82\xAA");
    EXPECT_EQ(encoded(AnsiPage(932), utf16(u"e\u0301")).missing, 0xE9U);
    EXPECT_EQ(encoded(AnsiPage(1258), utf16(u"c\u030C")).missing, 0x10DU);
}

TEST(AnsiPage, CharactersOfSeveralBytesAreEncodedAmongOthers)
{
    EXPECT_EQ(written(AnsiPage(65001), utf16(u"a\u00E9\U0001F93Cb")), "a\xC3\xA9\xF0\x9F\xA4\xBC"
                                                                      "b");
    EXPECT_EQ(written(AnsiPage(932), utf16(u"a\u3042b")), "a\x82\xA0"
                                                          "b");
    EXPECT_EQ(encoded(AnsiPage(932), utf16(u"a\u00E9")).missing, 0xE9U);
}

TEST(AnsiPage, ABareByteIsRefusedWhereItWouldMeanSomethingBesideTheNext)
{
    const QString bare = QString(QChar(0xDCC3)) + QChar(0xDCA9);
    EXPECT_EQ(encoded(AnsiPage(65001), bare).missing, 0xDCC3U);
    EXPECT_EQ(encoded(AnsiPage(932), QString(QChar(0xDC82)) + u"a"_s).missing, 0xDC82U);
}

TEST(CodePage, IsThatOfTheSystem)
{
    const AnsiPage system(::GetACP());
    for (int byte = 0; byte < 0x100; ++byte) {
        EXPECT_EQ(decode(QByteArray(1, char(byte))), system.decode(QByteArray(1, char(byte))));
    }
    EXPECT_EQ(encode(QString(QChar(0xFFFF))).missing.has_value(), ::GetACP() != CP_UTF8);
}

} // namespace
} // namespace tarvold::codepage
