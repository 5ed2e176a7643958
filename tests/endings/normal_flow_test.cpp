#include "support/ending_test.h"
#include "support/spoken.h"

#include <QApplication>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

const QByteArray kFilledRecord =
    "Battle Royal\r\nLadder Match\r\nYes\r\nNo\r\nDQ\r\nYes\r\n"
    "Rocco Vance,Dex Vance\r\nHeel\r\nHigh Flyer\r\nMale\r\nNo\r\n"
    "Miss Vance\r\nFemale\r\nYes\r\nt\r\nThe Vances\r\n"
    "Ned Hart\r\nFace\r\nNon-Worker\r\nFemale\r\nYes\r\n"
    "None\r\nMale\r\nNo\r\np\r\nAny\r\n"
    "<att1fullname> climbs up.\r\nAnd <att2fullname>\r\n-BLANK-\r\n-BLANK-\r\n-BLANK-\r\n"
    "-BLANK-\r\n-BLANK-\r\n-BLANK-\r\n-BLANK-\r\n<titlename>\r\n";

class NormalFlow : public EndingTest
{
protected:
    struct Entry
    {
        const char *control;
        const char *text;
    };

    /// Types into text boxes and chooses from lists.
    void fill(const char *screen, std::initializer_list<Entry> entries)
    {
        for (const Entry &entry : entries) {
            if (qobject_cast<ComboBox *>(&control(screen, entry.control)) != nullptr) {
                choose(screen, entry.control, QLatin1StringView(entry.text));
            } else {
                type(screen, entry.control, QLatin1StringView(entry.text));
            }
        }
    }

    void fillDetails()
    {
        press("Form1", "Command3");
        fill("Form4", {{"Combo3", "Battle Royal"},
                       {"Text2", "Ladder Match"},
                       {"Combo1", "Yes"},
                       {"Combo2", "No"},
                       {"Combo4", "DQ"},
                       {"Combo10", "Yes"}});
        press("Form4", "Command2");
        fill("Form5", {{"Text2", "Rocco Vance,Dex Vance"},
                       {"Combo3", "Heel"},
                       {"Combo1", "High Flyer"},
                       {"Combo2", "Male"},
                       {"Combo4", "No"},
                       {"Text1", "Miss Vance"},
                       {"Combo5", "Female"},
                       {"Combo6", "Yes"},
                       {"Combo7", "Top Rope"},
                       {"Text3", "The Vances"}});
        press("Form5", "Command2");
        fill("Form6", {{"Text2", "Ned Hart"},
                       {"Combo3", "Face"},
                       {"Combo1", "Non-Worker"},
                       {"Combo2", "Female"},
                       {"Combo4", "Yes"},
                       {"Text1", "None"},
                       {"Combo5", "Male"},
                       {"Combo6", "No"},
                       {"Combo7", "Pin"},
                       {"Text3", "Any"}});
        press("Form6", "Command2");
    }

    // By keyboard: the focused control gets the keys.
    static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWindow(), key, modifiers);
    }

    void tabToControl(const char *screenName, const char *name) { tabTo(screen(screenName), name); }

    void pressByKey(const char *screenName, const char *name, Qt::Key pressing)
    {
        tabToControl(screenName, name);
        key(pressing);
        boxes.checkAllCame();
    }
};

TEST_F(NormalFlow, AFilledFlowWritesItsRecord)
{
    fillDetails();
    click(control("Form7", "Text1"));
    choose("Form7", "Combo1", u"Attacker 1 Full Name"_s);
    click(control("Form7", "Text1"));
    QTest::keyClick(&control("Form7", "Text1"), Qt::Key_End);
    QTest::keyClicks(&control("Form7", "Text1"), u" climbs up."_s);
    type("Form7", "Text2", u"And "_s);
    choose("Form7", "Combo1", u"Attacker 2 Full Name"_s);
    click(control("Form7", "Text10"));
    choose("Form7", "Combo1", u"Title Name (eg. XWL Title)"_s);
    save();
    expectOnly("Form1");
    EXPECT_EQ(bytesOf(u"normreports.tvd"_s), kFilledRecord);
}

TEST_F(NormalFlow, GoingBackAndForthChangesNothing)
{
    fillDetails();
    type("Form7", "Text1", u"<att1fullname> climbs up."_s);
    type("Form7", "Text2", u"And <att2fullname>"_s);
    type("Form7", "Text10", u"<titlename>"_s);
    press("Form7", "Command2");
    press("Form6", "Command1");
    press("Form5", "Command1");
    press("Form4", "Command2");
    press("Form5", "Command2");
    press("Form6", "Command2");
    save();
    EXPECT_EQ(bytesOf(u"normreports.tvd"_s), kFilledRecord);
}

TEST_F(NormalFlow, TheWholeFlowWorksWithTheKeyboardAlone)
{
    pressByKey("Form1", "Command3", Qt::Key_Space);
    expectOnly("Form4");
    tabToControl("Form4", "Combo4");
    key(Qt::Key_Down, Qt::AltModifier);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(text("Form4", "Combo4"), u"DQ"_s);
    pressByKey("Form4", "Command2", Qt::Key_Return);
    expectOnly("Form5");
    pressByKey("Form5", "Command2", Qt::Key_Space);
    expectOnly("Form6");
    pressByKey("Form6", "Command2", Qt::Key_Return);
    expectOnly("Form7");

    tabToControl("Form7", "Text1");
    tabToControl("Form7", "Combo1");
    EXPECT_EQ(text("Form7", "Text1"), QString());
    QTest::keyClick(QApplication::focusWindow(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWindow(), Qt::Key_Backtab);
    EXPECT_TRUE(control("Form7", "Combo1").hasFocus());
    key(Qt::Key_Down, Qt::AltModifier);
    key(Qt::Key_Return);
    EXPECT_EQ(text("Form7", "Text1"), u"<att1fullname>"_s);
    tabToControl("Form7", "Text5");
    key(Qt::Key_F4);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_TRUE(control("Form7", "Text5").hasFocus());

    boxes.expectQuestion(title(), kSaveQuestion, Answer::Enter);
    boxes.expectNotice(title(), u"Saved OK."_s, Answer::Enter);
    pressByKey("Form7", "Command1", Qt::Key_Return);
    expectOnly("Form1");
    const QList<QByteArray> lines = bytesOf(u"normreports.tvd"_s).split('\n');
    EXPECT_EQ(lines.size(), 37);
    EXPECT_EQ(lines.at(4), QByteArray("DQ\r"));
    EXPECT_EQ(lines.at(26), QByteArray("<att1fullname>\r"));
    EXPECT_EQ(lines.at(30), QByteArray("<att1shortname>\r"));
}

TEST_F(NormalFlow, TheWayBackWorksWithTheKeyboardAlone)
{
    goTo("Form7");
    pressByKey("Form7", "Command2", Qt::Key_Return);
    expectOnly("Form6");
    pressByKey("Form6", "Command1", Qt::Key_Space);
    expectOnly("Form5");
    pressByKey("Form5", "Command1", Qt::Key_Return);
    expectOnly("Form4");
    boxes.expectQuestion(title(), kReturnQuestion, Answer::Yes);
    pressByKey("Form4", "Command1", Qt::Key_Return);
    expectOnly("Form1");
}

} // namespace
} // namespace tarvold::testing
