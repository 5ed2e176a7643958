#include "controls/push_button.h"
#include "records/catalog.h"
#include "records/reading.h"
#include "records/window_fixture.h"
#include "support/hindrances.h"

#include <QScrollBar>
#include <QTreeView>

namespace tarvold::testing {
namespace {

class WindowFileTest : public RecordsWindowTest
{
protected:
    void change()
    {
        typeInto(kCommentary, u"Typed"_s);
        clickRow(1);
    }

    static QByteArray changed() { return ending("Typed") + endings(2, 2); }

    const QString kUnsaved =
        u"The file \"endings.tvd\" has changes that are not saved.\n\nSave them before the window "
        "closes?"_s;
};

TEST_F(WindowFileTest, ClosesWithoutAQuestionWhenNothingIsChanged)
{
    open(endings(3));
    press(Qt::CTRL | Qt::Key_W);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    EXPECT_TRUE(records::RecordsWindow::all().isEmpty());
}

TEST_F(WindowFileTest, ClosingSavesTheChanges)
{
    open(endings(3));
    change();
    boxes.expectUnsaved(title(), kUnsaved, Answer::Save);
    press(Qt::CTRL | Qt::Key_W);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    EXPECT_EQ(onDisk(), changed());
}

TEST_F(WindowFileTest, ClosingDiscardsTheChanges)
{
    open(endings(3));
    change();
    boxes.expectUnsaved(title(), kUnsaved, Answer::Discard);
    press(Qt::CTRL | Qt::Key_W);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    EXPECT_EQ(onDisk(), endings(3));
}

TEST_F(WindowFileTest, ClosingIsCancelledByButtonKeyAndCloseButton)
{
    open(endings(3));
    change();
    for (const Answer answer : {Answer::Cancel, Answer::Escape, Answer::Close}) {
        boxes.expectUnsaved(title(), kUnsaved, answer);
        EXPECT_FALSE(records::RecordsWindow::closeAll());
        QTest::qWait(10);
        ASSERT_TRUE(isOpen());
        EXPECT_TRUE(isChanged());
    }
    EXPECT_EQ(onDisk(), endings(3));
}

TEST_F(WindowFileTest, ClosingKnowsOfATextThatIsNotLeftYet)
{
    open(endings(3));
    typeInto(kCommentary, u"Typed"_s);
    boxes.expectUnsaved(title(), kUnsaved, Answer::Save);
    press(Qt::CTRL | Qt::Key_W);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    EXPECT_EQ(onDisk(), changed());
}

TEST_F(WindowFileTest, AFileHasOneWindow)
{
    open(endings(3));
    records::RecordsWindow *first = &window();
    writeFile("other.tvd", endings(2));
    openFile("other.tvd");
    EXPECT_NE(&window(), first);
    openFile("./endings.tvd");
    EXPECT_EQ(&window(), first);
    openFile("other.tvd");
    ASSERT_EQ(symlink("endings.tvd", "link.tvd"), 0);
    openFile("link.tvd");
    EXPECT_EQ(&window(), first);
    EXPECT_EQ(records::RecordsWindow::all().size(), 2);
}

TEST_F(WindowFileTest, SaveAsksBeforeItOverwritesWhatAnotherProgramWrote)
{
    open(endings(3));
    change();
    changeOnDisk(endings(4, 2));
    EXPECT_EQ(notice(), u"The file changed on the disk. Reload shows it as it is now and forgets "
                        "your changes."_s);
    QString text;
    boxes.catchQuestion(title(), &text, Answer::No);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_TRUE(text.contains(u"was changed after it was loaded"_s)) << text.toStdString();
    EXPECT_EQ(onDisk(), endings(4, 2));
    EXPECT_TRUE(isChanged());
    boxes.catchQuestion(title(), &text, Answer::Yes);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), changed());
    EXPECT_FALSE(isChanged());
}

TEST_F(WindowFileTest, ReloadAsksBeforeItForgetsChanges)
{
    open(endings(3));
    change();
    changeOnDisk(endings(4, 2));
    auto &reload = part<PushButton>("reload");
    QString text;
    boxes.catchQuestion(title(), &text, Answer::Enter);
    click(reload);
    EXPECT_TRUE(isChanged()) << "Enter means No";
    boxes.catchQuestion(title(), &text, Answer::Yes);
    click(reload);
    EXPECT_FALSE(isChanged());
    EXPECT_EQ(column(u"Number"_s).size(), 4);
    EXPECT_FALSE(reload.isVisible());
}

TEST_F(WindowFileTest, WithoutChangesItFollowsTheFileAndKeepsThePlace)
{
    open(endings(200));
    clickRow(3);
    for (int row = 0; row < 100; ++row) {
        press(Qt::Key_Down);
    }
    QTest::keyClick(&list(), Qt::Key_Up, Qt::ShiftModifier);
    const int current = currentRow();
    ASSERT_EQ(current, 102);
    const int top = list().indexAt(QPoint(0, 0)).row();
    ASSERT_GT(top, 0);
    changeOnDisk(endings(250));
    EXPECT_EQ(list().model()->rowCount(), 250);
    EXPECT_EQ(currentRow(), current);
    EXPECT_EQ(selectedRows(), std::vector<int>({102, 103}));
    EXPECT_EQ(list().indexAt(QPoint(0, 0)).row(), top);
    EXPECT_TRUE(list().hasFocus());

    changeOnDisk(endings(240, 11)); // the first ten are gone
    EXPECT_EQ(currentRow(), current - 10);
    EXPECT_EQ(list().indexAt(QPoint(0, 0)).row(), top - 10);
    EXPECT_EQ(fieldText(kCommentary), u"Ending 103"_s);
}

TEST_F(WindowFileTest, FollowingTheFileKeepsFilterAndSort)
{
    open(endings(3) + faulty("Ending 4") + faulty("Ending 5"));
    part<QTreeView>("list").sortByColumn(0, Qt::DescendingOrder);
    part<QAbstractButton>("onlyProblems").click();
    ASSERT_TRUE(QTest::qWaitFor([this] { return list().model()->rowCount() <= 3; }));
    clickRow(0);
    ASSERT_EQ(cell(0, u"Number"_s), u"5"_s);
    changeOnDisk(endings(3) + faulty("Ending 4") + faulty("Ending 5") + faulty("Ending 6"));
    EXPECT_TRUE(QTest::qWaitFor([this] {
        return column(u"Number"_s) == QStringList({u"6"_s, u"5"_s, u"4"_s});
    })) << column(u"Number"_s).join(u' ').toStdString();
    EXPECT_EQ(cell(currentRow(), u"Number"_s), u"5"_s);
}

TEST_F(WindowFileTest, ATextThatIsBeingTypedIsNotLostWhenTheFileChanges)
{
    open(endings(3));
    typeInto(kCommentary, u"Typ"_s);
    changeOnDisk(endings(4, 2));
    QTest::keyClicks(window().windowHandle() != nullptr ? QApplication::focusWidget() : nullptr,
                     u"ed"_s);
    EXPECT_EQ(fieldText(kCommentary), u"Typed"_s);
    EXPECT_EQ(column(u"Number"_s).size(), 3);
}

TEST_F(WindowFileTest, AFileThatIsGoneCanBeSavedAgain)
{
    open(endings(3));
    ASSERT_TRUE(QFile::remove(QLatin1StringView(kFile)));
    QTest::qWait(400);
    EXPECT_TRUE(notice().startsWith(u"The file is gone from the disk."_s))
        << notice().toStdString();
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), endings(3));
}

TEST_F(WindowFileTest, AFailedSaveLosesNothingAndOffersAnotherFile)
{
    open(endings(3));
    change();
    QString text;
    boxes.catchFailedSave(title(), &text);
    {
        const FileSizeLimit limit(100);
        press(Qt::CTRL | Qt::Key_S);
    }
    EXPECT_TRUE(text.contains(u"All your changes are still here."_s)) << text.toStdString();
    EXPECT_EQ(onDisk(), endings(3));
    EXPECT_TRUE(isChanged());
    EXPECT_EQ(notice(), u"Not saved."_s);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), changed());
    EXPECT_EQ(notice(), u"Saved 3 records to endings.tvd."_s);
}

TEST_F(WindowFileTest, SaveAsTakesAnotherName)
{
    open(endings(3));
    change();
    dialogs.expect({folder.path(), u"endings.tvd"_s, u"mine"_s, true, u"Save As"_s});
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    EXPECT_EQ(onDisk("mine.tvd"), changed());
    EXPECT_EQ(onDisk(), endings(3));
    EXPECT_EQ(window().fileName(), u"mine.tvd"_s);
    EXPECT_TRUE(window().windowTitle().startsWith(u"mine.tvd"_s));
    EXPECT_FALSE(isChanged());
}

TEST_F(WindowFileTest, SaveAsAsksBeforeItOverwrites)
{
    open(endings(3));
    writeFile("there.tvd", endings(1));
    dialogs.expect({folder.path(), u"endings.tvd"_s, u"there.tvd"_s, true, u"Save As"_s});
    QString text;
    boxes.catchQuestion(title(), &text, Answer::No);
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    EXPECT_EQ(text, u"The file \"there.tvd\" is there already.\n\nYes writes all records of this "
                    "window over it, and what is in it now is lost. After No it stays as it "
                    "is.\n\nWrite over it?"_s);
    EXPECT_EQ(notice(), u"Not saved."_s);
    EXPECT_EQ(onDisk("there.tvd"), endings(1));
    EXPECT_EQ(window().fileName(), u"endings.tvd"_s);
}

TEST_F(WindowFileTest, AFailedSaveAsIsToldAndLosesNothing)
{
    open(endings(3));
    change();
    dialogs.expect({folder.path(), u"endings.tvd"_s, u"mine"_s, true, u"Save As"_s});
    QString text;
    boxes.catchNotice(title(), &text);
    {
        const FileSizeLimit limit(100);
        press(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    }
    EXPECT_TRUE(text.contains(u"All your changes are still here."_s)) << text.toStdString();
    EXPECT_EQ(notice(), u"Not saved."_s);
    EXPECT_EQ(window().fileName(), u"endings.tvd"_s);
    EXPECT_TRUE(isChanged());
}

TEST_F(WindowFileTest, CopiesRecordsToTheEndOfAnotherFile)
{
    open(endings(3));
    writeFile("there.tvd", endings(1, 9));
    clickRow(0);
    QTest::keyClick(&list(), Qt::Key_Down, Qt::ShiftModifier);
    dialogs.expect({folder.path(), QString(), u"there.tvd"_s, true, u"Copy To Another File"_s});
    action("copyTo").trigger();
    EXPECT_EQ(onDisk("there.tvd"), endings(1, 9) + endings(2));
    EXPECT_EQ(notice(), u"Copied 2 records to there.tvd."_s);
}

TEST_F(WindowFileTest, DeletedRecordsAreNotCopied)
{
    open(endings(3));
    list().setFocus();
    clickRow(1);
    press(Qt::Key_Delete);
    action("copyTo").trigger();
    EXPECT_EQ(notice(), u"Deleted records are not copied."_s);
    press(QKeySequence::SelectAll);
    dialogs.expect({folder.path(), QString(), u"there.tvd"_s, true, u"Copy To Another File"_s});
    action("copyTo").trigger();
    EXPECT_EQ(onDisk("there.tvd"), endings(1) + endings(1, 3));
    EXPECT_EQ(notice(), u"Copied 2 records to there.tvd."_s);
}

TEST_F(WindowFileTest, RecordsAreNotCopiedToAFileOfAnotherKind)
{
    const auto recordsOf = [](DataFileKind kind) {
        QByteArray record;
        for (const records::KnownField &field : records::Catalog::of(kind).fields()) {
            record += field.newText.toLatin1() + "\r\n";
        }
        return record;
    };
    const QByteArray interviews = recordsOf(DataFileKind::Interviews);
    // May be either of two kinds, and is certainly not of a third.
    const QByteArray open2 = interviews + recordsOf(DataFileKind::TalkShows);
    ASSERT_EQ(records::guessKind(open2, u"there.tvd"_s).kind, std::nullopt);
    open(endings(3));
    for (const QByteArray &other : {interviews, open2}) {
        writeFile("there.tvd", other);
        dialogs.expect({folder.path(), QString(), u"there.tvd"_s, true, u"Copy To Another File"_s});
        QString text;
        boxes.catchNotice(title(), &text);
        action("copyTo").trigger();
        EXPECT_TRUE(text.contains(u"Choose a file of the same kind."_s)) << text.toStdString();
        EXPECT_EQ(onDisk("there.tvd"), other);
    }
}

TEST_F(WindowFileTest, CopyingToAFileOfAnUncertainKindIsAskedFor)
{
    open(endings(3));
    writeFile("there.tvd", "Hello.\r\n");
    QString text;
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        dialogs.expect({folder.path(), QString(), u"there.tvd"_s, true, u"Copy To Another File"_s});
        boxes.catchQuestion(title(), &text, answer);
        action("copyTo").trigger();
        EXPECT_EQ(onDisk("there.tvd"),
                  "Hello.\r\n" + (answer == Answer::Yes ? endings(1) : QByteArray()));
    }
    EXPECT_EQ(text, u"It is not certain that the file \"there.tvd\" holds normal match "
                    "endings.\n\nYes adds the records to its end.\n\nAdd them?"_s);
}

} // namespace
} // namespace tarvold::testing
