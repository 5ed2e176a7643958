// Tests of the screens with what is not a data file: an error names the file and the cause, and
// nothing changes.

#include "import/import_test.h"
#include "odd/odd_files.h"
#include "stipulations/stipulation_test.h"
#include "support/flow_test.h"
#include "support/hindrances.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>

#include <sys/stat.h>
#include <unistd.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class OddFileOnScreens : public ImportTest, public ::testing::WithParamInterface<OddFile>
{
public:
    OddFileOnScreens()
    {
        ::alarm(60); // opening a pipe or reading a device could block forever
        EXPECT_TRUE(odd.make());
        putBytes(source(), recordOf(19));
        before = wholeFolder();
    }
    ~OddFileOnScreens() override { ::alarm(0); }

protected:
    static QString source() { return u"source.tvd"_s; }

    void name(ControlRef box) { editor.screens().setText(box, odd.file); }

    /// Presses a button and expects an error message about the odd file, and no changes.
    void expectRefusal(ControlRef button, const QString &title)
    {
        QString message;
        boxes.catchNotice(title, &message);
        press(button.screen, button.control);
        expectNothingChanged(button.screen, message);
    }

    /// Fails unless the message names the odd file and its cause and nothing has changed.
    void expectNothingChanged(const char *screen, const QString &message)
    {
        // The whole path, unless the cause tells that of the folder, or nothing can have this name.
        const QFileInfo file(QDir::current().absoluteFilePath(odd.file));
        const bool isAsTyped = message.contains(u"\n\nThe folder \"%1\""_s.arg(file.path())) ||
                               message.contains(u"no file name can have"_s);
        const QString named = isAsTyped ? odd.file : file.filePath();
        EXPECT_TRUE(message.contains(u'"' + named + u'"') || message.contains(u"[...]"_s))
            << message.toStdString();
        EXPECT_TRUE(message.contains(utf8(odd.cause))) << message.toStdString();
        expectOnly(screen);
        EXPECT_EQ(wholeFolder(), before);
    }

    void expectRefusalAsStipulationsFile()
    {
        name({"Form1", "Text1"});
        expectRefusal({"Form1", "Command1"}, u"Stipulations Editor"_s);
    }

    /// Also expects that the file is not listed as an import source.
    void expectRefusalAsImportTarget(const char *kind)
    {
        enter();
        press("Form2", kind);
        EXPECT_EQ(listed(), QStringList(source()));
        select(source());
        name({"Form2", "Text1"});
        expectRefusal({"Form2", "Command8"}, u"Import"_s);
        expectStage2();
        press("Form2", "Command9");
        press("Form2", "Command1");
    }

    void expectRefusalWhereARecordIsSaved()
    {
        name({"Form1", kInterviewPath.fileBox});
        press("Form1", kInterviewPath.button);
        press("Form12", "Command2");
        type("Form13", "Text1", u"The end."_s);
        boxes.expectQuestion(title(), utf8(kInterviewPath.question), Answer::Yes);
        QString message;
        boxes.catchFailedSave(title(), &message);
        press("Form13", "Command1");
        expectNothingChanged("Form13", message);
        EXPECT_EQ(text("Form13", "Text1"), u"The end."_s);
    }

    const OddFile &odd = GetParam();
    std::string before;
};

TEST_P(OddFileOnScreens, IsRefusedInEveryUseAndNothingChanges)
{
    expectRefusalAsStipulationsFile();
    expectRefusalAsImportTarget("Command4");
    expectRefusalAsImportTarget("Command6");
    expectRefusalWhereARecordIsSaved();
}

INSTANTIATE_TEST_SUITE_P(, OddFileOnScreens, ::testing::ValuesIn(oddFiles()), kNameOfRow);

using FileOnScreens = ImportTest;

TEST_F(FileOnScreens, ThatAPipeReplacedAfterListingIsRefused)
{
    putBytes(u"x.tvd"_s, recordOf(19));
    enter();
    press("Form2", "Command6");
    select(u"x.tvd"_s);
    ASSERT_TRUE(QFile::remove(u"x.tvd"_s));
    ASSERT_EQ(::mkfifo("x.tvd", 0600), 0);
    ::alarm(60);
    QString message;
    boxes.catchNotice(u"Import"_s, &message);
    press("Form2", "Command8");
    ::alarm(0);
    EXPECT_TRUE(message.contains(u"It is not an ordinary file."_s)) << message.toStdString();
    EXPECT_EQ(folderContent(), "x.tvd");
}

TEST_F(FileOnScreens, WithANulInItsNameIsRefusedAndTheShorterNameNotUsed)
{
    putBytes(u"x"_s, "not to be touched");
    const std::string before = wholeFolder();
    const QString name = u"x"_s + QChar(0) + u".tvd"_s;
    QGuiApplication::clipboard()->setText(name);
    auto &box = screen("Form1").control<QLineEdit>("Text1");
    click(box);
    box.selectAll();
    QTest::keySequence(&box, QKeySequence::Paste);
    EXPECT_EQ(box.text(), name);
    QString message;
    boxes.catchNotice(u"Stipulations Editor"_s, &message);
    press("Form1", "Command1");
    EXPECT_TRUE(message.contains(u"no file name can have"_s)) << message.toStdString();
    EXPECT_EQ(wholeFolder(), before);
}

TEST_F(FileOnScreens, WithAnUndecodableNameIsNotListed)
{
    putBytes(u"x.tvd"_s, recordOf(19));
    ASSERT_EQ(::rename("x.tvd", "\xE9.tvd"), 0);
    enter();
    press("Form2", "Command6");
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(::remove("\xE9.tvd"), 0);
}

TEST_F(FileOnScreens, WithoutReadPermissionIsRefusedOnTheMenuAndAtTheImport)
{
    putBytes(u"x.tvd"_s, recordOf(19));
    ASSERT_EQ(::chmod(".", 0777), 0);
    ASSERT_EQ(::chmod("x.tvd", 0000), 0);
    const auto denied = u"You have no permission to read the file."_s;
    EXPECT_TRUE(holdsForOrdinaryUser([&] {
        QString onMenu;
        editor.screens().setText({"Form1", "Text1"}, u"x.tvd"_s);
        boxes.catchNotice(u"Stipulations Editor"_s, &onMenu);
        press("Form1", "Command1");
        enter();
        press("Form2", "Command6");
        select(u"x.tvd"_s);
        QString atImport;
        boxes.catchNotice(u"Import"_s, &atImport);
        press("Form2", "Command8");
        return onMenu.contains(denied) && atImport.contains(denied) && !HasFailure();
    }));
    ASSERT_EQ(::chmod("x.tvd", 0644), 0);
    EXPECT_EQ(bytesOf(u"x.tvd"_s), recordOf(19));
    EXPECT_EQ(folderContent(), "x.tvd");
}

} // namespace
} // namespace tarvold::testing
