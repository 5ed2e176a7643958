// The import screen's captions, its two stages and what each kind puts into them.

#include "import/import_test.h"
#include "support/tool_tips.h"

#include <QPushButton>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class ImportScreen : public ImportTest
{
protected:
    QString caption(const char *button)
    {
        return screen("Form2").control<QPushButton>(button).text();
    }
};

TEST_F(ImportScreen, HasTheProgramsCaption)
{
    enter();
    EXPECT_EQ(screen("Form2").windowTitle(), u"Tarvold 1.3 Data Editor"_s);
}

TEST_F(ImportScreen, IsFirstShownInStage1)
{
    enter();
    expectStage1();
}

TEST_F(ImportScreen, HasItsDesignTexts)
{
    enter();
    EXPECT_EQ(text("Form2", "Label3"), u"Import"_s);
    EXPECT_EQ(text("Form2", "Label2"), u"Which file do you want to import these into?"_s);
    EXPECT_EQ(text("Form2", "Text1"), u"Text1"_s);
    EXPECT_EQ(caption("Command1"), u"Back"_s);
    EXPECT_EQ(caption("Command8"), u"Import"_s);
    EXPECT_EQ(caption("Command9"), u"Cancel"_s);
    EXPECT_EQ(text("Form2", "whatimport"), u"Label2"_s);
}

TEST_F(ImportScreen, TheButtonTellsTheWholePathOfTheFileThatItAddsTo)
{
    enter();
    QWidget &button = control("Form2", "Command8");
    const auto expectTold = [&button](const QString &expected) {
        EXPECT_EQ(toolTipOf(button), expected);
        EXPECT_EQ(button.accessibleDescription(), expected);
    };
    const auto whole = [](const QString &name) {
        return QDir::toNativeSeparators(QDir::currentPath() + u'/' + name);
    };
    for (const ImportKind &kind : kImportKinds) {
        press("Form2", kind.button);
        expectTold(u"Adds to "_s + whole(QLatin1StringView(kind.target)));
        press("Form2", "Command9");
    }
    press("Form2", kImportKinds.front().button);
    const QString described = button.accessibleDescription();
    type("Form2", "Text1", u"my/<b>own.tvd"_s);
    EXPECT_EQ(toolTipOf(button), QString(u"Adds to "_s + whole(u"my/<b>own.tvd"_s)));
    EXPECT_EQ(button.accessibleDescription(), described); // it would be read out at each key
    QTest::keyClick(screen("Form2").windowHandle(), Qt::Key_Tab);
    expectTold(u"Adds to "_s + whole(u"my/<b>own.tvd"_s));
    type("Form2", "Text1", {});
    QTest::keyClick(screen("Form2").windowHandle(), Qt::Key_Tab);
    expectTold(u"The file name is empty."_s);
}

TEST_F(ImportScreen, HasTheKindButtonsInTheirOrder)
{
    enter();
    int above = control("Form2", "Label1").y();
    for (const ImportKind &kind : kImportKinds) {
        const QWidget &button = control("Form2", kind.button);
        EXPECT_EQ(caption(kind.button), QLatin1StringView(kind.caption));
        EXPECT_GT(button.y(), above) << kind.button;
        above = button.y();
    }
}

TEST_F(ImportScreen, TakesNoDataFromTheMainMenusBoxes)
{
    for (const char *box : {"Text1", "Text3", "Text4", "Text5", "Text6", "Text7"}) {
        type("Form1", box, u"mine.tvd"_s);
    }
    enter();
    for (const ImportKind &kind : kImportKinds) {
        press("Form2", kind.button);
        EXPECT_EQ(text("Form2", "Text1"), QLatin1StringView(kind.target));
        press("Form2", "Command9");
    }
}

TEST_F(ImportScreen, KeepsItsTwoPromptsAsPlainText)
{
    enter();
    press("Form2", "Command2");
    for (const char *name : {"Label1", "Label2", "Label3"}) {
        EXPECT_EQ(screen("Form2").control<QLabel>(name).textFormat(), Qt::PlainText) << name;
    }
}

class ImportKindButton : public ImportTest, public ::testing::WithParamInterface<ImportKind>
{
protected:
    const char *button() { return GetParam().button; }
    QString target() { return QLatin1StringView(GetParam().target); }
};

TEST_P(ImportKindButton, LeadsToStage2)
{
    enter();
    press("Form2", button());
    expectStage2();
    EXPECT_EQ(text("Form2", "whatimport"), QLatin1StringView(GetParam().whatimport));
    EXPECT_EQ(text("Form2", "Text1"), target());
    EXPECT_EQ(selected(), QString());
}

TEST_P(ImportKindButton, SuggestsItsTargetAgainAfterCancel)
{
    enter();
    press("Form2", button());
    type("Form2", "Text1", u"changed.tvd"_s);
    press("Form2", "Command9");
    press("Form2", button());
    EXPECT_EQ(text("Form2", "Text1"), target());
}

TEST_P(ImportKindButton, LeavesItsChoiceInPlaceOnCancel)
{
    putBytes(u"a.tvd"_s, {});
    enter();
    press("Form2", button());
    select(u"a.tvd"_s);
    type("Form2", "Text1", u"changed.tvd"_s);
    press("Form2", "Command9");
    expectStage1();
    EXPECT_EQ(text("Form2", "whatimport"), QLatin1StringView(GetParam().whatimport));
    EXPECT_EQ(text("Form2", "Text1"), u"changed.tvd"_s);
    EXPECT_EQ(selected(), u"a.tvd"_s);
}

TEST_P(ImportKindButton, ImportsRecordsOfItsLength)
{
    const int lines = GetParam().lines;
    putBytes(target(), recordOf(lines, {"1"}));
    putBytes(u"a.tvd"_s,
             recordOf(lines, {"2"}) + recordOf(lines, {"", "left out"}) + recordOf(lines, {"3"}));
    enter();
    press("Form2", button());
    select(u"a.tvd"_s);
    import();
    expectStage1();
    EXPECT_EQ(bytesIn(target()),
              recordOf(lines, {"1"}) + recordOf(lines, {"2"}) + recordOf(lines, {"3"}));
}

INSTANTIATE_TEST_SUITE_P(, ImportKindButton, ::testing::ValuesIn(kImportKinds), kNameOfRow);

} // namespace
} // namespace tarvold::testing
