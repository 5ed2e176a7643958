#include "datafiles/code_page.h"
#include "support/print.h"

#include <QHash>

#include <gtest/gtest.h>
#include <vector>

/// The code page against every character that there is.
namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

constexpr char32_t kLast = 0x10FFFF;

/// A code point as text; half of a surrogate pair stays half.
QString textOf(char32_t character)
{
    return character <= 0xFFFF ? QString(QChar(char16_t(character)))
                               : QString::fromUcs4(&character, 1);
}

/// The bytes by their characters, as decoding tells them; code_page_test compares those with the
/// standard.
QHash<char32_t, char> page()
{
    QHash<char32_t, char> bytes;
    for (int byte = 0; byte < 256; ++byte) {
        const QByteArray one(1, static_cast<char>(byte));
        bytes.insert(codepage::decode(one).at(0).unicode(), one.at(0));
    }
    return bytes;
}

/// The two halves of a pair, put together into one key.
quint64 pairOf(char32_t letter, char32_t mark)
{
    return quint64(letter) << 32 | mark;
}

/// The bytes of those characters that Unicode takes apart into a letter and a mark.
QHash<quint64, char> formedPairs()
{
    QHash<quint64, char> pairs;
    const QHash<char32_t, char> bytes = page();
    for (auto byte = bytes.begin(); byte != bytes.end(); ++byte) {
        const QList<uint> parts = QChar::decompositionTag(byte.key()) == QChar::Canonical
                                      ? QChar::decomposition(byte.key()).toUcs4()
                                      : QList<uint>();
        if (parts.size() == 2) {
            pairs.insert(pairOf(parts[0], parts[1]), byte.value());
        }
    }
    return pairs;
}

std::vector<char32_t> allMarks()
{
    std::vector<char32_t> marks;
    for (char32_t character = 0; character <= kLast; ++character) {
        if (QChar::isMark(character)) {
            marks.push_back(character);
        }
    }
    return marks;
}

/// Whether a text is one byte.
bool isByte(const QString &text, char byte)
{
    const codepage::Encoded encoded = codepage::encode(text);
    return !encoded.missing && encoded.bytes == QByteArray(1, byte);
}

/// Whether a text is refused because of this character.
bool isRefusedFor(const QString &text, char32_t character)
{
    const codepage::Encoded encoded = codepage::encode(text);
    return encoded.missing == character && encoded.bytes.isEmpty();
}

TEST(AllCharacters, AreOneByteThatMeansThemOrAreRefusedByThemselves)
{
    const QHash<char32_t, char> bytes = page();
    ASSERT_EQ(bytes.size(), 256);
    int taken = 0;
    for (char32_t character = 0; character <= kLast; ++character) {
        const QString text = textOf(character);
        const auto byte = bytes.constFind(character);
        const bool isTaken = byte != bytes.constEnd();
        ASSERT_TRUE(isTaken ? isByte(text, *byte) : isRefusedFor(text, character))
            << std::hex << unsigned(character);
        ASSERT_TRUE(!isTaken || codepage::decode(QByteArray(1, *byte)) == text);
        taken += isTaken ? 1 : 0;
    }
    EXPECT_EQ(taken, 256);
}

TEST(AllCharacters, HalvesOfPairsAreRefusedByThemselvesAmongOthers)
{
    for (char32_t half = 0xD800; half <= 0xDFFF; ++half) {
        const QString text = u"a"_s + textOf(half) + u"b"_s;
        ASSERT_TRUE(isRefusedFor(text, half)) << std::hex << unsigned(half);
    }
}

TEST(AllCharacters, LettersOfThePageWithAnyMarkAreTheirOneByteOrRefused)
{
    const QHash<quint64, char> formed = formedPairs();
    EXPECT_EQ(formed.size(), 58);
    const std::vector<char32_t> marks = allMarks();
    EXPECT_GT(marks.size(), 2000U);
    const QHash<char32_t, char> bytes = page();
    int taken = 0;
    for (auto letter = bytes.begin(); letter != bytes.end(); ++letter) {
        for (const char32_t mark : marks) {
            const QString text = textOf(letter.key()) + textOf(mark);
            const QString one = text.normalized(QString::NormalizationForm_C);
            const char32_t offending = one.size() == 1 ? one.at(0).unicode() : mark;
            const auto byte = formed.constFind(pairOf(letter.key(), mark));
            const auto whole = bytes.constFind(offending); // the two marks that mean another one
            const bool isTaken = byte != formed.constEnd() || whole != bytes.constEnd();
            ASSERT_TRUE(isTaken ? isByte(text, byte != formed.constEnd() ? *byte : *whole)
                                : isRefusedFor(text, offending))
                << std::hex << unsigned(letter.key()) << ' ' << unsigned(mark);
            taken += byte != formed.constEnd() ? 1 : 0;
        }
    }
    EXPECT_EQ(taken, formed.size());
}

TEST(AllCharacters, OthersWithAMarkOfThePagesLettersAreRefusedByThemselves)
{
    QHash<char32_t, bool> marks;
    const QHash<quint64, char> formed = formedPairs();
    for (auto pair = formed.begin(); pair != formed.end(); ++pair) {
        marks.insert(char32_t(pair.key()), true);
    }
    EXPECT_EQ(marks.size(), 8);
    const QHash<char32_t, char> bytes = page();
    for (char32_t letter = 0; letter <= 0xFFFF; ++letter) {
        if (bytes.contains(letter) || QChar::isMark(letter)) {
            continue;
        }
        for (auto mark = marks.keyBegin(); mark != marks.keyEnd(); ++mark) {
            const QString text = textOf(letter) + textOf(*mark);
            const QString one = text.normalized(QString::NormalizationForm_C);
            const char32_t offending = one.size() == 1 ? one.at(0).unicode() : letter;
            ASSERT_TRUE(isRefusedFor(text, offending))
                << std::hex << unsigned(letter) << ' ' << unsigned(*mark);
        }
    }
}

} // namespace
} // namespace tarvold
