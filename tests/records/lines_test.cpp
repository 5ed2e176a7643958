#include "records/lines.h"

#include <QByteArray>

#include <gtest/gtest.h>
#include <random>

namespace tarvold::records {
namespace {

TEST(AnyLineReader, EndsALineAtCrLfAndAtEitherAlone)
{
    const std::vector<Line> expected = {{"one", LineEnd::CrLf},
                                        {"two", LineEnd::Lf},
                                        {"three", LineEnd::Cr},
                                        {"four", LineEnd::None}};
    EXPECT_EQ(linesOf("one\r\ntwo\nthree\rfour"), expected);
}

TEST(AnyLineReader, TakesOneMoreCrBeforeACrLfForPartOfItsEnd)
{
    const std::vector<Line> expected = {{"one", LineEnd::Cr}, {"two", LineEnd::CrLf}};
    EXPECT_EQ(linesOf("one\r\r\ntwo\r\n"), expected);
    EXPECT_EQ(linesOf("\r\r\r\n").size(), 2U);
    EXPECT_EQ(linesOf("a\r\r").size(), 2U);
}

TEST(AnyLineReader, FindsEmptyLinesAndNoneBehindTheLastEnd)
{
    EXPECT_TRUE(linesOf("").empty());
    EXPECT_EQ(linesOf("\r\n\r\n").size(), 2U);
    EXPECT_EQ(linesOf("\n\r").size(), 2U);
}

TEST(AnyLineReader, GivesBackEveryByteOfAnyFile)
{
    std::mt19937 random(1);
    for (int round = 0; round < 2000; ++round) {
        QByteArray file(int(random() % 60), '\0');
        for (char &byte : file) {
            byte = "\r\nax\0\x8d"[random() % 6];
        }
        AnyLineReader reader(file);
        QByteArray joined;
        while (!reader.atEnd()) {
            const qsizetype before = reader.rest().size();
            const Line line = reader.readLine();
            const QByteArrayView taken =
                QByteArrayView(file).sliced(file.size() - before, before - reader.rest().size());
            ASSERT_TRUE(taken.startsWith(line.text));
            ASSERT_EQ(line.end == LineEnd::None, taken.size() == line.text.size());
            ASSERT_FALSE(line.text.contains('\r') || line.text.contains('\n'));
            joined += taken.toByteArray();
        }
        ASSERT_EQ(joined, file);
    }
}

} // namespace
} // namespace tarvold::records
