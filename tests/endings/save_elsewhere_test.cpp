// A record that cannot be saved to its file is saved to another one, and nothing is lost.

#include "support/file_dialogs.h"
#include "support/flow_test.h"

#include <QDir>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

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

constexpr SavingFlow kSavingFlows[] = {
    {"Normal", &kNormalPath, 36},       {"RunIn", &kRunInPath, 44},       {"Turn", &kTurnPath, 33},
    {"Interview", &kInterviewPath, 19}, {"TalkShow", &kTalkShowPath, 19},
};

/// The cause of a failure in a folder that is not there, in Latin-1.
QByteArray missingFolder(const QString &folder = u"missing"_s)
{
    return u"The folder \"%1\" does not exist."_s.arg(QDir::current().absoluteFilePath(folder))
        .toLatin1();
}

class SaveElsewhere : public FlowTest, public ::testing::WithParamInterface<SavingFlow>
{
public:
    SaveElsewhere()
    {
        goToCommentary(flow());
        type(m_screen, "Text1", u"The end."_s);
        type(m_screen, "Text9", u"Ninth."_s);
        nameFile(u"missing/mine.tvd"_s);
    }
    ~SaveElsewhere() override { dialogs.checkAllCame(); }

protected:
    static const FlowPath &flow() { return *GetParam().flow; }

    void nameFile(const QString &name) { given("Form1", flow().fileBox, name); }
    QString namedFile() { return text("Form1", flow().fileBox); }

    /// The whole path of a file, which the message names unless the cause does.
    static QString whole(const QString &name) { return QDir::currentPath() + u'/' + name; }

    /// Expects the message of a failed save.
    /// \param name as the message names the file
    void failsFor(const QString &name, const char *cause, Answer answer)
    {
        boxes.expectFailedSave(title(),
                               u"The file \"%1\" could not be written.\n\n%2\n\n"
                               "Nothing was written, and everything that you typed "
                               "is still here."_s.arg(name, QLatin1StringView(cause)),
                               answer);
    }

    void chooses(const QString &typed) { dialogs.expect({u"."_s, u"mine.tvd"_s, typed}); }

    void pressSave()
    {
        press(m_screen, "Command1");
        dialogs.checkAllCame();
    }

    /// Presses save and expects the question, which is asked once however often the save is
    /// retried.
    void asks() { boxes.expectQuestion(title(), QLatin1StringView(flow().question), Answer::Yes); }

    void saves() { boxes.expectNotice(title(), u"Saved OK."_s); }

    void expectEverythingKept()
    {
        expectOnly(m_screen);
        EXPECT_EQ(text(m_screen, "Text1"), u"The end."_s);
        EXPECT_EQ(text(m_screen, "Text9"), u"Ninth."_s);
    }

    void expectRecords(const QString &name, int count)
    {
        EXPECT_EQ(bytesOf(name).count("\r\n"), count * GetParam().lines);
        EXPECT_EQ(bytesOf(name).count("\r\nNinth.\r\n"), count);
    }

    /// Saves to the file that is typed into the dialog, and expects its name in the box.
    void saveElsewhere(const QString &typed, const QString &shown)
    {
        asks();
        failsFor(u"missing/mine.tvd"_s, missingFolder(), Answer::Elsewhere);
        chooses(typed);
        saves();
        pressSave();
        expectOnly("Form1");
        EXPECT_EQ(namedFile(), shown);
    }

    FileDialogs dialogs;
    const char *m_screen = flow().screens.back();
};

INSTANTIATE_TEST_SUITE_P(Flows, SaveElsewhere, ::testing::ValuesIn(kSavingFlows), kNameOfRow);

TEST_P(SaveElsewhere, SavesTheRecordAndTheNextOneToTheChosenFile)
{
    saveElsewhere(u"good.tvd"_s, u"good.tvd"_s);
    expectRecords(u"good.tvd"_s, 1);
    EXPECT_EQ(folderContent(), "good.tvd");
    EXPECT_EQ(text(m_screen, "Text1"), u"The end."_s);
    EXPECT_EQ(text(m_screen, "Text9"), u"Ninth."_s);

    goToCommentary(flow());
    EXPECT_EQ(text(m_screen, "Text9"), QString());
    type(m_screen, "Text1", u"The end."_s);
    type(m_screen, "Text9", u"Ninth."_s);
    save(flow());
    expectRecords(u"good.tvd"_s, 2);
}

TEST_P(SaveElsewhere, KeepsEverythingWhenOkIsPressed)
{
    for (const Answer answer : {Answer::Ok, Answer::Enter, Answer::Escape, Answer::Close}) {
        asks();
        failsFor(u"missing/mine.tvd"_s, missingFolder(), answer);
        pressSave();
        expectEverythingKept();
        EXPECT_EQ(namedFile(), u"missing/mine.tvd"_s);
        EXPECT_EQ(folderContent(), "");
    }
}

TEST_P(SaveElsewhere, KeepsEverythingWhenTheDialogIsCancelled)
{
    asks();
    failsFor(u"missing/mine.tvd"_s, missingFolder(), Answer::Elsewhere);
    dialogs.expect({u"."_s, u"mine.tvd"_s, u"good.tvd"_s,
                    /*saves=*/false});
    pressSave();
    expectEverythingKept();
    EXPECT_EQ(namedFile(), u"missing/mine.tvd"_s);
    EXPECT_EQ(folderContent(), "");
}

TEST_P(SaveElsewhere, IsOfferedAgainWhenTheOtherFileFailsToo)
{
    const QString second = QDir(folder.path()).canonicalPath() + u"/gone/mine.tvd"_s;
    asks();
    failsFor(u"missing/mine.tvd"_s, missingFolder(), Answer::Elsewhere);
    chooses(u"gone/mine.tvd"_s);
    failsFor(second, missingFolder(u"gone"_s), Answer::Ok);
    pressSave();
    expectEverythingKept();
    EXPECT_EQ(namedFile(), second);

    asks();
    failsFor(second, missingFolder(u"gone"_s), Answer::Elsewhere);
    chooses(u"gone/mine.tvd"_s);
    failsFor(second, missingFolder(u"gone"_s), Answer::Elsewhere);
    chooses(u"good.tvd"_s);
    saves();
    pressSave();
    expectOnly("Form1");
    EXPECT_EQ(namedFile(), u"good.tvd"_s);
    expectRecords(u"good.tvd"_s, 1);
}

TEST_P(SaveElsewhere, AppendsToAnExistingFileWithoutAQuestion)
{
    writeFile("good.tvd", "old\r\n");
    saveElsewhere(u"good.tvd"_s, u"good.tvd"_s);
    EXPECT_TRUE(readBack("good.tvd").startsWith("old\r\n"));
    EXPECT_EQ(readBack("good.tvd").count("\r\n"), 1 + GetParam().lines);
}

using SaveElsewhereByName = SaveElsewhere;

INSTANTIATE_TEST_SUITE_P(Interview, SaveElsewhereByName, ::testing::Values(kSavingFlows[3]),
                         kNameOfRow);

TEST_P(SaveElsewhereByName, StartsInTheFolderAboveTheOneThatALinkLeadsTo)
{
    ASSERT_TRUE(QDir().mkpath(u"far/near"_s));
    ASSERT_TRUE(QDir().mkpath(u"far/mine.tvd"_s));
    ASSERT_TRUE(QFile::link(u"far/near"_s, u"link"_s));
    nameFile(u"link/../mine.tvd"_s);
    asks();
    failsFor(whole(u"link/../mine.tvd"_s), "It is a folder.", Answer::Elsewhere);
    dialogs.expect({u"far"_s, {}, u"good.tvd"_s});
    saves();
    pressSave();
    EXPECT_EQ(namedFile(), QDir(folder.path()).canonicalPath() + u"/far/good.tvd"_s);
    EXPECT_FALSE(QFile::exists(u"good.tvd"_s));
}

TEST_P(SaveElsewhereByName, StartsInTheFolderOfTheFailedFileAndShowsAnotherFolderWithItsFullPath)
{
    ASSERT_TRUE(QDir().mkpath(u"sub/mine.tvd"_s)); // a folder of the file's name
    nameFile(u"sub/mine.tvd"_s);
    asks();
    failsFor(whole(u"sub/mine.tvd"_s), "It is a folder.", Answer::Elsewhere);
    dialogs.expect({u"sub"_s, QString(), u"good.tvd"_s});
    saves();
    pressSave();
    EXPECT_EQ(namedFile(), QDir(folder.path()).canonicalPath() + u"/sub/good.tvd"_s);
    expectRecords(u"sub/good.tvd"_s, 1);
}

TEST_P(SaveElsewhereByName, ProposesTheDefaultNameInsteadOfAnUnusableOne)
{
    ASSERT_TRUE(QDir().mkdir(u"sub"_s));
    const QString withNul = u"nul"_s + QChar(0) + u".tvd"_s;
    const std::pair<QString, const char *> unfits[] = {
        {QString(), "The file name is empty."},
        {u"sub"_s, "It is a folder."},
        {withNul, "The file name holds a character that no file name can have."}};
    for (const auto &[unfit, cause] : unfits) {
        nameFile(unfit);
        asks();
        failsFor(unfit == u"sub"_s ? whole(unfit) : unfit, cause, Answer::Elsewhere);
        dialogs.expect({u"."_s, u"interviews.tvd"_s, u"good.tvd"_s, /*saves=*/false});
        pressSave();
        expectEverythingKept();
        EXPECT_EQ(namedFile(), unfit);
    }
}

TEST_P(SaveElsewhereByName, AddsTheExtensionToANewName)
{
    saveElsewhere(u"good"_s, u"good.tvd"_s);
    EXPECT_EQ(folderContent(), "good.tvd");
}

TEST_P(SaveElsewhereByName, MakesTheExtensionOfANewNameLowerCase)
{
    saveElsewhere(u"GOOD.TVD"_s, u"GOOD.tvd"_s);
    EXPECT_EQ(folderContent(), "GOOD.tvd");
}

TEST_P(SaveElsewhereByName, KeepsTheNameOfAnExistingFile)
{
    writeFile("GOOD.TVD", "old\r\n");
    saveElsewhere(u"GOOD.TVD"_s, u"GOOD.TVD"_s);
    EXPECT_EQ(folderContent(), "GOOD.TVD");
    EXPECT_EQ(readBack("GOOD.TVD").count("\r\n"), 1 + GetParam().lines);
}

/// Where the settings of the program under test would go.
QString settingsFolder()
{
    static const QTemporaryDir folder;
    return folder.path();
}

const bool kSettingsAreWatched = qputenv("XDG_CONFIG_HOME", QFile::encodeName(settingsFolder()));

TEST_P(SaveElsewhereByName, WritesNoSettings)
{
    ASSERT_TRUE(kSettingsAreWatched);
    saveElsewhere(u"good.tvd"_s, u"good.tvd"_s);
    EXPECT_EQ(QDir(settingsFolder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList());
}

} // namespace
} // namespace tarvold::testing
