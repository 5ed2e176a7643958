#include "support/field_checks.h"
#include "support/flow_test.h"
#include "support/spoken.h"

#include <QAbstractItemView>
#include <QDir>
#include <QPushButton>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

const std::vector<const char *> kYesNoNa = {"Yes", "No", "N/A"};

/// The fields that have help.
const ExpectedFields kOpeningFields = {
    {"Combo4",
     "Label12",
     "Main Event Match Type",
     {"Singles", "Any"},
     nullptr,
     false,
     "Main Event Match Type ~ If you want your opening segment to be based on the main event, "
     "choose Singles (only Singles matches can be involved in the opening segments). If the "
     "opening segment doesn't involve the main event, choose Any."},
    {"Text2",
     "Label4",
     "Main Event Stipulation",
     {},
     "Any",
     false,
     "Main Event Stipulation ~ If you want your opening segment to be based on the main event, you "
     "can specify this segment to a certain stipulation - eg. if the main event is a Ladder Match, "
     "you can set up that match in your opening segment."},
    {"Combo1", "Label2", "Title On The Line?", kYesNoNa, nullptr, false,
     "Title On The Line ~ Here you can specify if the main event is a title match or not. If it "
     "doesn't matter whether a title is on the line, choose N/A."},
    {"Combo5", "Label9", "Televised?", kYesNoNa, nullptr, false,
     "Televised ~ You can choose to use this segment only if the show is televised, or only if the "
     "show isn't televised. If it doesn't matter, choose N/A."},
    {"Combo6", "Label3", "Title Holder In The Match?", kYesNoNa, nullptr, false,
     "Title Holder In The Match ~ If the main event is a singles title match, and the title holder "
     "is in the match, choose Yes. If the match is for a title and the holder is not in the match "
     "(eg. the title is vacant), choose No. If the main event isn't a singles match for a title, "
     "choose N/A."},
    {"Combo7",
     "Label10",
     "Power Figures",
     {"Any", "None", "Face and Heel", "2 Face", "2 Heel", "1 Face", "1 Heel"},
     nullptr,
     false,
     "Power Figures ~ If you need power figures involved in the opening segment, specify here "
     "which ones are needed. Note: If 1 Face and 1 Heel, Power Figure 1 will be the Face and Power "
     "Figure 2 will be the Heel."},
    {"Text1",
     "Label6",
     "Power Figure 1 Name",
     {},
     "N/A",
     false,
     "Power Figure 1 Name ~ If this segment involves power figures, and you want to write it for a "
     "specific person eg. Victor Hale, type the name of the person here. If the segment involves "
     "power figures and is not specific to one person, type Any. Otherwise, type N/A. Note: If 1 "
     "Face and 1 Heel Power Figure, Power Figure 1 will be the Face."},
    {"Text3",
     "Label7",
     "Power Figure 2 Name",
     {},
     "N/A",
     false,
     "Power Figure 2 Name ~ If this segment involves power figures, and you want to write it for a "
     "specific person eg. Victor Hale, type the name of the person here. If the segment involves "
     "power figures and is not specific to one person, type Any. Otherwise, type N/A. Note: If 1 "
     "Face and 1 Heel Power Figure, Power Figure 2 will be the Heel."},
    {"Text4",
     "Label8",
     "Wrestler 1 Name",
     {},
     "Any",
     false,
     "Wrestler 1 Name ~ If the opening segment is based on the main event singles match, and you "
     "want to write the segment for a specific wrestler, type their name here. If it isn't for a "
     "specific person, type Any. Otherwise, type N/A. Note: If the main event is a singles title "
     "match, and the holder is in the match, they will be wrestler 1."},
    {"Text5",
     "Label14",
     "Wrestler 2 Name",
     {},
     "Any",
     false,
     "Wrestler 2 Name ~ If the opening segment is based on the main event singles match, and you "
     "want to write the segment for a specific wrestler, type their name here. If it isn't for a "
     "specific person, type Any. Otherwise, type N/A. Note: If the main event is a singles title "
     "match, and the holder is in the match, they will be wrestler 1."},
};

/// The fields without help.
const ExpectedFields kWithoutHelp = {
    {"Combo2", "Label5", "Wrestler 1 Disposition", {"Face", "Heel", "Any"}, nullptr, false, ""},
    {"Combo3", "Label11", "Wrestler 2 Disposition", {"Face", "Heel", "Any"}, nullptr, false, ""},
};

/// The screen of opening segments, which only a test can show.
class OpeningSegment : public FlowTest
{
protected:
    OpeningSegment()
    {
        screen("Form1").hide();
        screen("Form17").show();
    }

    /// The texts of all controls of the screen.
    QStringList everything()
    {
        QStringList texts;
        for (const ExpectedFields &fields : {kOpeningFields, kWithoutHelp}) {
            for (const ExpectedField &field : fields) {
                texts << text("Form17", field.control);
            }
        }
        return texts;
    }
};

TEST_F(OpeningSegment, HasItsTitleHeadingAndButtons)
{
    EXPECT_EQ(screen("Form17").windowTitle(), u"Tarvold 1.3 Data Editor"_s);
    EXPECT_EQ(text("Form17", "Label1"), u"OPENING SEGMENT DETAILS"_s);
    EXPECT_EQ(screen("Form17").control<QPushButton>("Command1").text(), u"<<"_s);
    EXPECT_EQ(screen("Form17").control<QPushButton>("Command2").text(), u">>"_s);
}

TEST_F(OpeningSegment, FieldsHaveTheirCaptionsAndLists)
{
    expectFields(screen("Form17"), kOpeningFields);
    expectFields(screen("Form17"), kWithoutHelp);
}

TEST_F(OpeningSegment, FieldsAreBelowEachOtherInOrder)
{
    expectStops("Form17", {"Combo4", "Text2", "Combo1", "Combo5", "Combo6", "Combo7", "Text1",
                           "Text3", "Text4", "Combo2", "Text5", "Combo3", "Command1", "Command2"});
}

TEST_F(OpeningSegment, TextBoxesHaveTheirDesignTexts)
{
    for (const ExpectedField &field : kOpeningFields) {
        if (field.text != nullptr) {
            EXPECT_EQ(text("Form17", field.control), QLatin1StringView(field.text));
        }
    }
}

TEST_F(OpeningSegment, AFieldShowsItsHelpWhenTabReachesIt)
{
    expectHelpOnFocus(screen("Form17"), "Label13", kOpeningFields);
}

TEST_F(OpeningSegment, TheTwoDispositionsAndTheButtonsHaveNoHelp)
{
    for (const char *silent : {"Combo2", "Combo3", "Command1", "Command2"}) {
        tabTo(screen("Form17"), "Text1");
        given("Form17", "Label13", u"what was shown before"_s);
        control("Form17", silent).setFocus(Qt::TabFocusReason);
        EXPECT_TRUE(control("Form17", silent).hasFocus());
        EXPECT_EQ(text("Form17", "Label13"), u"what was shown before"_s) << silent;
    }
}

TEST_F(OpeningSegment, ItsButtonsDoNothing)
{
    fill("Form17", {{"Text1", {}}, {"Text2", {}}, {"Text3", u"Victor Hale"_s}});
    const QStringList before = everything();
    for (const char *button : {"Command1", "Command2"}) {
        press("Form17", button);
        expectOnly("Form17");
        EXPECT_EQ(everything(), before);
    }
    EXPECT_TRUE(QDir().isEmpty());
}

class WithoutOpeningSegment : public FlowTest
{
};

TEST_F(WithoutOpeningSegment, NoFlowCreatesTheScreen)
{
    EXPECT_FALSE(editor.screens().exists("Form17"));
    for (const FlowPath *flow :
         {&kNormalPath, &kRunInPath, &kTurnPath, &kInterviewPath, &kTalkShowPath}) {
        goToCommentary(*flow);
        goBack(*flow);
        goToCommentary(*flow);
        type(flow->screens.back(), "Text1", u"The end."_s);
        save(*flow);
        EXPECT_FALSE(editor.screens().exists("Form17")) << flow->file;
    }
}

TEST_F(WithoutOpeningSegment, TheStipulationsDoNotCreateTheScreen)
{
    press("Form1", "Command1");
    expectOnly("Form16");
    press("Form16", "Command1");
    expectOnly("Form3");
    press("Form3", "Command1");
    expectOnly("Form16");
    press("Form16", "Command3");
    expectOnly("Form1");
    EXPECT_FALSE(editor.screens().exists("Form17"));
}

TEST_F(WithoutOpeningSegment, TheImportDoesNotCreateTheScreen)
{
    goToCommentary(kInterviewPath);
    type("Form13", "Text1", u"The end."_s);
    save(kInterviewPath);
    press("Form1", "Command8");
    press("Form2", "Command6");
    auto &files = screen("Form2").control<QAbstractItemView>("File1");
    ASSERT_EQ(files.model()->rowCount(), 1);
    QTest::mouseClick(files.viewport(), Qt::LeftButton, {},
                      files.visualRect(files.model()->index(0, 0)).center());
    type("Form2", "Text1", u"target.tvd"_s);
    boxes.expectNotice(u"Import"_s, u"Import Complete."_s);
    press("Form2", "Command8");
    press("Form2", "Command1");
    expectOnly("Form1");
    EXPECT_EQ(bytesOf(u"target.tvd"_s), bytesOf(u"interviews.tvd"_s));
    EXPECT_FALSE(editor.screens().exists("Form17"));
}

} // namespace
} // namespace tarvold::testing
