// Lines of commentary that were broken in two.

#include "records/heavy_damage.h"
#include "records/problems.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tarvold::records {
namespace {

/// Breaks a line at one of its blanks; returns whether it has any.
bool breakLine(Random &random, RecordLines &record, int line)
{
    const QByteArray text = record.at(line);
    std::vector<qsizetype> blanks;
    for (qsizetype place = 1; place + 1 < text.size(); ++place) {
        if (text[place] == ' ') {
            blanks.push_back(place);
        }
    }
    if (blanks.empty()) {
        return false;
    }
    const qsizetype place = blanks[std::size_t(below(random, int(blanks.size())))];
    record[line] = text.first(place);
    record.insert(line + 1, text.sliced(place + 1));
    return true;
}

/// Writes the first lines of the commentary of a record; the others are blank.
void writeCommentary(Random &random, const Catalog &catalog, RecordLines &record, int used)
{
    for (int line = 0; line < 10; ++line) {
        const int field = catalog.firstCommentary() + line;
        record[field] = line < used ? randomSentence(random, catalog, record[field - 1])
                                    : QByteArray(kBlankLine);
    }
}

/// Whether a repair that is told makes a record what it was.
bool isRepairNamed(const Record &record, const QByteArray &before)
{
    const std::vector<Problem> problems = problemsOf(record, 2, false);
    return std::any_of(problems.begin(), problems.end(),
                       [&before](const Problem &problem) { return problem.repaired == before; });
}

/// Adds a file whose second record has a broken line.
void addBroken(Score &score, const Catalog &catalog, const std::vector<RecordLines> &whole,
               const std::vector<RecordLines> &broken)
{
    const QByteArray file = bytesOf(broken);
    const auto found = recordsOf(file, catalog);
    const bool isKept = areOthersWhole(found, broken, 1);
    const QByteArray after = repaired(file, catalog);
    score.files += 1;
    score.kept += isKept ? 1 : 0;
    score.named += isKept && isRepairNamed(found[1], bytesOf(whole[1])) ? 1 : 0;
    score.restored += after == bytesOf(whole) ? 1 : 0;
    score.lost += isTextLost(file, after) ? 1 : 0;
}

Score brokenLines(const Catalog &catalog, int used)
{
    Random random(heavySeed() + unsigned(catalog.kind()));
    Score score;
    while (score.files < 150) {
        auto whole = randomRecords(random, catalog, Writing::Usual, 5);
        writeCommentary(random, catalog, whole[1], used);
        auto broken = whole;
        if (breakLine(random, broken[1], catalog.firstCommentary() + below(random, used))) {
            addBroken(score, catalog, whole, broken);
        }
    }
    return score;
}

TEST(BrokenLines, ALineOfTheCommentaryThatWasBrokenIsJoinedAndNothingRemoved)
{
    showHeadings("Restored by all repairs");
    for (const DataFileKindRow &row : kDataFileKinds) {
        const Catalog &catalog = Catalog::of(row.kind);
        if (catalog.firstCommentary() == catalog.fieldCount()) {
            continue;
        }
        for (const int used : {10, 6}) {
            const Score score = brokenLines(catalog, used);
            show(QByteArray(row.content) + ", one of " + QByteArray::number(used) +
                     " lines of commentary broken in two",
                 score);
            // A short last line may as well be the host of the next talk show.
            EXPECT_GE(score.percentOf(score.kept), used == 10 ? 85.0 : 100.0) << row.content;
            EXPECT_EQ(score.lost, 0) << row.content;
            EXPECT_GE(score.percentOf(score.named), 70.0) << row.content;
            EXPECT_GE(score.percentOf(score.restored), 70.0) << row.content;
        }
    }
}

} // namespace
} // namespace tarvold::records
