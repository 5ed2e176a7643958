// A change of stipulations is in the file and in the table, or in neither.

#include "datafiles/stipulation_table.h"
#include "support/folder_test.h"
#include "support/stipulation_records.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class StipulationChange : public FolderTest
{
protected:
    StipulationChange()
    {
        writeFile("a.tvd", one + two);
        EXPECT_TRUE(table.load(u"a.tvd"_s));
    }

    /// Removes the first stipulation.
    Result<void> removeFirst(const QString &name)
    {
        return table.change(
            name, [](StipulationTable &changed) { changed.remove(0); },
            [this] {
                ++questions;
                heldAtQuestion = held();
                return mayOverwrite;
            });
    }

    /// The texts of all stipulations in the table.
    QByteArrayList held() const
    {
        QByteArrayList texts;
        for (const int index : table.allRecords()) {
            texts << table.displayText(index);
        }
        return texts;
    }

    void expectOutcome(const Result<void> &result, FileOutcome outcome)
    {
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().outcome, outcome);
        EXPECT_FALSE(StipulationTable::isInFile(result));
    }

    const QByteArray one = stipulation("Singles", "One");
    const QByteArray two = stipulation("Singles", "Two");
    const QByteArray others = stipulation("Tag Team", "Others");
    const QByteArrayList before = {"Singles / One", "Singles / Two"};
    const QByteArrayList after = {"Singles / Two"};
    StipulationTable table;
    bool mayOverwrite = false;
    int questions = 0;
    QByteArrayList heldAtQuestion;
};

TEST_F(StipulationChange, IsInTheFileAndInTheTable)
{
    const Result<void> changed = removeFirst(u"a.tvd"_s);
    EXPECT_TRUE(changed);
    EXPECT_TRUE(StipulationTable::isInFile(changed));
    EXPECT_EQ(readBack("a.tvd"), two);
    EXPECT_EQ(held(), after);
    EXPECT_EQ(questions, 0);
}

TEST_F(StipulationChange, IsInNeitherWhenTheFileCannotBeWritten)
{
    ASSERT_TRUE(QDir().mkdir(u"folder.tvd"_s));
    for (const QString &name : {u"folder.tvd"_s, u"missing/a.tvd"_s, QString()}) {
        expectOutcome(removeFirst(name), FileOutcome::Unchanged);
        EXPECT_EQ(held(), before);
    }
    EXPECT_EQ(questions, 0);
    EXPECT_EQ(readBack("a.tvd"), one + two);
}

TEST_F(StipulationChange, IsInNeitherWhenAnotherProgramsChangeIsKept)
{
    writeFile("a.tvd", others);
    expectOutcome(removeFirst(u"a.tvd"_s), FileOutcome::ChangedByAnother);
    EXPECT_EQ(questions, 1);
    EXPECT_EQ(readBack("a.tvd"), others);
    EXPECT_EQ(held(), before);
}

TEST_F(StipulationChange, OverwritesAnotherProgramsChangeWhenAllowed)
{
    writeFile("a.tvd", others);
    mayOverwrite = true;
    EXPECT_TRUE(removeFirst(u"a.tvd"_s));
    EXPECT_EQ(questions, 1);
    EXPECT_EQ(readBack("a.tvd"), two);
    EXPECT_EQ(held(), after);
}

TEST_F(StipulationChange, IsNotInTheTableWhileTheQuestionIsAsked)
{
    writeFile("a.tvd", others);
    mayOverwrite = true;
    EXPECT_TRUE(removeFirst(u"a.tvd"_s));
    EXPECT_EQ(heldAtQuestion, before);
}

TEST_F(StipulationChange, OverwritesAFileOfAnotherNameWithoutAQuestion)
{
    writeFile("b.tvd", others);
    EXPECT_TRUE(removeFirst(u"b.tvd"_s));
    EXPECT_EQ(questions, 0);
    EXPECT_EQ(readBack("b.tvd"), two);
    EXPECT_EQ(readBack("a.tvd"), one + two);
}

TEST_F(StipulationChange, CanBeTriedAgainAfterAFailure)
{
    EXPECT_FALSE(removeFirst(u"missing/a.tvd"_s));
    EXPECT_TRUE(removeFirst(u"a.tvd"_s));
    EXPECT_EQ(readBack("a.tvd"), two);
    EXPECT_EQ(questions, 0);
}

} // namespace
} // namespace tarvold::testing
