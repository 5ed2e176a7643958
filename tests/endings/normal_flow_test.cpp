#include "support/editor_test.h"

namespace tarvold::testing {
namespace {

const char kUntouched[] = "Any\r\nAny\r\nN/A\r\nN/A\r\nNormal\r\nN/A\r\n"
                          "Any\r\nAny\r\nAny\r\nAny\r\nN/A\r\nN/A\r\nN/A\r\nN/A\r\nAny\r\nN/A\r\n"
                          "Any\r\nAny\r\nAny\r\nAny\r\nN/A\r\nN/A\r\nN/A\r\nN/A\r\nAny\r\nN/A\r\n"
                          "The end.\r\n"
                          "-BLANK-\r\n-BLANK-\r\n-BLANK-\r\n-BLANK-\r\n-BLANK-\r\n-BLANK-\r\n"
                          "-BLANK-\r\n-BLANK-\r\n-BLANK-\r\n";

class NormalFlow : public EditorTest
{
protected:
    void goToCommentary()
    {
        press("Form1", "Command3");
        press("Form4", "Command2");
        press("Form5", "Command2");
        press("Form6", "Command2");
    }

    void save()
    {
        boxes.expectQuestion(title(), QStringLiteral("Add this finish to the file?"), Answer::Yes);
        boxes.expectNotice(title(), QStringLiteral("Saved OK."));
        press("Form7", "Command1");
    }
};

TEST_F(NormalFlow, SavedStraightAfterEntryGivesTheUntouchedRecord)
{
    goToCommentary();
    expectOnly("Form7");
    type("Form7", "Text1", QStringLiteral("The end."));
    save();
    expectOnly("Form1");
    EXPECT_EQ(bytesOf(QStringLiteral("normreports.tvd")), kUntouched);
}

TEST_F(NormalFlow, ATagChosenInTheListGoesIntoTheMarkedLine)
{
    goToCommentary();
    type("Form7", "Text3", QStringLiteral("Pinned by "));
    choose("Form7", "Combo1", QStringLiteral("Receiver Full Name"));
    EXPECT_EQ(text("Form7", "Text3"), QStringLiteral("Pinned by <recfullname>"));
    combo("Form7", "Combo1").setFocus();
    pickByKeyboard(combo("Form7", "Combo1"), QStringLiteral("Receiver Full Name"));
    EXPECT_EQ(text("Form7", "Text3"), QStringLiteral("Pinned by <recfullname><recfullname>"));
}

} // namespace
} // namespace tarvold::testing
