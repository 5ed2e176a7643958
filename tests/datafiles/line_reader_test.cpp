#include "datafiles/line_reader.h"
#include "support/print.h"

#include <QList>

#include <gtest/gtest.h>

namespace tarvold {
namespace {

QList<QByteArray> linesOf(const QByteArray &bytes)
{
    QList<QByteArray> lines;
    LineReader reader(bytes);
    while (!reader.atEnd()) {
        lines << reader.readLine().toByteArray();
    }
    return lines;
}

TEST(LineReader, LinesEndAtCrLfWhichIsRemoved)
{
    EXPECT_EQ(linesOf("Any\r\nN/A\r\n"), (QList<QByteArray>{"Any", "N/A"}));
}

TEST(LineReader, ALoneCrBelongsToItsLine)
{
    EXPECT_EQ(linesOf("a\rb\r\nc\r\n"), (QList<QByteArray>{"a\rb", "c"}));
}

TEST(LineReader, ALoneLfBelongsToItsLine)
{
    EXPECT_EQ(linesOf("a\nb\r\nc\r\n"), (QList<QByteArray>{"a\nb", "c"}));
}

TEST(LineReader, LfCrIsNoLineEnd)
{
    EXPECT_EQ(linesOf("a\n\rb\r\n"), (QList<QByteArray>{"a\n\rb"}));
}

TEST(LineReader, ACrBeforeTheLineEndBelongsToItsLine)
{
    EXPECT_EQ(linesOf("a\r\r\nb\r\n"), (QList<QByteArray>{"a\r", "b"}));
}

TEST(LineReader, ANulBelongsToItsLine)
{
    const QByteArray bytes("a\0b\r\nc\r\n", 8);
    EXPECT_EQ(linesOf(bytes), (QList<QByteArray>{QByteArray("a\0b", 3), "c"}));
}

TEST(LineReader, AControlZIsAnOrdinaryCharacter)
{
    EXPECT_EQ(linesOf("a\x1A\r\nb\r\n"), (QList<QByteArray>{"a\x1A", "b"}));
}

TEST(LineReader, ALastLineWithoutItsEndIsALine)
{
    EXPECT_EQ(linesOf("a\r\nb"), (QList<QByteArray>{"a", "b"}));
}

TEST(LineReader, ACrAtTheVeryEndBelongsToTheLastLine)
{
    EXPECT_EQ(linesOf("a\r\nb\r"), (QList<QByteArray>{"a", "b\r"}));
}

TEST(LineReader, NoBytesAreNoLines)
{
    EXPECT_TRUE(LineReader(QByteArrayView()).atEnd());
    EXPECT_TRUE(linesOf({}).isEmpty());
}

TEST(LineReader, EmptyLinesAreLines)
{
    EXPECT_EQ(linesOf("\r\n\r\na\r\n\r\n"), (QList<QByteArray>{"", "", "a", ""}));
}

TEST(LineReader, ReadingAtTheEndGivesAnEmptyLine)
{
    LineReader reader("a\r\n");
    EXPECT_EQ(reader.readLine(), QByteArrayView("a"));
    EXPECT_TRUE(reader.atEnd());
    EXPECT_TRUE(reader.readLine().isEmpty());
    EXPECT_TRUE(reader.atEnd());
}

} // namespace
} // namespace tarvold
