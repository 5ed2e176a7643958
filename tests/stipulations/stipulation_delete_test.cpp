#include "stipulations/stipulation_test.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QScreen>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using Texts = std::vector<std::string>;

class StipulationDelete : public StipulationTest
{
protected:
    const QByteArray one = stipulation("Singles", "One");
    const QByteArray two = stipulation("Singles", "Two");
    const QByteArray three = stipulation("Tag Team", "Three");
};

TEST_F(StipulationDelete, InTheMiddleLeavesTheOthersInTheirOldOrder)
{
    open(one + two + three);
    remove(1, u"Singles / Two"_s);
    EXPECT_EQ(readBack(kFile), one + three);
    EXPECT_EQ(listed(), (Texts{"Singles / One", "Tag Team / Three"}));
    EXPECT_EQ(listPosition(), u"19"_s);
}

TEST_F(StipulationDelete, OfTheFirstMovesTheOthersUp)
{
    open(one + two + three);
    remove(0, u"Singles / One"_s);
    EXPECT_EQ(readBack(kFile), two + three);
    EXPECT_EQ(listed(), (Texts{"Singles / Two", "Tag Team / Three"}));
}

TEST_F(StipulationDelete, OfTheOnlyOneLeavesAnEmptyFileAndAnEmptyList)
{
    open(one);
    remove(0, u"Singles / One"_s);
    EXPECT_EQ(readBack(kFile), "");
    EXPECT_TRUE(listed().empty());
}

TEST_F(StipulationDelete, DeletesTheLaterOfTwoThatLookTheSame)
{
    const QByteArray later = stipulation("Singles", "One", {{3, "Later"}});
    open(one + two + later);
    remove(0, u"Singles / One"_s);
    EXPECT_EQ(readBack(kFile), one + two);
    EXPECT_EQ(listPosition(), u"38"_s);
}

TEST_F(StipulationDelete, OfOneWithoutMatchTypeAndNameRemovesItFromTheFile)
{
    open(one + stipulation("", "") + two);
    remove(1, u" / "_s);
    EXPECT_EQ(readBack(kFile), one + two);
    EXPECT_EQ(listPosition(), u"19"_s);
}

TEST_F(StipulationDelete, LeavesNoSelection)
{
    open(one + two);
    remove(0, u"Singles / One"_s);
    EXPECT_FALSE(anySelected());
    boxes.expectNotice(u"Stipulation Editor"_s,
                       u"Please select a match stipulation from the list."_s);
    press("Form16", "Command4");
}

TEST_F(StipulationDelete, AsManyTimesAsThereAreStipulations)
{
    open(one + two + three);
    remove(2, u"Tag Team / Three"_s);
    remove(0, u"Singles / One"_s);
    remove(0, u"Singles / Two"_s);
    EXPECT_EQ(readBack(kFile), "");
}

TEST_F(StipulationDelete, DeclinedInAnyWayChangesNothing)
{
    open(one + two);
    for (const Answer answer : {Answer::No, Answer::Escape, Answer::Close, Answer::Enter}) {
        remove(1, u"Singles / Two"_s, answer);
        EXPECT_EQ(readBack(kFile), one + two);
        EXPECT_EQ(listed(), (Texts{"Singles / One", "Singles / Two"}));
    }
}

/// Records the width of the widest message box.
class BoxSizes : public QObject
{
public:
    BoxSizes() { QApplication::instance()->installEventFilter(this); }
    QSize largest;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Hide && qobject_cast<QMessageBox *>(watched) != nullptr) {
            largest = largest.expandedTo(static_cast<QWidget *>(watched)->size());
        }
        return QObject::eventFilter(watched, event);
    }
};

TEST_F(StipulationDelete, AsksInABoxThatFitsTheScreenHoweverLongTheNameIs)
{
    const QByteArray name(3000, 'w');
    open(stipulation("Singles", name));
    BoxSizes sizes;
    QString asked;
    boxes.catchQuestion(u"Delete Stipulation"_s, &asked, Answer::No);
    select(0);
    press("Form16", "Command4");
    EXPECT_TRUE(asked.contains(u"\r\n\r\nSingles / www"_s)) << asked.toStdString();
    EXPECT_TRUE(asked.endsWith(u"www\r\n"_s)) << asked.toStdString();
    const QSize display = screen("Form16").screen()->availableSize();
    EXPECT_GT(sizes.largest.width(), 100);
    EXPECT_LE(sizes.largest.width(), display.width());
    EXPECT_LE(sizes.largest.height(), display.height());
}

TEST_F(StipulationDelete, WritesTheFileThatTheMenuNamesNow)
{
    open(one + two);
    editor.screens().setText({"Form1", "Text1"}, u"other.tvd"_s);
    remove(0, u"Singles / One"_s);
    EXPECT_EQ(readBack("other.tvd"), two);
    EXPECT_EQ(readBack(kFile), one + two);
}

TEST_F(StipulationDelete, ThatCannotBeWrittenKeepsTheStipulation)
{
    open(one + two);
    ASSERT_TRUE(QFile::remove(utf8(kFile)));
    ASSERT_TRUE(QDir().mkdir(utf8(kFile)));
    QString told;
    select(0);
    boxes.expectQuestion(u"Delete Stipulation"_s,
                         u"Are you sure you want to permanently delete the match stipulation:"
                         "\r\n\r\nSingles / One\r\n"_s,
                         Answer::Yes);
    boxes.catchNotice(u"Stipulations Editor"_s, &told);
    press("Form16", "Command4");
    EXPECT_TRUE(told.contains(utf8(kFile)) && told.contains(u"folder"_s)) << told.toStdString();
    EXPECT_EQ(listed(), (Texts{"Singles / One", "Singles / Two"}));

    ASSERT_TRUE(QDir().rmdir(utf8(kFile)));
    remove(0, u"Singles / One"_s);
    EXPECT_EQ(readBack(kFile), two);
}

} // namespace
} // namespace tarvold::testing
