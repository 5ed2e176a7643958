// The ways out of the import screen, and why an import fails.

#include "import/import_test.h"

#include <QDir>
#include <QFileInfo>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class ImportLeaving : public ImportTest
{
protected:
    void expectNameRefused(const QString &name)
    {
        type("Form2", "Text1", name);
        boxes.expectNotice(u"File Error!"_s,
                           u"Filename to import into is blank or doesn't have a .tvd extension."_s);
        press("Form2", "Command8");
        expectStage2();
        EXPECT_EQ(text("Form2", "Text1"), name);
    }

    /// What a message calls a file of the current folder, unless the cause tells the folder.
    static QString quotedPath(const QString &name)
    {
        return u"\"%1\""_s.arg(QDir::current().filePath(name));
    }

    /// Presses "Import", which must fail, and returns what the message box says.
    QString failure()
    {
        QString said;
        boxes.catchNotice(u"Import"_s, &said);
        press("Form2", "Command8");
        expectStage2();
        return said;
    }
};

TEST_F(ImportLeaving, BackShowsTheMainMenu)
{
    enter();
    press("Form2", "Command1");
    expectOnly("Form1");
}

TEST_F(ImportLeaving, ThenComingBackShowsStage1)
{
    enter();
    press("Form2", "Command4");
    press("Form2", "Command9");
    press("Form2", "Command1");
    enter();
    expectStage1();
    EXPECT_EQ(text("Form2", "whatimport"), u"Stipulations"_s);
    EXPECT_EQ(text("Form2", "Text1"), u"stipulations.tvd"_s);
}

TEST_F(ImportLeaving, ClosingTheWindowInStage1ShowsTheMainMenu)
{
    enter();
    screen("Form2").close();
    expectOnly("Form1");
}

TEST_F(ImportLeaving, ClosingTheWindowInStage2CancelsAndShowsTheMainMenu)
{
    enter();
    press("Form2", "Command4");
    type("Form2", "Text1", u"changed.tvd"_s);
    screen("Form2").close();
    expectOnly("Form1");
    enter();
    expectStage1();
    EXPECT_EQ(text("Form2", "Text1"), u"changed.tvd"_s);
}

TEST_F(ImportLeaving, ATargetNameThatFailsItsCheckKeepsTheScreenInStage2)
{
    putBytes(u"a.tvd"_s, recordOf(36));
    enter();
    press("Form2", "Command2");
    select(u"a.tvd"_s);
    for (const char *name : {"", "stipulations", "stipulations.TVD", "a.Tvd", "a.tvd ", "a.tvd.txt",
                             "a.tv", "tvd", "a.tvds", " "}) {
        expectNameRefused(QLatin1StringView(name));
    }
    EXPECT_EQ(selected(), u"a.tvd"_s);
    EXPECT_EQ(QDir().entryList(QDir::Files), QStringList(u"a.tvd"_s));
}

TEST_F(ImportLeaving, TheNameIsCheckedBeforeTheSelection)
{
    enter();
    press("Form2", "Command2");
    expectNameRefused(u"x"_s);
}

TEST_F(ImportLeaving, WithoutASelectedFileSaysSoAndKeepsWhatWasTyped)
{
    enter();
    press("Form2", "Command2");
    type("Form2", "Text1", u"mine.tvd"_s);
    const QString said = failure();
    EXPECT_TRUE(said.contains(u"No file to import from is selected."_s)) << said.toStdString();
    EXPECT_TRUE(said.contains(u"Nothing was imported."_s)) << said.toStdString();
    EXPECT_TRUE(said.contains(u"Select a file"_s)) << said.toStdString();
    EXPECT_EQ(text("Form2", "Text1"), u"mine.tvd"_s);
    EXPECT_EQ(text("Form2", "whatimport"), u"Normal Matches"_s);
    EXPECT_FALSE(QFileInfo::exists(u"mine.tvd"_s));
}

TEST_F(ImportLeaving, AFileThatBreaksOffIsNamedWithLineAndRecordAndCanBeFixed)
{
    putBytes(u"cut.tvd"_s, recordOf(19) + recordOf(5));
    enter();
    press("Form2", "Command7");
    select(u"cut.tvd"_s);
    type("Form2", "Text1", u"mine.tvd"_s);
    const QString said = failure();
    EXPECT_TRUE(said.contains(quotedPath(u"cut.tvd"_s))) << said.toStdString();
    for (const char *part : {"line 24", "record 2", "Nothing was imported.", "Correct"}) {
        EXPECT_TRUE(said.contains(QLatin1StringView(part))) << part << " in " << said.toStdString();
    }
    EXPECT_EQ(text("Form2", "Text1"), u"mine.tvd"_s);
    EXPECT_EQ(selected(), u"cut.tvd"_s);
    EXPECT_FALSE(QFileInfo::exists(u"mine.tvd"_s));

    putBytes(u"cut.tvd"_s, recordOf(19));
    import();
    expectStage1();
    EXPECT_EQ(bytesIn(u"mine.tvd"_s), recordOf(19));
}

TEST_F(ImportLeaving, AFileDeletedAfterItWasSelectedIsNamed)
{
    putBytes(u"gone.tvd"_s, recordOf(19));
    enter();
    press("Form2", "Command7");
    select(u"gone.tvd"_s);
    ASSERT_TRUE(QFile::remove(u"gone.tvd"_s));
    EXPECT_TRUE(failure().contains(quotedPath(u"gone.tvd"_s)));
    EXPECT_FALSE(QFileInfo::exists(u"talkshow.tvd"_s));
}

TEST_F(ImportLeaving, AMissingTargetOfStipulationsIsNamedAndNotCreated)
{
    putBytes(u"a.tvd"_s, recordOf(19));
    enter();
    press("Form2", "Command4");
    select(u"a.tvd"_s);
    EXPECT_TRUE(failure().contains(quotedPath(u"stipulations.tvd"_s)));
    EXPECT_FALSE(QFileInfo::exists(u"stipulations.tvd"_s));
}

TEST_F(ImportLeaving, AFolderThatIsNotThereIsNamed)
{
    putBytes(u"a.tvd"_s, recordOf(33));
    enter();
    press("Form2", "Command5");
    select(u"a.tvd"_s);
    type("Form2", "Text1", u"nowhere/turns.tvd"_s);
    EXPECT_TRUE(failure().contains(u"\"nowhere/turns.tvd\""_s));
    EXPECT_EQ(text("Form2", "Text1"), u"nowhere/turns.tvd"_s);
    EXPECT_FALSE(QFileInfo::exists(u"nowhere"_s));
}

} // namespace
} // namespace tarvold::testing
