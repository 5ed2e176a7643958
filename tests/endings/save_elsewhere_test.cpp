// A record whose file does not take it goes to another one, and nothing is lost on the way.

#include "support/file_dialogs.h"
#include "support/flow_test.h"

#include <QDir>

namespace tarvold::testing {
namespace {

struct SavingFlow
{
    const char *name;
    const FlowPath *flow;
    int lines; ///< of a record
};

void PrintTo(const SavingFlow &row, std::ostream *out)
{
    *out << row.name;
}

constexpr SavingFlow kFlows[] = {
    {"Normal", &kNormalPath, 36},       {"RunIn", &kRunInPath, 44},       {"Turn", &kTurnPath, 33},
    {"Interview", &kInterviewPath, 19}, {"TalkShow", &kTalkShowPath, 19},
};

constexpr char kMissingFolder[] = "No such file or directory";

class SaveElsewhere : public FlowTest, public ::testing::WithParamInterface<SavingFlow>
{
public:
    SaveElsewhere()
    {
        goToCommentary(flow());
        type(m_screen, "Text1", QStringLiteral("The end."));
        type(m_screen, "Text9", QStringLiteral("Ninth."));
        nameFile(QStringLiteral("missing/mine.tvd"));
    }
    ~SaveElsewhere() override { dialogs.checkAllCame(); }

protected:
    static const FlowPath &flow() { return *GetParam().flow; }

    void nameFile(const QString &name) { given("Form1", flow().fileBox, name); }
    QString namedFile() { return text("Form1", flow().fileBox); }

    /// Awaits the message of a failed save.
    void failsFor(const QString &name, const char *cause, Answer answer)
    {
        boxes.expectFailedSave(title(),
                               QStringLiteral("The file \"%1\" could not be written.\n\n%2\n\n"
                                              "Nothing was written, and everything that you typed "
                                              "is still here.")
                                   .arg(name, QLatin1StringView(cause)),
                               answer);
    }

    void chooses(const QString &typed)
    {
        dialogs.expect({QStringLiteral("."), QStringLiteral("mine.tvd"), typed});
    }

    void pressSave()
    {
        press(m_screen, "Command1");
        dialogs.checkAllCame();
    }

    /// Presses save and awaits the question, which comes once however often the save is tried.
    void asks() { boxes.expectQuestion(title(), QLatin1StringView(flow().question), Answer::Yes); }

    void saves() { boxes.expectNotice(title(), QStringLiteral("Saved OK.")); }

    void expectEverythingKept()
    {
        expectOnly(m_screen);
        EXPECT_EQ(text(m_screen, "Text1"), QStringLiteral("The end."));
        EXPECT_EQ(text(m_screen, "Text9"), QStringLiteral("Ninth."));
    }

    void expectRecords(const QString &name, int count)
    {
        EXPECT_EQ(bytesOf(name).count("\r\n"), count * GetParam().lines);
        EXPECT_EQ(bytesOf(name).count("\r\nNinth.\r\n"), count);
    }

    /// Saves to the file that is typed into the dialog, and expects it in the box.
    void saveElsewhere(const QString &typed, const QString &shown)
    {
        asks();
        failsFor(QStringLiteral("missing/mine.tvd"), kMissingFolder, Answer::Elsewhere);
        chooses(typed);
        saves();
        pressSave();
        expectOnly("Form1");
        EXPECT_EQ(namedFile(), shown);
    }

    FileDialogs dialogs;
    const char *m_screen = flow().screens.back();
};

INSTANTIATE_TEST_SUITE_P(Flows, SaveElsewhere, ::testing::ValuesIn(kFlows), kNameOfRow);

TEST_P(SaveElsewhere, PutsTheRecordIntoTheChosenFileAndTheNextOneToo)
{
    saveElsewhere(QStringLiteral("good.tvd"), QStringLiteral("good.tvd"));
    expectRecords(QStringLiteral("good.tvd"), 1);
    EXPECT_EQ(folderContent(), "good.tvd");
    EXPECT_EQ(text(m_screen, "Text1"), QStringLiteral("The end."));
    EXPECT_EQ(text(m_screen, "Text9"), QStringLiteral("Ninth."));

    goToCommentary(flow());
    EXPECT_EQ(text(m_screen, "Text9"), QString());
    type(m_screen, "Text1", QStringLiteral("The end."));
    type(m_screen, "Text9", QStringLiteral("Ninth."));
    save(flow());
    expectRecords(QStringLiteral("good.tvd"), 2);
}

TEST_P(SaveElsewhere, IsLeftByOkWithEverythingKept)
{
    for (const Answer answer : {Answer::Ok, Answer::Enter, Answer::Escape, Answer::Close}) {
        asks();
        failsFor(QStringLiteral("missing/mine.tvd"), kMissingFolder, answer);
        pressSave();
        expectEverythingKept();
        EXPECT_EQ(namedFile(), QStringLiteral("missing/mine.tvd"));
        EXPECT_EQ(folderContent(), "");
    }
}

TEST_P(SaveElsewhere, IsLeftByACancelledDialogWithEverythingKept)
{
    asks();
    failsFor(QStringLiteral("missing/mine.tvd"), kMissingFolder, Answer::Elsewhere);
    dialogs.expect({QStringLiteral("."), QStringLiteral("mine.tvd"), QStringLiteral("good.tvd"),
                    /*saves=*/false});
    pressSave();
    expectEverythingKept();
    EXPECT_EQ(namedFile(), QStringLiteral("missing/mine.tvd"));
    EXPECT_EQ(folderContent(), "");
}

TEST_P(SaveElsewhere, IsOfferedAgainWhenTheOtherFileFailsToo)
{
    const QString second = QDir(folder.path()).canonicalPath() + QStringLiteral("/gone/mine.tvd");
    asks();
    failsFor(QStringLiteral("missing/mine.tvd"), kMissingFolder, Answer::Elsewhere);
    chooses(QStringLiteral("gone/mine.tvd"));
    failsFor(second, kMissingFolder, Answer::Ok);
    pressSave();
    expectEverythingKept();
    EXPECT_EQ(namedFile(), second);

    asks();
    failsFor(second, kMissingFolder, Answer::Elsewhere);
    chooses(QStringLiteral("gone/mine.tvd"));
    failsFor(second, kMissingFolder, Answer::Elsewhere);
    chooses(QStringLiteral("good.tvd"));
    saves();
    pressSave();
    expectOnly("Form1");
    EXPECT_EQ(namedFile(), QStringLiteral("good.tvd"));
    expectRecords(QStringLiteral("good.tvd"), 1);
}

TEST_P(SaveElsewhere, AddsToAFileThatIsThereWithoutAQuestion)
{
    writeFile("good.tvd", "old\r\n");
    saveElsewhere(QStringLiteral("good.tvd"), QStringLiteral("good.tvd"));
    EXPECT_TRUE(readBack("good.tvd").startsWith("old\r\n"));
    EXPECT_EQ(readBack("good.tvd").count("\r\n"), 1 + GetParam().lines);
}

using SaveElsewhereByName = SaveElsewhere;

INSTANTIATE_TEST_SUITE_P(Interview, SaveElsewhereByName, ::testing::Values(kFlows[3]), kNameOfRow);

TEST_P(SaveElsewhereByName, StartsInTheFolderOfTheFailedFileAndNamesAnotherFolderWhole)
{
    ASSERT_TRUE(QDir().mkpath(QStringLiteral("sub/mine.tvd"))); // a folder of the file's name
    nameFile(QStringLiteral("sub/mine.tvd"));
    asks();
    failsFor(QStringLiteral("sub/mine.tvd"), "It is a folder.", Answer::Elsewhere);
    dialogs.expect({QStringLiteral("sub"), QString(), QStringLiteral("good.tvd")});
    saves();
    pressSave();
    EXPECT_EQ(namedFile(), QDir(folder.path()).canonicalPath() + QStringLiteral("/sub/good.tvd"));
    expectRecords(QStringLiteral("sub/good.tvd"), 1);
}

TEST_P(SaveElsewhereByName, ProposesTheUsualNameForOneThatIsNoDataFile)
{
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("sub")));
    const QString withNul = QStringLiteral("nul") + QChar(0) + QStringLiteral(".tvd");
    const std::pair<QString, const char *> unfits[] = {
        {QString(), "The file name is empty."},
        {QStringLiteral("sub"), "It is a folder."},
        {withNul, "The file name holds a character that no file name can have."}};
    for (const auto &[unfit, cause] : unfits) {
        nameFile(unfit);
        asks();
        failsFor(unfit, cause, Answer::Elsewhere);
        dialogs.expect({QStringLiteral("."), QStringLiteral("interviews.tvd"),
                        QStringLiteral("good.tvd"), /*saves=*/false});
        pressSave();
        expectEverythingKept();
        EXPECT_EQ(namedFile(), unfit);
    }
}

TEST_P(SaveElsewhereByName, GivesANewNameTheEndOfDataFiles)
{
    saveElsewhere(QStringLiteral("good"), QStringLiteral("good.tvd"));
    EXPECT_EQ(folderContent(), "good.tvd");
}

TEST_P(SaveElsewhereByName, MakesTheEndOfANewNameLowerCase)
{
    saveElsewhere(QStringLiteral("GOOD.TVD"), QStringLiteral("GOOD.tvd"));
    EXPECT_EQ(folderContent(), "GOOD.tvd");
}

TEST_P(SaveElsewhereByName, KeepsTheNameOfAFileThatIsThere)
{
    writeFile("GOOD.TVD", "old\r\n");
    saveElsewhere(QStringLiteral("GOOD.TVD"), QStringLiteral("GOOD.TVD"));
    EXPECT_EQ(folderContent(), "GOOD.TVD");
    EXPECT_EQ(readBack("GOOD.TVD").count("\r\n"), 1 + GetParam().lines);
}

/// Where the settings of the programs that this test runs would go.
QString settingsFolder()
{
    static const QTemporaryDir folder;
    return folder.path();
}

const bool kSettingsAreWatched = qputenv("XDG_CONFIG_HOME", QFile::encodeName(settingsFolder()));

TEST_P(SaveElsewhereByName, WritesNoSettings)
{
    ASSERT_TRUE(kSettingsAreWatched);
    saveElsewhere(QStringLiteral("good.tvd"), QStringLiteral("good.tvd"));
    EXPECT_EQ(QDir(settingsFolder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList());
}

} // namespace
} // namespace tarvold::testing
