#include "records/damage.h"
#include "records/reading.h"
#include "records/splitter.h"

#include <gtest/gtest.h>

namespace tarvold::records {
namespace {

using namespace Qt::StringLiterals;

constexpr DataFileKind kAllKinds[] = {
    DataFileKind::NormalEndings, DataFileKind::RunInEndings, DataFileKind::TurnEndings,
    DataFileKind::Interviews,    DataFileKind::TalkShows,    DataFileKind::Stipulations,
};

QByteArray randomFile(Random &random, DataFileKind kind, int count)
{
    return bytesOf(randomRecords(random, Catalog::of(kind), Writing::Usual, count));
}

/// Bytes of all sorts: line ends, words, parts of records, anything.
QByteArray anyBytes(Random &random)
{
    static const QByteArray pieces[] = {"\r\n",    "\n",          "\r", "Any\r\n",
                                        "N/A\r\n", "-BLANK-\r\n", "<",  "10\r\n"};
    QByteArray bytes;
    for (int piece = below(random, 300); piece > 0; --piece) {
        if (const int sort = below(random, 12); sort < 8) {
            bytes += pieces[sort];
        } else if (sort < 11) {
            bytes += char(random());
        } else {
            const QByteArray file = randomFile(random, kAllKinds[below(random, 6)], 2);
            bytes += file.sliced(below(random, int(file.size())));
        }
    }
    return bytes;
}

TEST(SplitIntoRecords, LosesNoByteOfAnyFile)
{
    Random random(11);
    for (int round = 0; round < 3000; ++round) {
        const QByteArray file = anyBytes(random);
        const Catalog &catalog = Catalog::of(kAllKinds[round % 6]);
        const auto starts = splitIntoRecords(file, catalog).value();
        ASSERT_EQ(starts.empty(), file.isEmpty());
        ASSERT_TRUE(starts.empty() || starts.front() == 0);
        ASSERT_TRUE(starts.empty() || starts.back() < file.size());
        for (std::size_t record = 1; record < starts.size(); ++record) {
            ASSERT_LT(starts[record - 1], starts[record]);
            const char before = file[starts[record] - 1];
            ASSERT_TRUE(before == '\n' || before == '\r') << "a record starts inside of a line";
        }
    }
}

TEST(SplitIntoRecords, LaysOutEveryLineOnce)
{
    Random random(12);
    for (int round = 0; round < 500; ++round) {
        for (const Record &record :
             recordsOf(anyBytes(random), Catalog::of(kAllKinds[round % 6]))) {
            std::vector<int> lines = record.layout().surplus;
            for (const int line : record.layout().lineOfField) {
                if (line >= 0) {
                    lines.push_back(line);
                }
            }
            std::sort(lines.begin(), lines.end());
            ASSERT_EQ(lines.size(), record.lines().size());
            for (std::size_t line = 0; line < lines.size(); ++line) {
                ASSERT_EQ(lines[line], int(line));
            }
        }
    }
}

TEST(SplitIntoRecords, ReadsAnyLineEndsTheSameWay)
{
    Random random(13);
    for (const DataFileKind kind : kAllKinds) {
        const Catalog &catalog = Catalog::of(kind);
        const auto records = randomRecords(random, catalog, Writing::Usual, 20);
        const QByteArray file = damaged(records, {{4, 3, false}, {12, 5, true}});
        const auto expected = recordsOf(file, catalog);
        for (const char *end : {"\n", "\r", "\r\r\n"}) {
            const auto found = recordsOf(QByteArray(file).replace("\r\n", end), catalog);
            ASSERT_EQ(found.size(), expected.size());
            for (std::size_t record = 0; record < found.size(); ++record) {
                EXPECT_EQ(found[record].layout().lineOfField,
                          expected[record].layout().lineOfField);
                EXPECT_EQ(found[record].layout().surplus, expected[record].layout().surplus);
            }
        }
    }
}

TEST(SplitIntoRecords, FindsTheRecordsBehindStrangeLines)
{
    Random random(14);
    for (const DataFileKind kind : kAllKinds) {
        const QByteArray file = randomFile(random, kind, 5);
        for (const int lines : {1, 7, 100, 5000}) {
            QByteArray strange;
            for (int line = 0; line < lines; ++line) {
                strange += "This was pasted here from somewhere else, line " +
                           QByteArray::number(line) + ".\r\n";
            }
            const auto found = recordsOf(file + strange + file, Catalog::of(kind));
            ASSERT_GE(found.size(), 10U);
            for (std::size_t record = 0; record < 4; ++record) {
                EXPECT_TRUE(found[record].layout().isWhole()) << lines;
                EXPECT_TRUE(found[found.size() - 1 - record].layout().isWhole()) << lines;
            }
        }
    }
}

TEST(SplitIntoRecords, NamesTheFieldsThatATruncatedLastRecordLacks)
{
    Random random(15);
    const Catalog &catalog = Catalog::of(DataFileKind::NormalEndings);
    auto records = randomRecords(random, catalog, Writing::Usual, 6);
    records.back() = records.back().first(20);
    const auto found = recordsOf(bytesOf(records), catalog);
    ASSERT_EQ(found.size(), 6U);
    for (int field = 0; field < 36; ++field) {
        EXPECT_EQ(found.back().layout().lineOfField[std::size_t(field)], field < 20 ? field : -1);
    }
}

/// A large file is divided by two threads.
TEST(SplitIntoRecords, DividesALargeFileAsInOneGo)
{
    Random random(17);
    const Catalog &catalog = Catalog::of(DataFileKind::NormalEndings);
    const QByteArray sound = randomFile(random, DataFileKind::NormalEndings, 10000);
    ASSERT_GT(sound.size(), 4 << 20);
    int together = 0;
    for (int round = 0; round < 60; ++round) {
        QByteArray file = sound;
        for (int fault = below(random, 6); fault > 0; --fault) {
            // Most faults are near the place where the second thread begins.
            const int reach = round % 3 == 0 ? int(file.size() / 2) : 6000;
            const auto place = file.size() / 2 - reach / 2 + below(random, reach);
            const auto from = file.indexOf('\n', place) + 1;
            file.remove(from, file.indexOf('\n', from) + 1 - from);
        }
        const records::Progress none;
        const auto expected = records::Splitter(file, catalog, none).split();
        ASSERT_EQ(splitIntoRecords(file, catalog), expected) << "round " << round;
        if (const auto middle = records::Splitter::middle(file, catalog)) {
            records::Splitter first(file, catalog, none);
            static_cast<void>(first.split(*middle));
            together += first.isAt() ? 1 : 0;
        }
    }
    EXPECT_GT(together, 30) << "the second thread hardly ever helps";
}

TEST(SplitIntoRecords, AsksOnTheWayAndCanBeStopped)
{
    Random random(16);
    const Catalog &catalog = Catalog::of(DataFileKind::NormalEndings);
    const QByteArray file = randomFile(random, DataFileKind::NormalEndings, 10000);
    std::vector<double> told;
    EXPECT_TRUE(splitIntoRecords(file, catalog, [&](double part) {
        told.push_back(part);
        return true;
    }));
    EXPECT_GE(told.size(), 3U);
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_TRUE(told.front() > 0 && told.back() <= 1);
    EXPECT_EQ(splitIntoRecords(file, catalog, [](double) { return false; }), std::nullopt);
    const QByteArray strange(file.size(), '\n');
    EXPECT_EQ(splitIntoRecords(strange, catalog, [](double) { return false; }), std::nullopt);
}

TEST(GuessKind, TakesTheContentFirst)
{
    Random random(17);
    for (int round = 0; round < 300; ++round) {
        const DataFileKind kind = kAllKinds[round % 6];
        const QByteArray file = randomFile(random, kind, 1 + below(random, 80));
        const KindGuess guess = guessKind(file, u"talkshow.tvd"_s);
        EXPECT_EQ(guess.kind, kind) << "round " << round;
        EXPECT_EQ(guess.likely.front(), kind);
    }
}

TEST(GuessKind, SeesThroughDamage)
{
    Random random(18);
    for (int round = 0; round < 100; ++round) {
        const DataFileKind kind = kAllKinds[round % 6];
        const Catalog &catalog = Catalog::of(kind);
        const auto records = randomRecords(random, catalog, Writing::Usual, 3);
        const QByteArray file = damaged(records, {{0, below(random, 19), below(random, 2) == 0}});
        EXPECT_EQ(guessKind(file, u"stipulations.tvd"_s).kind, kind) << "round " << round;
    }
}

TEST(GuessKind, TakesTheNameWhereTheContentTellsNothing)
{
    const QByteArray strange =
        QByteArray("This is a letter, and no data file at all.\r\n").repeated(40);
    for (const DataFileKindRow &row : kDataFileKinds) {
        const QString name = u"/some/Folder/"_s + QString::fromLatin1(row.defaultName).toUpper();
        EXPECT_EQ(guessKind({}, name).kind, row.kind);
        EXPECT_EQ(guessKind(strange, name).kind, row.kind);
    }
    for (const QByteArray &file : {QByteArray(), strange}) {
        const KindGuess guess = guessKind(file, u"mine.tvd"_s);
        EXPECT_EQ(guess.kind, std::nullopt);
        EXPECT_EQ(guess.likely.size(), 6U);
    }
}

TEST(GuessKind, AsksWhereEveryLineIsAWordThatStandsInAllKinds)
{
    for (const char *word : {"Any", "N/A", "None", "Yes", "No", "-BLANK-", "1", ""}) {
        for (const int lines : {1, 5, 18, 19, 20, 33, 34, 36, 38, 44, 57, 684, 5000}) {
            const QByteArray file = QByteArray(word).append("\r\n").repeated(lines);
            const KindGuess guess = guessKind(file, u"mine.tvd"_s);
            EXPECT_EQ(guess.kind, std::nullopt) << lines << " lines of " << word;
            EXPECT_GE(guess.likely.size(), 2U) << lines << " lines of " << word;
            const KindGuess named = guessKind(file, u"interviews.tvd"_s);
            const bool isLikely =
                std::count(named.likely.begin(), named.likely.end(), DataFileKind::Interviews) > 0;
            EXPECT_EQ(named.kind, isLikely ? std::optional(DataFileKind::Interviews) : std::nullopt)
                << lines << " lines of " << word;
            EXPECT_TRUE(isLikely || lines < 19) << lines << " lines of " << word;
        }
    }
}

TEST(KindGuess, TellsWhereTheUsualNameSaysAnotherKind)
{
    Random random(23);
    for (int round = 0; round < 60; ++round) {
        const DataFileKind kind = kAllKinds[round % 6];
        const QByteArray file = randomFile(random, kind, 5);
        EXPECT_EQ(guessKind(file, u"mine.tvd"_s).named, std::nullopt);
        for (const DataFileKind other : kAllKinds) {
            const QString name = QLatin1StringView(rowOf(other).defaultName);
            const KindGuess guess = guessKind(file, u"folder/"_s + name);
            EXPECT_EQ(guess.kind, kind) << "round " << round;
            EXPECT_EQ(guess.named, other == kind ? std::nullopt : std::optional(other));
            EXPECT_EQ(guessKind(QByteArray("Any\r\n").repeated(19 * 5), name).named, std::nullopt)
                << "nothing tells the kind of such lines";
            EXPECT_EQ(guessKind({}, name).named, std::nullopt);
        }
    }
}

TEST(KindFor, TakesTheExpectedKindUnlessTheContentClearlyTellsAnother)
{
    Random random(11);
    for (int round = 0; round < 60; ++round) {
        const DataFileKind kind = kAllKinds[round % 6];
        const QByteArray file = randomFile(random, kind, 5);
        for (const DataFileKind expected : kAllKinds) {
            EXPECT_EQ(kindFor(file, u"mine.tvd"_s, expected), kind) << "round " << round;
            EXPECT_EQ(kindFor({}, u"talkshow.tvd"_s, expected), expected);
        }
    }
}

TEST(EndOfRecords, IsWhereARecordOfTheWholeFileStarts)
{
    Random random(20);
    for (int round = 0; round < 100; ++round) {
        const DataFileKind kind = kAllKinds[round % 6];
        const Catalog &catalog = Catalog::of(kind);
        const QByteArray file = randomFile(random, kind, 40);
        const QByteArrayView beginning = QByteArrayView(file).first(file.size() * 3 / 4);
        const auto end = endOfRecords(beginning, catalog);
        ASSERT_TRUE(end) << "round " << round;
        const std::vector<qsizetype> starts = splitIntoRecords(file, catalog).value();
        EXPECT_TRUE(std::binary_search(starts.begin(), starts.end(), *end)) << "round " << round;
        EXPECT_GT(*end, 0);
        EXPECT_LT(*end, beginning.size());
    }
    const Catalog &catalog = Catalog::of(DataFileKind::NormalEndings);
    EXPECT_FALSE(endOfRecords({}, catalog));
    EXPECT_FALSE(endOfRecords("no line end", catalog));
    EXPECT_FALSE(endOfRecords("some\r\nlines\r\nonly\r\n", catalog));
}

TEST(LooksLike, NamesTheKindOfARecordInAnotherKindsFile)
{
    Random random(19);
    for (int round = 0; round < 200; ++round) {
        for (const DataFileKind kind : kAllKinds) {
            const auto record = randomFile(random, kind, 1);
            EXPECT_EQ(looksLike(linesOf(record), kind), std::nullopt);
        }
        const auto interview = randomFile(random, DataFileKind::Interviews, 1);
        EXPECT_EQ(looksLike(linesOf(interview), DataFileKind::TalkShows), DataFileKind::Interviews);
        EXPECT_EQ(looksLike(linesOf(interview), DataFileKind::Stipulations),
                  DataFileKind::Interviews);
        const auto runIn = randomFile(random, DataFileKind::RunInEndings, 1);
        EXPECT_EQ(looksLike(linesOf(runIn), DataFileKind::NormalEndings),
                  DataFileKind::RunInEndings);
    }
    EXPECT_EQ(looksLike(linesOf("just\r\nsome\r\nlines"), DataFileKind::TalkShows), std::nullopt);
}

} // namespace
} // namespace tarvold::records
