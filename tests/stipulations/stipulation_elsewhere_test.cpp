// Stipulations whose file cannot be written are saved to another one.

#include "stipulations/stipulation_test.h"
#include "support/file_dialogs.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using Texts = std::vector<std::string>;

class StipulationElsewhere : public StipulationTest
{
public:
    ~StipulationElsewhere() override { dialogs.checkAllCame(); }

protected:
    /// Goes to the form of a new stipulation, "Cage", whose file cannot be written.
    void makeOneThatFails()
    {
        open(one);
        createNew();
        put("stipulation", "Cage");
        putAFolderInTheWay();
    }

    static void putAFolderInTheWay()
    {
        ASSERT_TRUE(QFile::remove(utf8(kFile)));
        ASSERT_TRUE(QDir().mkdir(utf8(kFile)));
    }

    void failsFor(const QString &name, const char *cause, Answer answer)
    {
        boxes.expectFailedSave(
            u"Stipulations Editor"_s,
            u"The file \"%1\" could not be written.\n\n%2\n\nThe file is as "
            "it was. Everything that you typed is still here."_s.arg(name, utf8(cause)),
            answer);
    }

    void failsForTheFolder(Answer answer)
    {
        failsFor(QDir::current().filePath(utf8(kFile)), "It is a folder.", answer);
    }

    void chooses(const char *typed, const char *proposed = "")
    {
        dialogs.expect({u"."_s, utf8(proposed), utf8(typed)});
    }

    void isAskedAbout(const char *name, Answer answer)
    {
        boxes.expectQuestion(u"Stipulations Editor"_s,
                             u"The file \"%1\" is there already.\n\nYes writes your list over "
                             "it, and what is in it now is lost. No lets you choose another "
                             "name.\n\nWrite over it?"_s.arg(utf8(name)),
                             answer);
    }

    /// Presses save and expects the form to be left.
    void saveAtLast()
    {
        save();
        dialogs.checkAllCame();
    }

    void pressSave()
    {
        press("Form3", "Command2");
        dialogs.checkAllCame();
        expectOnly("Form3");
    }

    QString namedFile() { return text("Form1", "Text1"); }

    FileDialogs dialogs;
    const QByteArray one = stipulation("Singles", "One");
    const QByteArray two = stipulation("Singles", "Two");
};

TEST_F(StipulationElsewhere, ANewOneGoesToTheChosenFileWithAllOthersAndTheNextSaveToo)
{
    makeOneThatFails();
    failsForTheFolder(Answer::Elsewhere);
    chooses("other.tvd");
    saveAtLast();
    EXPECT_EQ(readBack("other.tvd"), one + untouched("Cage"));
    EXPECT_EQ(listed(), (Texts{"Singles / One", "Singles / Cage"}));
    EXPECT_EQ(namedFile(), u"other.tvd"_s);
    EXPECT_TRUE(QDir(utf8(kFile)).isEmpty());

    edit(0);
    put("stipulation", "First");
    save();
    EXPECT_EQ(readBack("other.tvd"), stipulation("Singles", "First") + untouched("Cage"));
    EXPECT_TRUE(QDir(utf8(kFile)).isEmpty());
}

TEST_F(StipulationElsewhere, TheButtonFollowsTheChosenFileWhileTheFormStays)
{
    makeOneThatFails();
    const auto told = [this] { return control("Form3", "Command2").accessibleDescription(); };
    const QString first = QDir::currentPath() + u'/' + utf8(kFile);
    EXPECT_EQ(told(), QString(u"Saves in "_s + first + u" (Ctrl+S)"_s));
    const QString second = QDir(folder.path()).canonicalPath() + u"/gone/x.tvd"_s;
    failsForTheFolder(Answer::Elsewhere);
    chooses("gone/x.tvd");
    const QString cause = u"The folder \"%1\" does not exist."_s.arg(QFileInfo(second).path());
    failsFor(second, qPrintable(cause), Answer::Ok);
    pressSave();
    EXPECT_EQ(told(), QString(u"Saves in "_s + second + u" (Ctrl+S)"_s));
}

TEST_F(StipulationElsewhere, AnEditedOneGoesToTheChosenFileInItsPlace)
{
    open(one + two);
    edit(0);
    put("stipulation", "First");
    putAFolderInTheWay();
    failsForTheFolder(Answer::Elsewhere);
    chooses("other.tvd");
    saveAtLast();
    EXPECT_EQ(readBack("other.tvd"), stipulation("Singles", "First") + two);
    EXPECT_EQ(listed(), (Texts{"Singles / First", "Singles / Two"}));
}

TEST_F(StipulationElsewhere, TheSameFileChosenAgainIsARetryWithoutAQuestion)
{
    makeOneThatFails();
    failsForTheFolder(Answer::Elsewhere);
    boxes.beforeItsAnswer([this](QMessageBox &) {
        ASSERT_TRUE(QDir().rmdir(utf8(kFile)));
        writeFile(kFile, one);
    });
    chooses(kFile, kFile);
    saveAtLast();
    EXPECT_EQ(readBack(kFile), one + untouched("Cage"));
    EXPECT_EQ(namedFile(), utf8(kFile));
}

TEST_F(StipulationElsewhere, TheSameFileChosenAgainIsStillCheckedForChanges)
{
    makeOneThatFails();
    failsForTheFolder(Answer::Elsewhere);
    boxes.beforeItsAnswer([this](QMessageBox &) {
        ASSERT_TRUE(QDir().rmdir(utf8(kFile)));
        writeFile(kFile, two);
    });
    chooses(kFile, kFile);
    QString asked;
    boxes.catchQuestion(u"Stipulations Editor"_s, &asked, Answer::No);
    pressSave();
    EXPECT_TRUE(asked.contains(u"was changed by another program"_s)) << asked.toStdString();
    EXPECT_EQ(readBack(kFile), two);
}

TEST_F(StipulationElsewhere, TheChosenFileIsTheOneThatIsCheckedForChanges)
{
    makeOneThatFails();
    failsForTheFolder(Answer::Elsewhere);
    chooses("other.tvd");
    saveAtLast();
    writeFile("other.tvd", two);
    edit(0);
    QString asked;
    boxes.catchQuestion(u"Stipulations Editor"_s, &asked, Answer::No);
    press("Form3", "Command2");
    EXPECT_TRUE(asked.startsWith(u"The file \"other.tvd\" was changed by another program"_s))
        << asked.toStdString();
    EXPECT_EQ(readBack("other.tvd"), two);
}

TEST_F(StipulationElsewhere, OkKeepsEverything)
{
    makeOneThatFails();
    put("prominitials", "ABC");
    for (const Answer answer : {Answer::Ok, Answer::Enter, Answer::Escape, Answer::Close}) {
        failsForTheFolder(answer);
        pressSave();
        EXPECT_EQ(shown("stipulation"), u"Cage"_s);
        EXPECT_EQ(shown("prominitials"), u"ABC"_s);
        EXPECT_EQ(namedFile(), utf8(kFile));
        EXPECT_EQ(folderContent(), kFile);
    }
    cancel();
    EXPECT_EQ(listed(), Texts{"Singles / One"});
}

TEST_F(StipulationElsewhere, ACancelledDialogKeepsEverything)
{
    makeOneThatFails();
    failsForTheFolder(Answer::Elsewhere);
    dialogs.expect({u"."_s, u""_s, u"other.tvd"_s, /*saves=*/false});
    pressSave();
    EXPECT_EQ(shown("stipulation"), u"Cage"_s);
    EXPECT_EQ(namedFile(), utf8(kFile));
    EXPECT_EQ(folderContent(), kFile);
    cancel();
    EXPECT_EQ(listed(), Texts{"Singles / One"});
}

TEST_F(StipulationElsewhere, IsOfferedAgainWhenTheOtherFileFailsToo)
{
    makeOneThatFails();
    const QString second = QDir(folder.path()).canonicalPath() + u"/gone/x.tvd"_s;
    failsForTheFolder(Answer::Elsewhere);
    chooses("gone/x.tvd");
    const QString cause = u"The folder \"%1\" does not exist."_s.arg(QFileInfo(second).path());
    failsFor(second, qPrintable(cause), Answer::Elsewhere);
    chooses("other.tvd", "x.tvd");
    saveAtLast();
    EXPECT_EQ(readBack("other.tvd"), one + untouched("Cage"));
    EXPECT_EQ(namedFile(), u"other.tvd"_s);
}

TEST_F(StipulationElsewhere, OverwritesAFileOnlyIfTheUserSaysSo)
{
    makeOneThatFails();
    writeFile("other.tvd", two);
    failsForTheFolder(Answer::Elsewhere);
    chooses("other.tvd");
    isAskedAbout("other.tvd", Answer::Yes);
    saveAtLast();
    EXPECT_EQ(readBack("other.tvd"), one + untouched("Cage"));
}

TEST_F(StipulationElsewhere, LetsTheUserChooseAgainWhenAFileMustStay)
{
    for (const Answer answer : {Answer::No, Answer::Enter, Answer::Escape, Answer::Close}) {
        makeOneThatFails();
        writeFile("other.tvd", two);
        failsForTheFolder(Answer::Elsewhere);
        chooses("other.tvd");
        isAskedAbout("other.tvd", answer);
        chooses("third.tvd", "other.tvd");
        saveAtLast();
        EXPECT_EQ(readBack("other.tvd"), two);
        EXPECT_EQ(readBack("third.tvd"), one + untouched("Cage"));
        press("Form16", "Command3");
        ASSERT_TRUE(QDir().rmdir(utf8(kFile)) && QFile::remove(u"third.tvd"_s));
        editor.screens().setText({"Form1", "Text1"}, utf8(kFile));
    }
}

TEST_F(StipulationElsewhere, ASaveCancelledAfterTheQuestionLeavesTheFile)
{
    makeOneThatFails();
    writeFile("other.tvd", two);
    failsForTheFolder(Answer::Elsewhere);
    chooses("other.tvd");
    isAskedAbout("other.tvd", Answer::No);
    dialogs.expect({u"."_s, u"other.tvd"_s, u"x.tvd"_s, /*saves=*/false});
    pressSave();
    EXPECT_EQ(readBack("other.tvd"), two);
    EXPECT_EQ(namedFile(), utf8(kFile));
}

TEST_F(StipulationElsewhere, TheNameGetsItsExtensionBeforeTheQuestion)
{
    for (const char *typed : {"other", "other.TVD", "other.tvd"}) {
        makeOneThatFails();
        writeFile("other.tvd", two);
        failsForTheFolder(Answer::Elsewhere);
        chooses(typed);
        isAskedAbout("other.tvd", Answer::Yes);
        saveAtLast();
        EXPECT_EQ(namedFile(), u"other.tvd"_s);
        EXPECT_EQ(readBack("other.tvd"), one + untouched("Cage"));
        press("Form16", "Command3");
        ASSERT_TRUE(QDir().rmdir(utf8(kFile)));
        editor.screens().setText({"Form1", "Text1"}, utf8(kFile));
    }
}

} // namespace
} // namespace tarvold::testing
