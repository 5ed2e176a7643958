#include "document_test.h"

#include "records/record.h"

namespace tarvold::testing {
namespace {

using namespace Qt::StringLiterals;

TEST_F(DocumentTest, ShowsAllRecordsOfTheFileWithoutACopy)
{
    EXPECT_EQ(shown(), "One Two Three");
    EXPECT_EQ(content(), one + two + three);
    EXPECT_EQ(document.entry(1).bytes.constData(),
              document.entry(0).bytes.constData() + one.size());
    EXPECT_FALSE(document.isChanged());
}

TEST_F(DocumentTest, StaysAsItWasIfAnotherFileCannotBeRead)
{
    document.remove({0});
    EXPECT_FALSE(document.open(u"missing.tvd"_s, DataFileKind::TalkShows));
    EXPECT_EQ(shown(), "One:D Two Three");
    EXPECT_EQ(document.fileName(), u"talkshow.tvd");
}

TEST_F(DocumentTest, ReadsNothingOfAnEmptyFile)
{
    writeFile("empty.tvd", "");
    ASSERT_TRUE(document.open(u"empty.tvd"_s, DataFileKind::TalkShows));
    EXPECT_EQ(document.count(), 0);
    EXPECT_EQ(document.last(), -1);
    EXPECT_TRUE(document.save({}));
    EXPECT_EQ(readBack("empty.tvd"), "");
}

TEST_F(DocumentTest, KeepsTheBytesOfARecordThatIsStillShownAfterAReload)
{
    const QByteArray kept = document.entry(2).bytes;
    writeFile(kFile, one);
    ASSERT_TRUE(document.reload());
    EXPECT_EQ(shown(), "One");
    EXPECT_EQ(kept, three);
}

TEST_F(DocumentTest, EditsARecord)
{
    document.replace(1, talkShow("Other"), u"Edit"_s);
    EXPECT_EQ(shown(), "One Other:E Three");
    EXPECT_EQ(document.undoStack().undoText(), u"Edit");
    undo();
    EXPECT_EQ(shown(), "One Two Three");
    EXPECT_FALSE(document.isChanged());
    redo();
    EXPECT_EQ(content(), one + talkShow("Other") + three);
}

TEST_F(DocumentTest, TakesTheSameBytesForNoChange)
{
    document.replace(1, QByteArray(two.constData(), two.size()), u"Edit"_s);
    document.restore({0});
    document.remove({});
    document.move(0, -1);
    document.move(2, 1);
    EXPECT_EQ(steps(), 0);
    EXPECT_FALSE(document.isChanged());
}

TEST_F(DocumentTest, CallsARecordUnchangedThatIsEditedBack)
{
    document.replace(1, talkShow("Other"), u"Edit"_s);
    document.replace(1, two, u"Edit"_s);
    EXPECT_EQ(shown(), "One Two Three");
    EXPECT_EQ(steps(), 2);
}

TEST_F(DocumentTest, EditsManyRecordsInOneStep)
{
    document.replace({{2, talkShow("C")}, {0, talkShow("A")}, {1, two}}, u"Repair All"_s);
    EXPECT_EQ(shown(), "A:E Two C:E");
    EXPECT_EQ(steps(), 1);
    undo();
    EXPECT_EQ(content(), one + two + three);
}

TEST_F(DocumentTest, ShowsDeletedRecordsUntilTheyAreSaved)
{
    document.remove({2, 0});
    EXPECT_EQ(shown(), "One:D Two Three:D");
    EXPECT_EQ(document.last(), 1);
    EXPECT_EQ(document.undoStack().undoText(), u"Delete 2 Records");
    document.restore({0});
    EXPECT_EQ(shown(), "One Two Three:D");
    EXPECT_TRUE(document.save({}));
    EXPECT_EQ(shown(), "One Two");
    EXPECT_EQ(readBack(kFile), one + two);
}

TEST_F(DocumentTest, DuplicatesARecordNextToIt)
{
    document.duplicate(1);
    EXPECT_EQ(shown(), "One Two Two:A Three");
    EXPECT_EQ(document.undoStack().undoText(), u"Duplicate Record 2");
    undo();
    EXPECT_EQ(shown(), "One Two Three");
}

TEST_F(DocumentTest, ShowsADeletedCopyNoLonger)
{
    document.duplicate(0);
    document.remove({1, 2});
    EXPECT_EQ(shown(), "One Two:D Three");
    undo();
    EXPECT_EQ(shown(), "One One:A Two Three");
}

TEST_F(DocumentTest, CallsOnlyTheMovedRecordMoved)
{
    document.move(2, -1);
    EXPECT_EQ(shown(), "One Three:M Two");
    document.move(1, -1);
    EXPECT_EQ(shown(), "Three:M One Two");
    EXPECT_EQ(content(), three + one + two);
    undo();
    undo();
    EXPECT_EQ(shown(), "One Two Three");
}

TEST_F(DocumentTest, CallsNothingMovedThatIsWhereItWas)
{
    document.move(0, 1);
    document.move(1, -1);
    EXPECT_EQ(shown(), "One Two Three");
    document.move(0, 1);
    document.move(0, 1); // the other one passes it
    EXPECT_EQ(shown(), "One Two Three");
}

TEST_F(DocumentTest, EndsALastLineBeforeSomethingIsAddedBehind)
{
    const QByteArray unended = three.chopped(2);
    writeFile(kFile, one + unended);
    ASSERT_TRUE(document.reload());
    document.duplicate(1);
    EXPECT_EQ(content(), one + three + three);
    EXPECT_EQ(shown(), "One Three:E Three:A");
    undo();
    EXPECT_EQ(content(), one + unended);
    EXPECT_EQ(shown(), "One Three");
    document.move(1, -1);
    EXPECT_EQ(content(), three + one);
    undo();
    document.move(0, 1);
    EXPECT_EQ(content(), three + one);
    undo();
    EXPECT_EQ(content(), one + unended);
}

TEST_F(DocumentTest, EndsARecordThatIsNotTheLastOne)
{
    document.replace(0, one.chopped(2), u"Edit"_s);
    EXPECT_EQ(steps(), 0);
    document.replace(2, three.chopped(2), u"Edit"_s);
    EXPECT_EQ(content(), one + two + three.chopped(2));
}

TEST_F(DocumentTest, ShowsChangesAgainThatAreUndoneAfterASave)
{
    document.replace(0, talkShow("New"), u"Edit"_s);
    document.remove({1});
    document.duplicate(2);
    document.move(3, -1);
    ASSERT_TRUE(document.save({}));
    EXPECT_EQ(shown(), "New Three Three");
    EXPECT_FALSE(document.isChanged());
    undo();
    EXPECT_TRUE(document.isChanged());
    EXPECT_EQ(shown(), "New Three Three:M");
    undo();
    EXPECT_EQ(shown(), "New Three");
    undo();
    EXPECT_EQ(shown(), "New Two:A Three");
    undo();
    EXPECT_EQ(shown(), "One:E Two:A Three");
    EXPECT_EQ(content(), one + two + three);
    for (int step = 0; step < 4; ++step) {
        redo();
    }
    EXPECT_EQ(shown(), "New Three Three");
    EXPECT_FALSE(document.isChanged());
}

TEST_F(DocumentTest, SavesWhatWasUndoneAfterASave)
{
    document.remove({0, 2});
    ASSERT_TRUE(document.save({}));
    undo();
    ASSERT_TRUE(document.save({}));
    EXPECT_EQ(readBack(kFile), one + two + three);
    EXPECT_EQ(shown(), "One Two Three");
    redo();
    EXPECT_EQ(shown(), "One:D Two Three:D");
}

TEST_F(DocumentTest, KeepsItsIdsOverASave)
{
    const int id = document.entry(2).id;
    document.remove({0});
    ASSERT_TRUE(document.save({}));
    EXPECT_EQ(document.indexOf(id), 1);
    EXPECT_EQ(document.indexOf(-1), std::nullopt);
}

TEST_F(DocumentTest, KeepsEveryByteOfWhatNobodyTouched)
{
    QByteArray odd;
    for (int byte = 0; byte < 256; ++byte) {
        odd += byte == '\n' || byte == '\r' ? QByteArray("x") : QByteArray(1, char(byte));
    }
    QByteArray changed = two;
    changed.replace("Two", odd);
    writeFile(kFile, one + changed + three.chopped(2));
    ASSERT_TRUE(document.reload());
    document.remove({0});
    ASSERT_TRUE(document.save({}));
    EXPECT_EQ(readBack(kFile), changed + three.chopped(2));
}

TEST_F(DocumentTest, ReadsTheSameBytesAsAnotherKind)
{
    document.remove({0});
    ASSERT_TRUE(document.take(document.fileName(), document.file(), DataFileKind::Stipulations));
    EXPECT_EQ(document.kind(), DataFileKind::Stipulations);
    EXPECT_EQ(content(), one + two + three);
    EXPECT_FALSE(document.isChanged());
}

} // namespace
} // namespace tarvold::testing
