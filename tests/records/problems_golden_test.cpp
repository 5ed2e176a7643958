// Folders of files before and after all repairs that are offered.
//
// Each folder of golden/ holds `before.tvd`, `after.tvd` and `problems.txt`. The first line of
// problems.txt is the kind of the records, by its default file name. A line follows for each
// problem:
//
//     RECORD:LINE TEXT [REPAIR]
//
// Both numbers start at 1; the repair is left out where none is offered.

#include "records/problems.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <gtest/gtest.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;
using namespace records;

namespace {

const QString kGoldenFolder = QStringLiteral(TARVOLD_RECORDS_GOLDEN);

/// All folders, found when the tests are listed.
std::vector<std::string> goldenFolders()
{
    std::vector<std::string> names;
    for (const QString &name :
         QDir(kGoldenFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        names.push_back(name.toStdString());
    }
    return names;
}

QString described(const Problem &problem, int number)
{
    const QString repair = problem.repair.isEmpty() ? QString() : u" [%1]"_s.arg(problem.repair);
    return u"%1:%2 %3%4"_s.arg(QString::number(number), QString::number(problem.line + 1),
                               problem.text, repair);
}

class RecordsGolden : public ::testing::TestWithParam<std::string>
{
protected:
    static QByteArray golden(const char *file)
    {
        QFile opened(kGoldenFolder + u'/' + QString::fromStdString(GetParam()) + u'/' +
                     QLatin1StringView(file));
        EXPECT_TRUE(opened.open(QIODevice::ReadOnly)) << file;
        return opened.readAll();
    }

    static QStringList expected()
    {
        return QString::fromUtf8(golden("problems.txt")).split(u'\n', Qt::SkipEmptyParts);
    }

    static const Catalog &catalog()
    {
        const QString name = expected().value(0);
        const auto *const row =
            std::find_if(kDataFileKinds.begin(), kDataFileKinds.end(), [&name](const auto &each) {
                return name == QLatin1StringView(each.defaultName);
            });
        if (row == kDataFileKinds.end()) {
            ADD_FAILURE() << "no such kind: " << name.toStdString();
        }
        return Catalog::of(row == kDataFileKinds.end() ? DataFileKind::NormalEndings : row->kind);
    }

    static std::vector<Record> recordsIn(const QByteArray &file)
    {
        std::vector<Record> records;
        const auto starts = splitIntoRecords(file, catalog());
        for (std::size_t index = 0; index < starts->size(); ++index) {
            const qsizetype start = starts->at(index);
            const qsizetype end = index + 1 < starts->size() ? starts->at(index + 1) : file.size();
            records.emplace_back(file.mid(start, end - start), catalog());
        }
        return records;
    }
};

TEST_P(RecordsGolden, HasTheseProblems)
{
    QStringList found = {expected().value(0)};
    const std::vector<Record> records = recordsIn(golden("before.tvd"));
    Comparison comparison(catalog());
    int number = 0;
    for (const Record &record : records) {
        ++number;
        std::vector<Problem> problems = problemsOf(record, number, number == int(records.size()));
        for (const Problem &problem : comparison.add(record)) {
            problems.push_back(problem);
        }
        for (const Problem &problem : problems) {
            found << described(problem, number);
        }
    }
    EXPECT_EQ(found.join(u'\n').toStdString(), expected().join(u'\n').toStdString());
}

TEST_P(RecordsGolden, IsRepairedByteForByte)
{
    const std::vector<Record> records = recordsIn(golden("before.tvd"));
    QByteArray repaired;
    for (const Record &record : records) {
        repaired += repairAll(record, &record == &records.back());
    }
    EXPECT_EQ(repaired.toStdString(), golden("after.tvd").toStdString());
}

INSTANTIATE_TEST_SUITE_P(, RecordsGolden, ::testing::ValuesIn(goldenFolders()),
                         [](const auto &row) { return row.param; });

TEST(RecordsGoldenFolders, AreThere)
{
    EXPECT_GE(goldenFolders().size(), 30U);
}

} // namespace
} // namespace tarvold::testing
