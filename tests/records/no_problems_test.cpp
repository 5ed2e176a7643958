// Records that the screens write have no problems.

#include "records/legal_records.h"
#include "records/problems_test.h"

#include <QFile>

#include <gtest/gtest.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;
using namespace records;

namespace {

class EveryKind : public ::testing::TestWithParam<DataFileKindRow>
{
};

TEST_P(EveryKind, HasNoProblemsAsTheScreensWriteIt)
{
    const DataFileKind kind = GetParam().kind;
    const Catalog &catalog = Catalog::of(kind);
    const Record fresh(ended(newLines(kind)), catalog);
    EXPECT_EQ(listed(problemsOf(fresh, 1, true)), "");
    Dice dice(1);
    for (int round = 0; round < 1000; ++round) {
        const Record record(ended(legalLines(kind, dice)), catalog);
        const std::vector<Problem> problems = problemsOf(record, 1, round % 2 == 0);
        ASSERT_EQ(listed(problems), "") << record.bytes().toStdString();
    }
}

TEST_P(EveryKind, HasNoProblemsWithAnyWordOfItsLists)
{
    const Catalog &catalog = Catalog::of(GetParam().kind);
    for (int field = 0; field < catalog.fieldCount(); ++field) {
        for (const QString &word : catalog.fields().at(std::size_t(field)).words) {
            QByteArrayList lines = newLines(GetParam().kind);
            lines[field] = word.toLatin1();
            const Record record(ended(lines), catalog);
            EXPECT_EQ(listed(problemsOf(record, 1, true)), "");
        }
    }
}

TEST_P(EveryKind, HasNoProblemsInItsExample)
{
    QFile file(QStringLiteral(TARVOLD_EXAMPLES "/") + QLatin1StringView(GetParam().defaultName));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    const Catalog &catalog = Catalog::of(GetParam().kind);
    const auto starts = splitIntoRecords(bytes, catalog);
    ASSERT_TRUE(starts && !starts->empty());
    Comparison comparison(catalog);
    for (std::size_t index = 0; index < starts->size(); ++index) {
        const bool isLast = index + 1 == starts->size();
        const qsizetype end = isLast ? bytes.size() : starts->at(index + 1);
        const Record record(bytes.mid(starts->at(index), end - starts->at(index)), catalog);
        EXPECT_EQ(listed(problemsOf(record, int(index) + 1, isLast)), "");
        EXPECT_EQ(listed(comparison.add(record)), "");
    }
}

INSTANTIATE_TEST_SUITE_P(, EveryKind, ::testing::ValuesIn(kDataFileKinds), [](const auto &row) {
    return QByteArray(row.param.defaultName).chopped(4).toStdString();
});

} // namespace
} // namespace tarvold::testing
