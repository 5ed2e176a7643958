#include "datafiles/line_reader.h"

#include <QByteArrayList>

#include <gtest/gtest.h>

namespace tarvold::testing {
namespace {

QByteArrayList linesOf(QByteArrayView bytes)
{
    QByteArrayList lines;
    LineReader reader(bytes);
    while (!reader.atEnd()) {
        lines << reader.readLine().toByteArray();
    }
    return lines;
}

struct Sample
{
    const char *name;
    QByteArray bytes;
    QByteArrayList lines;
};

void PrintTo(const Sample &sample, std::ostream *out)
{
    *out << sample.name;
}

class LineReaderSplits : public ::testing::TestWithParam<Sample>
{
};

TEST_P(LineReaderSplits, AtCrLfOnly)
{
    EXPECT_EQ(linesOf(GetParam().bytes), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(
    , LineReaderSplits,
    ::testing::Values(Sample{"NoBytes", "", {}}, Sample{"OneEmptyLine", "\r\n", {""}},
                      Sample{"TwoLines", "a\r\nb\r\n", {"a", "b"}},
                      Sample{"NoLineEndAtTheEnd", "a\r\nb", {"a", "b"}},
                      Sample{"EmptyLinesBetween", "a\r\n\r\n\r\nb\r\n", {"a", "", "", "b"}},
                      Sample{"LoneLf", "a\nb\r\n", {"a\nb"}},
                      Sample{"LoneCr", "a\rb\r\n", {"a\rb"}},
                      Sample{"CrBeforeCrLf", "a\r\r\nb\r\n", {"a\r", "b"}},
                      Sample{"LfBeforeCr", "a\n\rb\r\n", {"a\n\rb"}},
                      Sample{"CrAtTheEnd", "a\r\nb\r", {"a", "b\r"}},
                      Sample{"Nul", QByteArray("a\0b\r\nc\r\n", 8), {QByteArray("a\0b", 3), "c"}},
                      Sample{"Blanks", "  a \t\r\n", {"  a \t"}}),
    [](const auto &sample) { return sample.param.name; });

TEST(LineReader, ReadsEmptyLinesPastTheEnd)
{
    LineReader reader("a\r\n");
    EXPECT_EQ(reader.readLine(), "a");
    EXPECT_TRUE(reader.atEnd());
    EXPECT_TRUE(reader.readLine().isEmpty());
}

} // namespace
} // namespace tarvold::testing
