#include "stipulations/stipulation_test.h"
#include "support/mouse.h"

#include <QWindow>

/// The keys and the double click of the list of stipulations, and the key that saves its form.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class StipulationKeys : public StipulationTest
{
protected:
    StipulationKeys()
    {
        open(one + two);
        expectActive(screen("Form16")); // with everything in its place
    }

    void hit(const char *screen, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        expectActive(this->screen(screen));
        QTest::keyClick(this->screen(screen).windowHandle(), key, modifiers);
        boxes.checkAllCame();
    }

    QPoint middleOf(int row)
    {
        const QRect place = list().visualRect(list().model()->index(row, 0));
        return list().viewport()->mapToGlobal(place.center());
    }

    void expectPleaseSelect()
    {
        boxes.expectNotice(u"Stipulation Editor"_s,
                           u"Please select a match stipulation from the list."_s);
    }

    void expectDeleteQuestion(Answer answer)
    {
        boxes.expectQuestion(u"Delete Stipulation"_s,
                             u"Are you sure you want to permanently delete the match "
                             "stipulation:\r\n\r\nSingles / Two\r\n"_s,
                             answer);
    }

    const QByteArray one = stipulation("Singles", "One");
    const QByteArray two = stipulation("Singles", "Two");
};

TEST_F(StipulationKeys, EnterEditsTheSelectedOne)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        select(1);
        hit("Form16", key);
        expectOnly("Form3");
        EXPECT_EQ(shown("stipulation"), u"Two"_s);
        cancel();
    }
}

TEST_F(StipulationKeys, EnterWithoutASelectionAsksForOne)
{
    list().setFocus();
    expectPleaseSelect();
    hit("Form16", Qt::Key_Return);
    expectOnly("Form16");
}

TEST_F(StipulationKeys, EnterOnAButtonPressesThatButton)
{
    select(1);
    control("Form16", "Command1").setFocus();
    hit("Form16", Qt::Key_Return);
    expectOnly("Form3");
    EXPECT_EQ(shown("stipulation"), QString());
    EXPECT_EQ(listPosition(), u"NEW"_s);
}

TEST_F(StipulationKeys, ADoubleClickEditsTheOneUnderIt)
{
    select(0);
    mouse::doubleClick(middleOf(1));
    expectOnly("Form3");
    EXPECT_EQ(shown("stipulation"), u"Two"_s);
}

TEST_F(StipulationKeys, ADoubleClickBesideTheEntriesDoesNothing)
{
    const QPoint below = list().viewport()->rect().bottomRight() - QPoint(5, 5);
    mouse::doubleClick(list().viewport()->mapToGlobal(below));
    boxes.checkAllCame();
    expectOnly("Form16");
}

TEST_F(StipulationKeys, DeleteAsksAndDeletesTheSelectedOne)
{
    select(1);
    expectDeleteQuestion(Answer::Yes);
    boxes.expectNotice(u"Delete"_s, u"Stipulation Deleted."_s);
    hit("Form16", Qt::Key_Delete);
    EXPECT_EQ(bytesOf(utf8(kFile)), one);
}

TEST_F(StipulationKeys, DeleteAndNoKeepIt)
{
    select(1);
    expectDeleteQuestion(Answer::No);
    hit("Form16", Qt::Key_Delete);
    EXPECT_EQ(bytesOf(utf8(kFile)), one + two);
}

TEST_F(StipulationKeys, DeleteWithoutASelectionAsksForOne)
{
    list().setFocus();
    expectPleaseSelect();
    hit("Form16", Qt::Key_Delete);
    EXPECT_EQ(bytesOf(utf8(kFile)), one + two);
}

TEST_F(StipulationKeys, AltLeftGoesBackToTheMenu)
{
    hit("Form16", Qt::Key_Left, Qt::AltModifier);
    expectOnly("Form1");
}

TEST_F(StipulationKeys, CtrlSSavesTheForm)
{
    edit(1);
    put("stipulation", "Three");
    boxes.expectNotice(u"Stipulations Editor"_s, u"Saved OK!"_s);
    hit("Form3", Qt::Key_S, Qt::ControlModifier);
    expectOnly("Form16");
    EXPECT_EQ(listed(), (std::vector<std::string>{"Singles / One", "Singles / Three"}));
}

TEST_F(StipulationKeys, NoKeyLeavesTheFormAndLosesWhatWasTyped)
{
    edit(1);
    put("stipulation", "Three");
    for (const auto &[key, modifiers] :
         {std::pair{Qt::Key_Left, Qt::KeyboardModifiers(Qt::AltModifier)},
          {Qt::Key_Right, Qt::KeyboardModifiers(Qt::AltModifier)},
          {Qt::Key_Escape, Qt::KeyboardModifiers()}}) {
        hit("Form3", key, modifiers);
    }
    expectOnly("Form3");
    EXPECT_EQ(shown("stipulation"), u"Three"_s);
}

} // namespace
} // namespace tarvold::testing
