#include "support/ending_test.h"

#include <QAbstractItemView>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// The keys that open the tag list from a commentary line.
struct Opener
{
    const char *name;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
};

void PrintTo(const Opener &opener, std::ostream *out)
{
    *out << opener.name;
}

class TagListKeys : public EndingTest, public ::testing::WithParamInterface<Opener>
{
protected:
    TagListKeys()
    {
        goTo("Form7");
        click(lineBox(5));
    }

    QWidget &lineBox(int number) { return control("Form7", qPrintable(u"Text%1"_s.arg(number))); }

    /// Opens the tag list from the focused line and picks the item in this row.
    void pickFromLine(int row)
    {
        QAbstractItemView *list = combo("Form7", "Combo1").view();
        QTest::keyClick(screen("Form7").windowHandle(), GetParam().key, GetParam().modifiers);
        ASSERT_TRUE(list->isVisible()) << "the list did not open";
        QTest::keyClick(list, Qt::Key_Home);
        for (int step = 0; step < row; ++step) {
            QTest::keyClick(list, Qt::Key_Down);
        }
        QTest::keyClick(list, Qt::Key_Return);
        EXPECT_FALSE(list->isVisible());
        boxes.checkAllCame();
        expectActive(screen("Form7"));
    }

    /// Expects that only the fifth line has a text, is marked, and has the focus.
    void expectOnlyInTheFifth(const char *text)
    {
        for (int number = 1; number <= 10; ++number) {
            const QWidget &line = lineBox(number);
            const QString held = this->text("Form7", line.objectName().toUtf8().constData());
            EXPECT_EQ(held, number == 5 ? QString::fromUtf8(text) : QString()) << number;
            EXPECT_EQ(line.palette().color(QPalette::Base) == kYellow, number == 5) << number;
            EXPECT_EQ(line.hasFocus(), number == 5) << number;
        }
    }
};

TEST_P(TagListKeys, ThePickGoesIntoTheLineAndTheFocusReturnsToIt)
{
    pickFromLine(4);
    expectOnlyInTheFifth("<recfullname>");
    pickFromLine(0);
    expectOnlyInTheFifth("<recfullname><att1fullname>");
}

TEST_P(TagListKeys, ARefusalShowsItsMessageAndInsertsTheLastAcceptedTag)
{
    pickFromLine(4);
    boxes.expectNotice(title(), u"You have the attacker's manager name as 'N/A' or 'None', which "
                                "means you can't involve the attacker's manager in this finish."_s);
    pickFromLine(6);
    expectOnlyInTheFifth("<recfullname><recfullname>");
    EXPECT_EQ(text("Form7", "hiddenlabel"), u"<recfullname>"_s);
}

TEST_P(TagListKeys, EscapeInsertsNothingAndReturnsTheFocus)
{
    QTest::keyClick(screen("Form7").windowHandle(), GetParam().key, GetParam().modifiers);
    QTest::keyClick(combo("Form7", "Combo1").view(), Qt::Key_Escape);
    expectOnlyInTheFifth("");
}

const Opener kOpeners[] = {{"F4", Qt::Key_F4, Qt::NoModifier},
                           {"AltDown", Qt::Key_Down, Qt::AltModifier}};

INSTANTIATE_TEST_SUITE_P(Keys, TagListKeys, ::testing::ValuesIn(kOpeners), kNameOfRow);

class OtherKeys : public EndingTest
{
};

TEST_F(OtherKeys, F4WithAModifierOpensNothing)
{
    goTo("Form7");
    for (const char *control : {"Text5", "Combo1"}) {
        this->control("Form7", control).setFocus(Qt::OtherFocusReason);
        for (const Qt::KeyboardModifier modifier :
             {Qt::AltModifier, Qt::ControlModifier, Qt::ShiftModifier, Qt::MetaModifier}) {
            QTest::keyClick(screen("Form7").windowHandle(), Qt::Key_F4, modifier);
            EXPECT_FALSE(combo("Form7", "Combo1").view()->isVisible()) << control << modifier;
        }
    }
}

class FreshEnding : public EndingTest
{
};

TEST_F(FreshEnding, UndoDoesNotRestoreTheSavedCommentary)
{
    goTo("Form7");
    for (const char *line : {"Text1", "Text5", "Text10"}) {
        type("Form7", line, u"The end."_s);
    }
    save();
    goTo("Form7");
    for (const char *line : {"Text1", "Text5", "Text10"}) {
        click(control("Form7", line));
        QTest::keyClick(&control("Form7", line), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(text("Form7", line), QString()) << line;
    }
}

} // namespace
} // namespace tarvold::testing
