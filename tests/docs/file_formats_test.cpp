// Compares the tables of docs/file-formats.md with what the program writes.

#include "docs/document_tables.h"
#include "support/flow_test.h"
#include "support/print.h"

#include <QFile>

#include <algorithm>
#include <gtest/gtest.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// The headings in the order of the document and of the kinds.
constexpr const char *kHeadings[] = {
    "Normal match endings: 36 lines",     "Match endings with run-ins: 44 lines",
    "Match endings with turns: 33 lines", "Interview segments: 19 lines",
    "Talk show segments: 19 lines",       "Match stipulations: 19 lines",
};

TEST(FileFormats, EveryKindHasOneTable)
{
    const std::vector<DocumentSection> sections = documentSections();
    ASSERT_EQ(sections.size(), std::size(kHeadings));
    for (std::size_t kind = 0; kind < sections.size(); ++kind) {
        EXPECT_EQ(sections[kind].heading, QLatin1StringView(kHeadings[kind]));
    }
}

TEST(FileFormats, EveryKindHasItsFileNameAndNumberOfLines)
{
    const std::vector<DocumentSection> sections = documentSections();
    ASSERT_EQ(sections.size(), kDataFileKinds.size());
    for (std::size_t kind = 0; kind < sections.size(); ++kind) {
        const DataFileKindRow &row = kDataFileKinds.at(kind);
        EXPECT_EQ(sections[kind].defaultFile, QLatin1StringView(row.defaultName));
        EXPECT_EQ(int(sections[kind].rows.size()), row.linesPerRecord());
        EXPECT_TRUE(sections[kind].heading.endsWith(u": %1 lines"_s.arg(row.linesPerRecord())));
    }
}

struct FlowCase
{
    const char *name;
    std::size_t section;
    const FlowPath &flow;
};

void PrintTo(const FlowCase &test, std::ostream *out)
{
    *out << test.name;
}

class FileFormatsOf : public FlowTest, public ::testing::WithParamInterface<FlowCase>
{
protected:
    /// The table that describes the record of the flow.
    std::vector<DocumentRow> expectedRows()
    {
        std::vector<DocumentRow> rows;
        for (const RecordField *field : GetParam().flow.format()) {
            const QWidget &control = source(GetParam().flow, *field);
            rows.push_back({QString::number(rows.size() + 1), QLatin1StringView(field->name),
                            u"%1, %2"_s.arg(control.window()->objectName(), control.objectName()),
                            valueWord(field->coding)});
        }
        return rows;
    }
};

TEST_P(FileFormatsOf, EveryRowIsALineOfTheRecord)
{
    const std::vector<DocumentSection> sections = documentSections();
    ASSERT_LT(GetParam().section, sections.size());
    const std::vector<DocumentRow> &rows = sections[GetParam().section].rows;
    const std::vector<DocumentRow> expected = expectedRows();
    EXPECT_EQ(rows.size(), expected.size());
    for (std::size_t row = 0; row < std::min(rows.size(), expected.size()); ++row) {
        EXPECT_EQ(rows[row], expected[row]);
    }
}

INSTANTIATE_TEST_SUITE_P(Kind, FileFormatsOf,
                         ::testing::Values(FlowCase{"NormalEndings", 0, kNormalPath},
                                           FlowCase{"RunInEndings", 1, kRunInPath},
                                           FlowCase{"TurnEndings", 2, kTurnPath},
                                           FlowCase{"Interviews", 3, kInterviewPath},
                                           FlowCase{"TalkShows", 4, kTalkShowPath}),
                         [](const auto &test) { return std::string(test.param.name); });

/// ">>" does not fill an empty box with a list, so the first line of a record may be empty.
TEST(FileFormats, TheBoxesThatCanLeaveTheFirstLineEmptyAreListed)
{
    QFile document(QStringLiteral(TARVOLD_FILE_FORMATS));
    ASSERT_TRUE(document.open(QIODevice::ReadOnly)) << document.errorString().toStdString();
    const QString text = QString::fromUtf8(document.readAll()).simplified();
    const QString told =
        text.section(u"An empty first line hides a record."_s, 1, 1).section(u" - **"_s, 0, 0);
    int boxes = 0;
    for (const DocumentSection &kind : documentSections()) {
        const DocumentRow &first = kind.rows.at(0);
        const bool hasList = !first.source.contains(u", Text"_s);
        boxes += hasList ? 1 : 0;
        EXPECT_EQ(told.contains(u'"' + first.field + u'"'), hasList) << first.field.toStdString();
    }
    EXPECT_EQ(boxes, 5);
}

} // namespace
} // namespace tarvold::testing
