#include "controls/combo_box.h"
#include "records/window_fixture.h"

#include <QMessageBox>

namespace tarvold::testing {
namespace {

/// What the list, the pane and the disk hold stays together, and nothing of it is lost.
class WindowKeepsTest : public RecordsWindowTest
{
protected:
    /// Fails the test unless the list highlights this row alone, and the pane shows its record.
    void expectShown(int row, const QString &text)
    {
        EXPECT_EQ(currentRow(), row);
        EXPECT_EQ(selectedRows(), std::vector<int>({row}));
        EXPECT_EQ(fieldText(kCommentary), text);
    }

    /// Writes into the file, which keeps its place on the disk, and waits until the window knows.
    void writeInPlace(const QByteArray &bytes, const char *file = kFile)
    {
        writeFile(file, bytes);
        QTest::qWait(400); // longer than the window waits for further changes
    }

    void searchFor(const QString &text, int rows)
    {
        auto &search = part<QLineEdit>("search");
        click(search);
        QTest::keyClicks(&search, text);
        ASSERT_TRUE(QTest::qWaitFor([&] { return list().model()->rowCount() == rows; }));
    }
};

TEST_F(WindowKeepsTest, UndoAndRedoOfAMoveShowTheRecordThatMoved)
{
    open(endings(6));
    list().setFocus();
    clickRow(4);
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_Up);
    expectShown(3, u"Ending 5"_s);
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_Up);
    expectShown(2, u"Ending 5"_s);
    press(Qt::CTRL | Qt::Key_Z);
    expectShown(3, u"Ending 5"_s);
    press(Qt::CTRL | Qt::Key_Z);
    expectShown(4, u"Ending 5"_s);
    press(Qt::CTRL | Qt::Key_Y);
    expectShown(3, u"Ending 5"_s);
    clickRow(4); // the one that gave way
    press(Qt::CTRL | Qt::Key_Z);
    expectShown(3, u"Ending 4"_s);
    clickRow(0);
    press(Qt::CTRL | Qt::Key_Y);
    expectShown(3, u"Ending 5"_s);
    clickRow(3);
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_Down);
    press(Qt::CTRL | Qt::Key_Z);
    expectShown(3, u"Ending 5"_s);
    press(Qt::CTRL | Qt::Key_Z);
    typeInto(kCommentary, u"Typed"_s);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), QByteArray(endings(4) + ending("Typed") + endings(1, 6)));
}

TEST_F(WindowKeepsTest, ARecordThatIsGoneIsNotShownBesideAnEmptyList)
{
    open(endings(3));
    list().setFocus();
    clickRow(1);
    press(Qt::CTRL | Qt::Key_D);
    field(kCommentary);
    searchFor(u"zzz"_s, 0);
    action("undo").trigger();
    EXPECT_FALSE(part<QWidget>("field27").isVisible()) << "what is typed there would be lost";
    part<QLineEdit>("search").clear();
    ASSERT_TRUE(QTest::qWaitFor([this] { return list().model()->rowCount() == 3; }));
    EXPECT_EQ(currentRow(), 0);
    typeInto(kCommentary, u"Typed"_s);
    press(Qt::Key_Return);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), QByteArray(ending("Typed") + endings(2, 2)));
}

TEST_F(WindowKeepsTest, AnotherKindOfAFileThatIsGoneKeepsItsOnlyCopy)
{
    open(endings(3));
    typeInto(kCommentary, u"Typed"_s);
    clickRow(1);
    ASSERT_TRUE(QFile::remove(QLatin1StringView(kFile)));
    QTest::qWait(400);
    QString text;
    boxes.catchQuestion(title(), &text, Answer::Yes);
    auto &kind = part<ComboBox>("kind");
    pick(kind, u"Match endings with turns"_s);
    EXPECT_TRUE(window().isLoaded());
    EXPECT_EQ(kind.currentText(), u"Normal match endings"_s);
    EXPECT_TRUE(notice().startsWith(u"The file can't be read again: "_s)) << notice().toStdString();
    EXPECT_TRUE(isChanged());
    expectShown(1, u"Ending 2"_s);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), QByteArray(ending("Typed") + endings(2, 2)));
}

TEST_F(WindowKeepsTest, ARefusalOfTheEditorBlocksItsWindowAlone)
{
    writeFile("other.tvd", endings(4));
    openFile("other.tvd");
    auto &other = window();
    open(endings(3));
    QWidget &editor = field(kCommentary);
    editor.setFocus(Qt::MouseFocusReason);
    paste(editor, u"\u4e16"_s);
    QString text;
    boxes.catchNotice(title(), &text);
    boxes.beforeItsAnswer([&other](const QMessageBox &box) {
        EXPECT_EQ(box.windowModality(), Qt::WindowModal);
        auto &rows = *other.findChild<QAbstractItemView *>(u"list"_s);
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, {},
                          rows.visualRect(rows.model()->index(2, 0)).center());
        EXPECT_EQ(rows.currentIndex().row(), 2);
    });
    clickRow(1);
    QTest::qWait(50);
    boxes.checkAllCame();
    expectShown(0, u"\u4e16Ending 1"_s);
    EXPECT_FALSE(text.isEmpty());
}

TEST_F(WindowKeepsTest, AFileThatIsWrittenInPlaceKeepsThePlace)
{
    open(endings(30));
    clickRow(5);
    writeInPlace({});
    EXPECT_EQ(list().model()->rowCount(), 0);
    writeInPlace(endings(28, 2));
    ASSERT_EQ(list().model()->rowCount(), 28);
    expectShown(4, u"Ending 6"_s);
}

TEST_F(WindowKeepsTest, AnEmptyFileThatGrowsShowsItsFirstRecord)
{
    open({}, "normreports.tvd");
    EXPECT_EQ(currentRow(), -1);
    writeInPlace(endings(2), "normreports.tvd");
    ASSERT_EQ(list().model()->rowCount(), 2);
    expectShown(0, u"Ending 1"_s);
    EXPECT_TRUE(action("delete").isEnabled());
    searchFor(u"zzz"_s, 0);
    const QImage grown = list().viewport()->grab().toImage();
    open(endings(2), "other.tvd");
    searchFor(u"zzz"_s, 0);
    EXPECT_EQ(list().viewport()->grab().toImage(), grown) << "\"No record is like that.\"";
}

TEST_F(WindowKeepsTest, UndoingTheLastChangeFollowsTheFileAgain)
{
    open(endings(3));
    list().setFocus();
    press(Qt::Key_Delete);
    changeOnDisk(endings(4, 2));
    ASSERT_TRUE(notice().startsWith(u"The file changed on the disk."_s)) << notice().toStdString();
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_TRUE(QTest::qWaitFor([this] { return list().model()->rowCount() == 4; }));
    EXPECT_EQ(notice(), u"Read the file again: 4 records."_s);
    EXPECT_FALSE(part<QWidget>("reload").isVisible());
}

} // namespace
} // namespace tarvold::testing
