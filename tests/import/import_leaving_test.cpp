// The ways out of the import screen, and what keeps an import from being done.

#include "import/import_test.h"

#include <QFileInfo>

namespace tarvold::testing {
namespace {

class ImportLeaving : public ImportTest
{
protected:
    void expectNameRefused(const QString &name)
    {
        type("Form2", "Text1", name);
        boxes.expectNotice(
            QStringLiteral("File Error!"),
            QStringLiteral("Filename to import into is blank or doesn't have a .tvd extension."));
        press("Form2", "Command8");
        expectStage2();
        EXPECT_EQ(text("Form2", "Text1"), name);
    }

    /// Presses "Import", which must fail, and returns what the message box says.
    QString failure()
    {
        QString said;
        boxes.catchNotice(QStringLiteral("Import"), &said);
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
    EXPECT_EQ(text("Form2", "whatimport"), QStringLiteral("Stipulations"));
    EXPECT_EQ(text("Form2", "Text1"), QStringLiteral("stipulations.tvd"));
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
    type("Form2", "Text1", QStringLiteral("changed.tvd"));
    screen("Form2").close();
    expectOnly("Form1");
    enter();
    expectStage1();
    EXPECT_EQ(text("Form2", "Text1"), QStringLiteral("changed.tvd"));
}

TEST_F(ImportLeaving, ATargetNameThatFailsItsCheckKeepsTheScreenInStage2)
{
    putBytes(QStringLiteral("a.tvd"), recordOf(36));
    enter();
    press("Form2", "Command2");
    select(QStringLiteral("a.tvd"));
    for (const char *name : {"", "stipulations", "stipulations.TVD", "a.Tvd", "a.tvd ", "a.tvd.txt",
                             "a.tv", "tvd", "a.tvds", " "}) {
        expectNameRefused(QLatin1StringView(name));
    }
    EXPECT_EQ(selected(), QStringLiteral("a.tvd"));
    EXPECT_EQ(QDir().entryList(QDir::Files), QStringList(QStringLiteral("a.tvd")));
}

TEST_F(ImportLeaving, TheNameIsCheckedBeforeTheSelection)
{
    enter();
    press("Form2", "Command2");
    expectNameRefused(QStringLiteral("x"));
}

TEST_F(ImportLeaving, WithoutASelectedFileSaysSoAndKeepsWhatWasTyped)
{
    enter();
    press("Form2", "Command2");
    type("Form2", "Text1", QStringLiteral("mine.tvd"));
    const QString said = failure();
    EXPECT_TRUE(said.contains(QStringLiteral("No file to import from is selected.")))
        << said.toStdString();
    EXPECT_TRUE(said.contains(QStringLiteral("Nothing was imported."))) << said.toStdString();
    EXPECT_TRUE(said.contains(QStringLiteral("Select a file"))) << said.toStdString();
    EXPECT_EQ(text("Form2", "Text1"), QStringLiteral("mine.tvd"));
    EXPECT_EQ(text("Form2", "whatimport"), QStringLiteral("Normal Matches"));
    EXPECT_FALSE(QFileInfo::exists(QStringLiteral("mine.tvd")));
}

TEST_F(ImportLeaving, ACutShortFileIsNamedWithLineAndRecordAndCanBeMended)
{
    putBytes(QStringLiteral("cut.tvd"), recordOf(19) + recordOf(5));
    enter();
    press("Form2", "Command7");
    select(QStringLiteral("cut.tvd"));
    type("Form2", "Text1", QStringLiteral("mine.tvd"));
    const QString said = failure();
    for (const char *part :
         {"\"cut.tvd\"", "line 24", "record 2", "Nothing was imported.", "Mend"}) {
        EXPECT_TRUE(said.contains(QLatin1StringView(part))) << part << " in " << said.toStdString();
    }
    EXPECT_EQ(text("Form2", "Text1"), QStringLiteral("mine.tvd"));
    EXPECT_EQ(selected(), QStringLiteral("cut.tvd"));
    EXPECT_FALSE(QFileInfo::exists(QStringLiteral("mine.tvd")));

    putBytes(QStringLiteral("cut.tvd"), recordOf(19));
    import();
    expectStage1();
    EXPECT_EQ(bytesIn(QStringLiteral("mine.tvd")), recordOf(19));
}

TEST_F(ImportLeaving, AFileDeletedAfterItWasSelectedIsNamed)
{
    putBytes(QStringLiteral("gone.tvd"), recordOf(19));
    enter();
    press("Form2", "Command7");
    select(QStringLiteral("gone.tvd"));
    ASSERT_TRUE(QFile::remove(QStringLiteral("gone.tvd")));
    EXPECT_TRUE(failure().contains(QStringLiteral("\"gone.tvd\"")));
    EXPECT_FALSE(QFileInfo::exists(QStringLiteral("talkshow.tvd")));
}

TEST_F(ImportLeaving, AMissingTargetOfStipulationsIsNamedAndNotCreated)
{
    putBytes(QStringLiteral("a.tvd"), recordOf(19));
    enter();
    press("Form2", "Command4");
    select(QStringLiteral("a.tvd"));
    EXPECT_TRUE(failure().contains(QStringLiteral("\"stipulations.tvd\"")));
    EXPECT_FALSE(QFileInfo::exists(QStringLiteral("stipulations.tvd")));
}

TEST_F(ImportLeaving, AFolderThatIsNotThereIsNamed)
{
    putBytes(QStringLiteral("a.tvd"), recordOf(33));
    enter();
    press("Form2", "Command5");
    select(QStringLiteral("a.tvd"));
    type("Form2", "Text1", QStringLiteral("nowhere/turns.tvd"));
    EXPECT_TRUE(failure().contains(QStringLiteral("\"nowhere/turns.tvd\"")));
    EXPECT_EQ(text("Form2", "Text1"), QStringLiteral("nowhere/turns.tvd"));
    EXPECT_FALSE(QFileInfo::exists(QStringLiteral("nowhere")));
}

} // namespace
} // namespace tarvold::testing
