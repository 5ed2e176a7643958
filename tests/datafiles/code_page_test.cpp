#include "datafiles/code_page.h"
#include "support/print.h"

#include <gtest/gtest.h>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

struct Special
{
    unsigned char byte;
    char16_t character;
};

/// The bytes 80 to 9F as index windows-1252 of the WHATWG Encoding Standard lists them.
constexpr Special kSpecials[] = {
    {0x80, 0x20AC}, {0x81, 0x0081}, {0x82, 0x201A}, {0x83, 0x0192}, {0x84, 0x201E}, {0x85, 0x2026},
    {0x86, 0x2020}, {0x87, 0x2021}, {0x88, 0x02C6}, {0x89, 0x2030}, {0x8A, 0x0160}, {0x8B, 0x2039},
    {0x8C, 0x0152}, {0x8D, 0x008D}, {0x8E, 0x017D}, {0x8F, 0x008F}, {0x90, 0x0090}, {0x91, 0x2018},
    {0x92, 0x2019}, {0x93, 0x201C}, {0x94, 0x201D}, {0x95, 0x2022}, {0x96, 0x2013}, {0x97, 0x2014},
    {0x98, 0x02DC}, {0x99, 0x2122}, {0x9A, 0x0161}, {0x9B, 0x203A}, {0x9C, 0x0153}, {0x9D, 0x009D},
    {0x9E, 0x017E}, {0x9F, 0x0178},
};

QByteArray allBytes()
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes.append(static_cast<char>(byte));
    }
    return bytes;
}

TEST(CodePage, AllBytesSurviveARoundTrip)
{
    const QString text = codepage::decode(allBytes());
    ASSERT_EQ(text.size(), 256);
    const codepage::Encoded encoded = codepage::encode(text);
    EXPECT_FALSE(encoded.missing.has_value());
    EXPECT_EQ(encoded.bytes, allBytes());
}

TEST(CodePage, EveryByteIsADifferentCharacter)
{
    const QString text = codepage::decode(allBytes());
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_EQ(text.indexOf(text.at(byte)), byte);
    }
}

TEST(CodePage, TheSpecialBytesStandForTheirCharacters)
{
    for (const Special &row : kSpecials) {
        SCOPED_TRACE(int(row.byte));
        const QByteArray byte(1, static_cast<char>(row.byte));
        const QString character(1, QChar(row.character));
        EXPECT_EQ(codepage::decode(byte), character);
        EXPECT_EQ(codepage::encode(character).bytes, byte);
    }
}

TEST(CodePage, OtherBytesAreTheirOwnCodePoints)
{
    for (int byte = 0; byte < 256; ++byte) {
        if (byte >= 0x80 && byte <= 0x9F) {
            continue;
        }
        EXPECT_EQ(codepage::decode(QByteArray(1, static_cast<char>(byte))),
                  QString(1, QChar(char16_t(byte))));
    }
}

TEST(CodePage, UndefinedBytesStandForTheControlCharactersOfTheSameNumber)
{
    for (const char16_t code : std::initializer_list<char16_t>{0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
        EXPECT_EQ(codepage::encode(QString(1, QChar(code))).bytes,
                  QByteArray(1, static_cast<char>(code)));
    }
}

TEST(CodePage, ControlCharactersOfDefinedSpecialBytesAreMissing)
{
    EXPECT_EQ(codepage::encode(QString(1, QChar(0x80))).missing, 0x80U);
    EXPECT_EQ(codepage::encode(QString(1, QChar(0x9F))).missing, 0x9FU);
}

TEST(CodePage, CharactersOutsideThePageAreMissing)
{
    const QString katakana(1, QChar(0x30A2));
    const QString polish(1, QChar(0x0142));
    const QString latin(1, QChar(0x0100));
    EXPECT_EQ(codepage::encode(katakana).missing, 0x30A2U);
    EXPECT_EQ(codepage::encode(polish).missing, 0x0142U);
    EXPECT_EQ(codepage::encode(latin).missing, 0x0100U);
    EXPECT_TRUE(codepage::encode(katakana).bytes.isEmpty());
}

TEST(CodePage, ACharacterBeyondTheBasicPlaneIsMissingAsOne)
{
    const char32_t wrestlers = 0x1F93C;
    EXPECT_EQ(codepage::encode(QString::fromUcs4(&wrestlers, 1)).missing, wrestlers);
}

TEST(CodePage, ALoneSurrogateIsMissing)
{
    EXPECT_TRUE(codepage::encode(u"a"_s + QChar(0xD83E)).missing.has_value());
    EXPECT_TRUE(codepage::encode(QChar(0xDD3C) + u"a"_s).missing.has_value());
}

TEST(CodePage, ABaseLetterAndItsMarkAreOneCharacter)
{
    const QString acute = u"e"_s + QChar(0x0301);
    const QString diaeresis = u"o"_s + QChar(0x0308);
    EXPECT_EQ(codepage::encode(acute).bytes, QByteArray("\xE9"));
    EXPECT_EQ(codepage::encode(diaeresis).bytes, QByteArray("\xF6"));
    EXPECT_EQ(codepage::encode(diaeresis + acute).bytes, QByteArray("\xF6\xE9"));
}

TEST(CodePage, ALetterWithTwoMarksThatIsNoCharacterIsMissing)
{
    const QString decomposed = u"e"_s + QChar(0x0301) + QChar(0x0308);
    EXPECT_EQ(codepage::encode(decomposed).missing, 0x0308U);
    EXPECT_TRUE(codepage::encode(decomposed).bytes.isEmpty());
}

TEST(CodePage, LookAlikesOfCharactersOfThePageAreMissing)
{
    const QString greekQuestionMark(QChar(0x037E)); // looks like ";"
    const QString angstrom(QChar(0x212B));          // looks like the letter C5
    for (const QString &before : {QString(), u"a"_s}) {
        EXPECT_EQ(codepage::encode(before + greekQuestionMark).missing, 0x037EU);
        EXPECT_EQ(codepage::encode(before + angstrom).missing, 0x212BU);
    }
}

TEST(CodePage, AMarkThatFormsNoCharacterOfThePageIsMissing)
{
    const QString decomposed = u"q"_s + QChar(0x0301);
    EXPECT_EQ(codepage::encode(decomposed).missing, 0x0301U);
}

TEST(CodePage, TheFirstMissingCharacterIsReported)
{
    const QString text = u"ab"_s + QChar(0x0142) + QChar(0x30A2);
    const codepage::Encoded encoded = codepage::encode(text);
    EXPECT_EQ(encoded.missing, 0x0142U);
    EXPECT_TRUE(encoded.bytes.isEmpty());
}

TEST(CodePage, AnEmptyTextIsNoBytes)
{
    EXPECT_TRUE(codepage::encode(QString()).bytes.isEmpty());
    EXPECT_FALSE(codepage::encode(QString()).missing.has_value());
    EXPECT_TRUE(codepage::decode(QByteArray()).isEmpty());
}

} // namespace
} // namespace tarvold
