#include "controls/combo_box.h"
#include "records/window_fixture.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTreeView>

namespace tarvold::testing {
namespace {

class WindowListTest : public RecordsWindowTest
{
protected:
    QLineEdit &search() { return part<QLineEdit>("search"); }

    bool shows(int rows)
    {
        return QTest::qWaitFor([this, rows] { return list().model()->rowCount() == rows; });
    }

    void clickHead(const QString &head)
    {
        auto &heads = part<QHeaderView>("heads");
        for (int section = 0; section < heads.count(); ++section) {
            if (heads.model()->headerData(section, Qt::Horizontal).toString() == head) {
                const int x =
                    heads.sectionViewportPosition(section) + heads.sectionSize(section) / 2;
                QTest::mouseClick(heads.viewport(), Qt::LeftButton, {},
                                  QPoint(x, heads.height() / 2));
                return;
            }
        }
        ADD_FAILURE() << "no head " << head.toStdString();
    }

    /// Opens a file of 260 endings and deletes every other one, by a search that is cleared then.
    void deleteEveryOther()
    {
        QByteArray file;
        for (int number = 0; number < 260; ++number) {
            file += ending((number % 2 == 0 ? "good " : "zzz ") + QByteArray::number(number));
        }
        open(file);
        press(Qt::CTRL | Qt::Key_F);
        QTest::keyClicks(&search(), u"zzz"_s);
        ASSERT_TRUE(shows(130));
        list().setFocus();
        press(Qt::CTRL | Qt::Key_A);
        press(Qt::Key_Delete);
        press(Qt::CTRL | Qt::Key_F);
        press(Qt::Key_Escape);
        ASSERT_TRUE(shows(260));
    }
};

TEST_F(WindowListTest, ShowsTheFirstRecordAtOnce)
{
    open(endings(3));
    EXPECT_EQ(currentRow(), 0);
    EXPECT_EQ(selectedRows(), std::vector<int>({0}));
    EXPECT_EQ(column(u"Number"_s), QStringList({u"1"_s, u"2"_s, u"3"_s}));
    EXPECT_TRUE(list().hasFocus());
    EXPECT_TRUE(window().windowTitle().startsWith(u"endings.tvd[*]"_s));
}

TEST_F(WindowListTest, SearchAnswersEachLetterAndIsOverWhenItsTextIs)
{
    open(endings(30));
    press(Qt::CTRL | Qt::Key_F);
    EXPECT_TRUE(search().hasFocus());
    QTest::keyClicks(&search(), u"ENDING 2"_s);
    EXPECT_TRUE(shows(11)) << list().model()->rowCount();
    QTest::keyClicks(&search(), u"5"_s);
    EXPECT_TRUE(shows(1));
    EXPECT_EQ(cell(0, u"Number"_s), u"25"_s);
    press(QKeySequence::SelectAll);
    press(Qt::Key_Delete);
    EXPECT_TRUE(shows(30));
    QTest::qWait(100); // a search that was stopped does not come back
    EXPECT_EQ(list().model()->rowCount(), 30);
}

TEST_F(WindowListTest, EscapeEndsTheSearchAndKeepsTheRecord)
{
    open(endings(30));
    press(Qt::CTRL | Qt::Key_F);
    QTest::keyClicks(&search(), u"ending 25"_s);
    ASSERT_TRUE(shows(1));
    press(Qt::Key_Return);
    EXPECT_TRUE(list().hasFocus());
    press(Qt::Key_End);
    const QString number = cell(currentRow(), u"Number"_s);
    EXPECT_EQ(number, u"25"_s);
    press(Qt::CTRL | Qt::Key_F);
    press(Qt::Key_Escape);
    EXPECT_TRUE(shows(30));
    EXPECT_EQ(search().text(), QString());
    EXPECT_EQ(cell(currentRow(), u"Number"_s), u"25"_s);
}

TEST_F(WindowListTest, EscapeInAnEmptySearchDoesNothing)
{
    open(endings(3));
    press(Qt::CTRL | Qt::Key_F);
    press(Qt::Key_Escape);
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(window().isVisible());
    EXPECT_TRUE(search().hasFocus());
    EXPECT_EQ(list().model()->rowCount(), 3);
}

TEST_F(WindowListTest, TheCrossInTheSearchBoxEndsTheSearch)
{
    open(endings(30));
    auto &cross = part<QAbstractButton>("clearSearch");
    EXPECT_FALSE(cross.isVisible()) << "there is nothing to clear";
    press(Qt::CTRL | Qt::Key_F);
    QTest::keyClicks(&search(), u"ending 25"_s);
    ASSERT_TRUE(shows(1));
    EXPECT_TRUE(cross.isVisible());
    EXPECT_TRUE(search().rect().contains(cross.geometry()));
    EXPECT_EQ(cross.accessibleName(), u"Clear The Search"_s);
    press(Qt::Key_Return);
    click(cross);
    EXPECT_TRUE(shows(30));
    EXPECT_EQ(search().text(), QString());
    EXPECT_TRUE(search().hasFocus());
    EXPECT_FALSE(cross.isVisible());
}

TEST_F(WindowListTest, ALongSearchDoesNotRunUnderTheCross)
{
    open(endings(3));
    search().setFocus();
    search().setText(QString(300, u'x'));
    QCoreApplication::processEvents();
    const QRect cursor = search().inputMethodQuery(Qt::ImCursorRectangle).toRect();
    EXPECT_LT(cursor.center().x(), part<QWidget>("clearSearch").x());
}

TEST_F(WindowListTest, ASearchForNothingThatIsThereSaysSo)
{
    open(endings(3));
    press(Qt::CTRL | Qt::Key_F);
    QTest::keyClicks(&search(), u"zzz"_s);
    ASSERT_TRUE(shows(0));
    EXPECT_EQ(part<QLabel>("counts").text(), u"0 of 3 records"_s);
}

TEST_F(WindowListTest, AnotherKindEndsTheSortAndItsMark)
{
    open(ending("Ending 1", "Tag Team") + ending("Ending 2", "Any") +
         ending("Ending 3", "Singles"));
    clickHead(u"Match Type"_s);
    auto &heads = part<QHeaderView>("heads");
    ASSERT_GE(heads.sortIndicatorSection(), 0);
    pick(part<ComboBox>("kind"), u"Match stipulations"_s);
    pick(part<ComboBox>("kind"), u"Normal match endings"_s);
    EXPECT_EQ(column(u"Number"_s), QStringList({u"1"_s, u"2"_s, u"3"_s}));
    EXPECT_EQ(heads.sortIndicatorSection(), -1);
    clickRow(0);
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_Down);
    EXPECT_EQ(currentRow(), 1) << "records move in the file's order";
}

TEST_F(WindowListTest, ARepairedRecordKeepsItsPlaceInAListSortedByProblems)
{
    open(endings(20) + faulty("Ending 21") + faulty("Ending 22") + faulty("Ending 23"));
    clickHead(u"Problems"_s);
    const QStringList sorted = column(u"Number"_s);
    ASSERT_EQ(sorted.first(4), QStringList({u"21"_s, u"22"_s, u"23"_s, u"1"_s}));
    clickRow(1);
    typeInto(kCommentary, u"Mended"_s);
    press(Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([this] { return cell(1, u"Problems"_s).isEmpty(); }));
    QTest::qWait(100); // all records are compared anew
    EXPECT_EQ(column(u"Number"_s), sorted);
    EXPECT_EQ(currentRow(), 1);
    press(Qt::Key_F8);
    EXPECT_EQ(cell(currentRow(), u"Number"_s), u"23"_s);
    clickHead(u"Problems"_s);
    clickHead(u"Problems"_s);
    clickHead(u"Problems"_s);
    EXPECT_EQ(column(u"Number"_s).first(3), QStringList({u"21"_s, u"23"_s, u"1"_s}));
}

TEST_F(WindowListTest, AThirdClickOnAHeadGoesBackToTheFilesOrder)
{
    open(ending("Ending 1", "Tag Team") + ending("Ending 2", "Any") +
         ending("Ending 3", "Singles"));
    clickHead(u"Match Type"_s);
    EXPECT_EQ(column(u"Number"_s), QStringList({u"2"_s, u"3"_s, u"1"_s}));
    clickHead(u"Match Type"_s);
    EXPECT_EQ(column(u"Number"_s), QStringList({u"1"_s, u"3"_s, u"2"_s}));
    clickHead(u"Match Type"_s);
    EXPECT_EQ(column(u"Number"_s), QStringList({u"1"_s, u"2"_s, u"3"_s}));
    clickHead(u"Match Type"_s);
    action("fileOrder").trigger();
    EXPECT_EQ(column(u"Number"_s), QStringList({u"1"_s, u"2"_s, u"3"_s}));
}

TEST_F(WindowListTest, NoOtherRecordsAreSelectedWhenManyHaveGone)
{
    deleteEveryOther();
    list().setFocus();
    press(Qt::CTRL | Qt::Key_F);
    QTest::keyClicks(&search(), u"zzz"_s);
    ASSERT_TRUE(shows(130));
    list().selectAll();
    press(Qt::CTRL | Qt::Key_S);
    press(Qt::CTRL | Qt::Key_F);
    press(Qt::Key_Escape);
    EXPECT_TRUE(shows(130));
    EXPECT_FALSE(onDisk().contains("zzz"));
    EXPECT_EQ(list().selectionModel()->selectedRows().size(), 0);
}

/// A file in which every record stands twice, and the window of it after all doubles were deleted
/// and that was saved while only records with problems are shown.
class WindowOfDoubles : public WindowListTest
{
protected:
    static constexpr int kPairs = 130;

    void deleteDoubles()
    {
        QByteArray file;
        for (int number = 0; number < kPairs; ++number) {
            file += ending("Ending " + QByteArray::number(number)).repeated(2);
        }
        open(file);
        part<QCheckBox>("onlyProblems").click();
        ASSERT_TRUE(shows(kPairs));
        list().setFocus();
        press(Qt::CTRL | Qt::Key_A);
        press(Qt::Key_Delete);
        press(Qt::CTRL | Qt::Key_S);
        ASSERT_TRUE(onDisk() == originals(kPairs));
    }
    static QByteArray originals(int count) { return endings(count, 0); }
};

TEST_F(WindowOfDoubles, NoOriginalIsSelectedWhenManyDoublesHaveGone)
{
    deleteDoubles();
    part<QCheckBox>("onlyProblems").click();
    ASSERT_TRUE(shows(kPairs));
    EXPECT_EQ(selectedRows(), std::vector<int>());
    list().setFocus();
    press(Qt::Key_Delete);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_TRUE(onDisk() == originals(kPairs));
}

TEST_F(WindowOfDoubles, NorWhenTheFileChangesBeforeTheListIsBackAtItsPlace)
{
    deleteDoubles();
    changeOnDisk(originals(kPairs - 1));
    part<QCheckBox>("onlyProblems").click();
    ASSERT_TRUE(shows(kPairs - 1));
    EXPECT_EQ(selectedRows(), std::vector<int>());
}

TEST_F(WindowListTest, TheRecordBehindIsCurrentWhenItAndManyOthersHaveGone)
{
    deleteEveryOther();
    list().scrollToTop();
    clickRow(5);
    press(Qt::CTRL | Qt::Key_S);
    ASSERT_TRUE(shows(130));
    EXPECT_EQ(currentRow(), 3) << "two before it have gone";
    EXPECT_EQ(selectedRows(), std::vector<int>({3}));
}

TEST_F(WindowListTest, RecordsAreNotMovedInASortedList)
{
    open(ending("Ending 1", "Tag Team") + ending("Ending 2", "Any"));
    clickHead(u"Match Type"_s);
    list().setFocus();
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_Up);
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_Down);
    EXPECT_FALSE(isChanged());
}

TEST_F(WindowListTest, OnlyWithProblemsShowsThoseAlone)
{
    open(endings(3) + faulty("Ending 4") + endings(1, 5));
    part<QCheckBox>("onlyProblems").click();
    ASSERT_TRUE(shows(1));
    EXPECT_TRUE(action("onlyProblemsEntry").isChecked());
    action("onlyProblemsEntry").trigger();
    EXPECT_TRUE(shows(5));
    EXPECT_FALSE(part<QCheckBox>("onlyProblems").isChecked());
}

} // namespace
} // namespace tarvold::testing
