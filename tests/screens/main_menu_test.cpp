#include "controls/text_box.h"
#include "datafiles/data_file_kind.h"
#include "screens/main_menu.h"
#include "support/editor_test.h"
#include "support/spoken.h"

#include <QPushButton>
#include <QSignalSpy>

#include <cstdlib>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

struct MenuButton
{
    const char *control;
    const char *caption;
};

constexpr MenuButton kButtons[] = {
    {"Command1", "Edit And Create Match Stipulations"},
    {"Command3", "Add Normal Match Endings"},
    {"Command4", "Add Match Endings With Run-Ins"},
    {"Command5", "Add Match Endings With Turns"},
    {"Command6", "Add New Interview Segments"},
    {"Command7", "Add New Talk Show Segments"},
    {"Command8", "Import"},
    {"Command2", "Exit"},
};

struct FileBox
{
    const char *control;
    const char *defaultText;
    const char *caption;
    const char *button; ///< in the same row
};

constexpr FileBox kFileBoxes[] = {
    {"Text1", "stipulations.tvd", "In File:", "Command1"},
    {"Text3", "normreports.tvd", "To File:", "Command3"},
    {"Text4", "feudreports.tvd", "To File:", "Command4"},
    {"Text5", "turnreports.tvd", "To File:", "Command5"},
    {"Text6", "interviews.tvd", "To File:", "Command6"},
    {"Text7", "talkshow.tvd", "To File:", "Command7"},
};

class MainMenu : public EditorTest
{
protected:
    QWidget &box(const char *name) { return control("Form1", name); }

    /// The caption of the label beside a box.
    QString captionBeside(const QWidget &box)
    {
        for (const QLabel *label : screen("Form1").findChildren<QLabel *>()) {
            if (label->isVisible() &&
                std::abs(label->geometry().center().y() - box.geometry().center().y()) <= 2) {
                return label->text();
            }
        }
        return {};
    }
};

TEST_F(MainMenu, IsTheOnlyScreenAtTheStart)
{
    expectOnly("Form1");
    for (const char *other : {"Form4", "Form5", "Form6", "Form7"}) {
        EXPECT_FALSE(editor.screens().exists(other)) << other;
    }
}

TEST_F(MainMenu, HasItsTitleAndHeading)
{
    EXPECT_EQ(screen("Form1").windowTitle(), u"Tarvold 1.3 Data Editor"_s);
    EXPECT_EQ(text("Form1", "Label3"), u"Tarvold 1.3 - Matches Editor"_s);
}

TEST_F(MainMenu, ButtonsHaveTheirCaptions)
{
    for (const MenuButton &row : kButtons) {
        SCOPED_TRACE(row.control);
        const auto *button = qobject_cast<QPushButton *>(&box(row.control));
        ASSERT_NE(button, nullptr);
        EXPECT_EQ(button->text(), QLatin1StringView(row.caption));
        EXPECT_TRUE(button->isVisible());
    }
    EXPECT_EQ(std::size_t(screen("Form1").findChildren<QPushButton *>().size()),
              std::size(kButtons));
}

TEST_F(MainMenu, EachKindOfFileHasItsBox)
{
    const std::pair<DataFileKind, const char *> expected[] = {
        {DataFileKind::Stipulations, "Text1"}, {DataFileKind::NormalEndings, "Text3"},
        {DataFileKind::RunInEndings, "Text4"}, {DataFileKind::TurnEndings, "Text5"},
        {DataFileKind::Interviews, "Text6"},   {DataFileKind::TalkShows, "Text7"},
    };
    for (const auto &[kind, name] : expected) {
        EXPECT_STREQ(Form1::fileNameBox(kind).screen, "Form1");
        EXPECT_STREQ(Form1::fileNameBox(kind).control, name);
    }
}

TEST_F(MainMenu, FileBoxesStartWithTheirDefaultNames)
{
    for (const FileBox &row : kFileBoxes) {
        SCOPED_TRACE(row.control);
        EXPECT_EQ(text("Form1", row.control), QLatin1StringView(row.defaultText));
        EXPECT_TRUE(box(row.control).isVisible());
        EXPECT_TRUE(box(row.control).isEnabled());
    }
    EXPECT_EQ(std::size_t(screen("Form1").findChildren<TextBox *>().size()), std::size(kFileBoxes));
}

TEST_F(MainMenu, FileBoxesAreBesideTheirCaptionsAndButtons)
{
    for (const FileBox &row : kFileBoxes) {
        SCOPED_TRACE(row.control);
        EXPECT_EQ(captionBeside(box(row.control)), QLatin1StringView(row.caption));
        const QRect button = box(row.button).geometry();
        const QRect box = this->box(row.control).geometry();
        EXPECT_NEAR(box.center().y(), button.center().y(), 2);
        EXPECT_GT(box.left(), button.right());
    }
}

TEST_F(MainMenu, FileBoxesAreFreelyEditable)
{
    for (const FileBox &row : kFileBoxes) {
        type("Form1", row.control, u"sub/Other name.TXT"_s);
        EXPECT_EQ(text("Form1", row.control), u"sub/Other name.TXT"_s);
    }
}

TEST_F(MainMenu, HasNoSecondTextBox)
{
    EXPECT_EQ(screen("Form1").findChild<QWidget *>(u"Text2"_s), nullptr);
}

TEST_F(MainMenu, TheFlowLabelIsHiddenAndReadsNormal)
{
    EXPECT_EQ(text("Form1", "matchreports"), u"normal"_s);
    EXPECT_FALSE(box("matchreports").isVisible());
}

TEST_F(MainMenu, EveryControlHasItsOwnName)
{
    expectOwnNames(screen("Form1"));
}

TEST_F(MainMenu, ExitEndsTheProgramAtOnce)
{
    const QSignalSpy ended(&editor, &Editor::exitRequested);
    press("Form1", "Command2");
    EXPECT_EQ(ended.count(), 1);
}

TEST_F(MainMenu, ExitEndsTheProgramWhileOtherScreensHoldUnsavedValues)
{
    const QSignalSpy ended(&editor, &Editor::exitRequested);
    press("Form1", "Command3");
    type("Form4", "Text2", u"Ladder Match"_s);
    boxes.expectQuestion(title(),
                         u"This will return you to the main menu and lose any "
                         "changes you haven't saved. Continue?"_s,
                         Answer::Yes);
    press("Form4", "Command1");
    EXPECT_EQ(ended.count(), 0);
    press("Form1", "Command2");
    EXPECT_EQ(ended.count(), 1);
    EXPECT_FALSE(QFile::exists(u"normreports.tvd"_s));
}

TEST_F(MainMenu, ClosingItsWindowEndsTheProgram)
{
    const QSignalSpy ended(&editor, &Editor::exitRequested);
    screen("Form1").close();
    EXPECT_EQ(ended.count(), 1);
}

TEST_F(MainMenu, APastedNameWithALineBreakBecomesOneLine)
{
    type("Form1", "Text3", QString());
    paste(box("Text3"), u"one\ntwo"_s);
    EXPECT_EQ(text("Form1", "Text3"), u"one two"_s);
}

} // namespace
} // namespace tarvold::testing
