// Where records may be copied to, which ones, and names that are there already.

#include "records/window_fixture.h"

#include <QFileInfo>

namespace tarvold::testing {
namespace {

class WindowCopyTest : public RecordsWindowTest
{
protected:
    void copyTo(const QString &name)
    {
        dialogs.expect({folder.path(), QString(), name, true, u"Copy To Another File"_s});
        action("copyTo").trigger();
    }

    void saveAs(const QString &name)
    {
        dialogs.expect({folder.path(), u"endings.tvd"_s, name, true, u"Save As"_s});
        press(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    }

    /// An ending without its last line.
    static QByteArray shortened(const QByteArray &record)
    {
        return record.first(record.lastIndexOf('\n', -2) + 1);
    }

    void clickWithControl(int row)
    {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::ControlModifier,
                          list().visualRect(list().model()->index(row, 0)).center());
    }
};

TEST_F(WindowCopyTest, RecordsAreNotCopiedToTheirOwnFile)
{
    open(endings(2));
    QString text;
    for (const QString &name : {u"endings.tvd"_s, folder.filePath(u"endings.tvd"_s)}) {
        boxes.catchNotice(title(), &text);
        copyTo(name);
        EXPECT_EQ(text,
                  u"The file \"endings.tvd\" is the one that these records are in.\n\nNothing "
                  "was written. Choose another file, or use Duplicate in the menu "
                  "Record."_s);
    }
    EXPECT_EQ(onDisk(), endings(2));
    EXPECT_EQ(list().model()->rowCount(), 2);
}

TEST_F(WindowCopyTest, ADamagedRecordIsCopiedOnlyOnRequest)
{
    open(endings(2) + shortened(ending("Ending 3")));
    writeFile("there.tvd", endings(1, 9));
    press(QKeySequence::SelectAll);
    QString text;
    boxes.catchQuestion(title(), &text, Answer::No);
    action("copyTo").trigger();
    EXPECT_EQ(text,
              u"Lines of ending 3 are missing, or there are too many. In another file, too, the "
              "game would read it wrongly, and maybe all that follows it.\n\nYes copies it as "
              "it is. After No nothing is written; repair it first.\n\nCopy it?"_s);
    EXPECT_EQ(onDisk("there.tvd"), endings(1, 9));
    boxes.catchQuestion(title(), &text, Answer::Yes);
    copyTo(u"there.tvd"_s);
    EXPECT_EQ(onDisk("there.tvd"), endings(1, 9) + endings(2) + shortened(ending("Ending 3")));
}

TEST_F(WindowCopyTest, RecordsAreAddedToAFileOutOfStepOnlyOnRequest)
{
    open(endings(2));
    const QByteArray damaged = endings(3, 7) + shortened(ending("Ending 10"));
    writeFile("there.tvd", damaged);
    QString text;
    boxes.catchQuestion(title(), &text, Answer::No);
    copyTo(u"there.tvd"_s);
    EXPECT_EQ(text, u"Lines are missing in the file \"there.tvd\", or there are too many. The game "
                    "would read what is added to its end wrongly.\n\nYes adds the records all the "
                    "same. After No nothing is written; look through that file and repair it "
                    "first.\n\nAdd them?"_s);
    EXPECT_EQ(onDisk("there.tvd"), damaged);
    boxes.catchQuestion(title(), &text, Answer::Yes);
    copyTo(u"there.tvd"_s);
    EXPECT_EQ(onDisk("there.tvd"), damaged + endings(1));
}

TEST_F(WindowCopyTest, AFileWithoutALastLineEndIsWhole)
{
    open(endings(2));
    writeFile("there.tvd", endings(1, 9).chopped(2));
    copyTo(u"there.tvd"_s);
    EXPECT_EQ(onDisk("there.tvd"), endings(1, 9) + endings(1));
}

TEST_F(WindowCopyTest, SaveAsWritesTheFileThatWasChosenWhateverItsLetters)
{
    open(endings(2));
    writeFile("OLD.TVD", endings(1, 9));
    QString text;
    boxes.catchQuestion(title(), &text, Answer::Yes);
    saveAs(u"OLD.TVD"_s);
    EXPECT_TRUE(text.startsWith(u"The file \"OLD.TVD\" is there already."_s)) << text.toStdString();
    EXPECT_EQ(onDisk("OLD.TVD"), endings(2));
    EXPECT_FALSE(QFileInfo::exists(u"OLD.tvd"_s));
    EXPECT_EQ(window().fileName(), u"OLD.TVD"_s);
}

TEST_F(WindowCopyTest, SaveAsOntoItsOwnFileSaves)
{
    open(endings(2));
    typeInto(kCommentary, u"Typed"_s);
    saveAs(u"endings.tvd"_s);
    EXPECT_EQ(onDisk(), ending("Typed") + endings(1, 2));
    EXPECT_FALSE(isChanged());
    EXPECT_EQ(notice(), u"Saved 2 records to endings.tvd."_s);
}

TEST_F(WindowCopyTest, SaveAsOntoTheFileOfAnotherWindowIsToldThere)
{
    writeFile("there.tvd", endings(1, 9));
    const QPointer<records::RecordsWindow> other =
        records::RecordsWindow::open(u"there.tvd"_s, DataFileKind::NormalEndings);
    open(endings(2));
    QString text;
    boxes.catchQuestion(title(), &text, Answer::Yes);
    saveAs(u"there.tvd"_s);
    EXPECT_EQ(onDisk("there.tvd"), endings(2));
    EXPECT_TRUE(QTest::qWaitFor([&other] {
        return other->findChild<QAbstractItemView *>(u"list"_s)->model()->rowCount() == 2;
    }));
    delete other.data();
}

TEST_F(WindowCopyTest, WithoutASelectionTheTasksAskForOne)
{
    open(faulty("Ending 1") + endings(2));
    list().setFocus();
    clickRow(0);
    clickWithControl(0);
    ASSERT_EQ(selectedRows(), std::vector<int>());
    ASSERT_EQ(currentRow(), 0);
    EXPECT_FALSE(action("restore").isEnabled());
    action("copyTo").trigger();
    EXPECT_EQ(notice(), u"Select the records to copy."_s);
    action("repairSelected").trigger();
    EXPECT_EQ(notice(), u"Select the records to repair."_s);
    press(Qt::Key_Delete);
    EXPECT_EQ(notice(), u"Select the records to delete."_s);
    EXPECT_FALSE(isChanged());
}

TEST_F(WindowCopyTest, DeleteAndRestoreGoByTheSelection)
{
    open(endings(3));
    list().setFocus();
    clickRow(0);
    press(Qt::Key_Delete);
    EXPECT_TRUE(action("restore").isEnabled());
    EXPECT_FALSE(action("delete").isEnabled());
    QTest::keyClick(&list(), Qt::Key_Down, Qt::ShiftModifier);
    ASSERT_EQ(currentRow(), 1) << "which is not deleted";
    EXPECT_TRUE(action("restore").isEnabled());
    EXPECT_TRUE(action("delete").isEnabled());
    action("restore").trigger();
    EXPECT_EQ(cell(0, u"Change"_s), QString());
    EXPECT_FALSE(action("restore").isEnabled());
    clickRow(2);
    press(Qt::Key_Delete);
    clickRow(1);
    QTest::keyClick(&list(), Qt::Key_Down, Qt::ShiftModifier);
    ASSERT_EQ(currentRow(), 2) << "which is deleted";
    EXPECT_TRUE(action("delete").isEnabled());
    press(Qt::Key_Delete);
    EXPECT_EQ(notice(), u"Deleted 1 record. The file changes only when you save."_s);
}

} // namespace
} // namespace tarvold::testing
