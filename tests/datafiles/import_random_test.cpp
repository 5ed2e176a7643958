// Compares the import with a plain, slow one on thousands of small random files.

#include "datafiles/import_merge.h"
#include "datafiles/slow_merge.h"
#include "support/folder_test.h"

#include <random>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned kSeed = 20240607;
constexpr int kPairs = 5000;

/// Makes pairs of files in which odd things are common.
class Dice
{
public:
    explicit Dice(unsigned seed) : m_engine(seed) {}

    /// From 0 up to, not including, `end`.
    int below(int end) { return std::uniform_int_distribution(0, end - 1)(m_engine); }
    bool onceIn(int times) { return below(times) == 0; }

    DataFileKind kind()
    {
        // Only stipulations are compared with the target, so they come most often.
        return onceIn(3) ? kDataFileKinds[std::size_t(below(6))].kind : DataFileKind::Stipulations;
    }

    QByteArray file(int linesPerRecord)
    {
        QByteArray bytes;
        for (int records = below(7); records > 0; --records) {
            for (int line = 0; line < linesPerRecord; ++line) {
                bytes += this->line() + "\r\n";
            }
        }
        if (onceIn(12)) {
            bytes.truncate(below(int(bytes.size()) + 1)); // cut short, at times between CR and LF
        } else if (onceIn(6)) {
            bytes.chop(2); // the last line end is missing
        }
        return bytes;
    }

private:
    QByteArray line()
    {
        static const QByteArrayList words = {"",    "",    "Any", "Any ", "any",    "Singles",
                                             "A\n", "\rB", "\r",  " ",    "Ladder", "\xE9\xA0"};
        // Few words among the first ones keep keys that meet common.
        return words[onceIn(4) ? below(int(words.size())) : 1 + below(2)];
    }

    std::mt19937 m_engine;
};

MergeOutcome mergeFast(const QString &source, const QString &target, DataFileKind kind)
{
    MergeOutcome outcome;
    const auto imported = importRecords(
        {source, target, kind}, [&](const QString &message) { outcome.messages << message; });
    outcome.succeeded = imported.has_value();
    outcome.target = bytesIfThere(target);
    return outcome;
}

struct Tally
{
    int failures = 0;
    int messages = 0;
    int written = 0;
    int selfImports = 0;
};

class ImportRandom : public FolderTest
{
protected:
    void compareOnePair(unsigned seed)
    {
        Dice dice(seed);
        const DataFileKind kind = dice.kind();
        const QString source = u"source.tvd"_s;
        const bool self = dice.onceIn(10);
        const QString target = self ? source : u"target.tvd"_s;
        const int lines = rowOf(kind).linesPerRecord();
        QFile::remove(source); // to empty it would make some systems wait for the disk
        QFile::remove(u"target.tvd"_s);
        putBytes(source, dice.file(lines));
        if (!self && !dice.onceIn(15)) {
            putBytes(target, dice.file(lines));
        }
        const std::optional<QByteArray> before = bytesIfThere(target);
        const MergeOutcome expected = mergeSlowly(source, target, kind);
        const MergeOutcome actual = mergeFast(source, target, kind);
        EXPECT_EQ(actual.succeeded, expected.succeeded);
        EXPECT_EQ(actual.messages, expected.messages);
        EXPECT_EQ(actual.target, expected.target);
        tally.failures += expected.succeeded ? 0 : 1;
        tally.messages += int(expected.messages.size());
        tally.written += expected.target != before ? 1 : 0;
        tally.selfImports += self ? 1 : 0;
    }

    Tally tally;
};

TEST_F(ImportRandom, DoesWhatThePlainMergeDoes)
{
    for (int pair = 0; pair < kPairs; ++pair) {
        const unsigned seed = kSeed + unsigned(pair);
        SCOPED_TRACE("seed " + std::to_string(seed));
        compareOnePair(seed);
        ASSERT_FALSE(HasFailure());
    }
    // The files are worth comparing only if enough happens in them.
    EXPECT_GT(tally.failures, kPairs / 20);
    EXPECT_GT(tally.messages, kPairs / 2);
    EXPECT_GT(tally.written, kPairs / 4);
    EXPECT_GT(tally.selfImports, kPairs / 20);
}

} // namespace
} // namespace tarvold::testing
