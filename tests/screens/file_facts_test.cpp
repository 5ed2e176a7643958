#include "screens/file_facts.h"
#include "screens/main_menu.h"
#include "support/flow_test.h"
#include "support/hindrances.h"
#include "support/tool_tips.h"

#include <QDir>
#include <QLineEdit>

#include <sys/stat.h>
#include <unistd.h>

/// Which file a box or a button means, and what is in it.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class FileFactsTest : public FlowTest
{
protected:
    QString path(const QString &name) const
    {
        return QDir::toNativeSeparators(QDir(QDir::currentPath()).filePath(name));
    }

    QString tip(const char *box) { return toolTipOf(control("Form1", box)).value_or(QString()); }

    /// Expects that the tooltip of a box soon has this second line below the path. The description
    /// tells the same, or leaves out the keys.
    void expectState(const char *box, const QString &name, const QString &state)
    {
        const QString expected = path(name) + u'\n' + state;
        EXPECT_TRUE(QTest::qWaitFor([&] { return tip(box) == expected; }))
            << tip(box).toStdString() << "\ninstead of\n"
            << expected.toStdString();
        const QString described = path(name) + u". "_s + state;
        const QString brief = QString(described).remove(kKeys);
        EXPECT_TRUE(description(box) == described || description(box) == brief)
            << description(box).toStdString();
    }

    QString description(const char *box) { return control("Form1", box).accessibleDescription(); }

    static QString counted(int count) { return u"Records: %1"_s.arg(count) + kKeys; }

    /// Shows the main menu anew.
    void comeBack()
    {
        screen("Form1").hide();
        screen("Form1").show();
    }

    inline static const QString kKeys = u". Ctrl+O shows them."_s;

    static QByteArray records(int count) { return QByteArray("line\r\n").repeated(36 * count); }
};

TEST_F(FileFactsTest, ABoxTellsThatItsFileDoesNotExistYet)
{
    expectState("Text3", u"normreports.tvd"_s, u"The file does not exist yet."_s);
}

TEST_F(FileFactsTest, ABoxTellsHowManyRecordsAreInItsFileWhenTheMenuComesBack)
{
    putBytes(u"normreports.tvd"_s, records(2));
    comeBack();
    expectState("Text3", u"normreports.tvd"_s, counted(2));
    putBytes(u"normreports.tvd"_s, records(3));
    comeBack();
    expectState("Text3", u"normreports.tvd"_s, counted(3));
}

TEST_F(FileFactsTest, EachKindOfFileHasItsOwnLengthOfRecords)
{
    for (const DataFileKindRow &kind : kDataFileKinds) {
        putBytes(QLatin1StringView(kind.defaultName), recordOf(4 * kind.linesPerRecord()));
    }
    comeBack();
    for (const DataFileKindRow &kind : kDataFileKinds) {
        expectState(Form1::fileNameBox(kind.kind).control, QLatin1StringView(kind.defaultName),
                    counted(4));
    }
}

TEST_F(FileFactsTest, ASavedRecordCounts)
{
    goToCommentary(kNormalPath);
    type("Form7", "Text1", u"The end."_s);
    save(kNormalPath);
    expectState("Text3", u"normreports.tvd"_s, counted(1));
}

TEST_F(FileFactsTest, ABoxFollowsItsText)
{
    putBytes(u"mine.tvd"_s, records(1));
    type("Form1", "Text3", u"mine.tvd"_s);
    EXPECT_EQ(tip("Text3"), path(u"mine.tvd"_s)); // nothing waits for the file
    expectState("Text3", u"mine.tvd"_s, counted(1));
    type("Form1", "Text3", u"no/such.tvd"_s);
    expectState("Text3", u"no/such.tvd"_s, u"The folder does not exist."_s);
}

TEST_F(FileFactsTest, ASlashBehindTheNameOfAFileIsNotThatFile)
{
    putBytes(u"mine.tvd"_s, records(1));
    for (const QString &name : {u"mine.tvd/"_s, u"mine.tvd/."_s}) {
        type("Form1", "Text3", name); // the system finds nothing there
        expectState("Text3", u"mine.tvd/"_s, u"The folder does not exist."_s);
    }
}

TEST_F(FileFactsTest, TheDescriptionChangesOnlyWhenTheUserHasStoppedTyping)
{
    // Screen readers read it out at each change.
    expectState("Text3", u"normreports.tvd"_s, u"The file does not exist yet."_s);
    QWidget &box = control("Form1", "Text3");
    type("Form1", "Text3", {});
    for (const QChar letter : u"mine.tvd"_s) {
        QTest::keyClick(&box, letter.toLatin1());
        EXPECT_EQ(box.accessibleDescription(), QString());
    }
    expectState("Text3", u"mine.tvd"_s, u"The file does not exist yet."_s);
}

TEST_F(FileFactsTest, TheDescriptionStaysWhenTheMenuComesBackAndAllIsAsItWas)
{
    expectState("Text3", u"normreports.tvd"_s, u"The file does not exist yet."_s);
    const QString before = control("Form1", "Text3").accessibleDescription();
    comeBack();
    EXPECT_EQ(control("Form1", "Text3").accessibleDescription(), before);
    expectState("Text3", u"normreports.tvd"_s, u"The file does not exist yet."_s);
}

TEST_F(FileFactsTest, TheFolderAboveALinkedOneIsNotTheFolderOfTheLink)
{
    // far/near is linked as "link": the folder above it is "far", not the one with the link.
    ASSERT_TRUE(QDir().mkpath(u"far/near"_s));
    ASSERT_TRUE(QFile::link(u"far/near"_s, u"link"_s));
    putBytes(u"far/mine.tvd"_s, records(2));
    type("Form1", "Text3", u"link/../mine.tvd"_s);
    expectState("Text3", u"link/../mine.tvd"_s, counted(2));
    goToCommentary(kNormalPath);
    EXPECT_EQ(toolTipOf(control("Form7", "Command1")),
              u"Adds to %1 (Ctrl+S)"_s.arg(path(u"link/../mine.tvd"_s)));
    type("Form7", "Text1", u"The end."_s);
    save(kNormalPath);
    EXPECT_GT(QFileInfo(u"far/mine.tvd"_s).size(), records(2).size());
    EXPECT_FALSE(QFile::exists(u"mine.tvd"_s));
    expectState("Text3", u"link/../mine.tvd"_s, counted(3));
}

TEST_F(FileFactsTest, APathIsShownWithoutNeedlessParts)
{
    const QString here = QDir::currentPath();
    const QString above = here.first(here.lastIndexOf(u'/'));
    const QList<std::pair<QString, QString>> expected = {
        {u"./a//b/./c.tvd"_s, here + u"/a/b/c.tvd"_s},
        {u"../c.tvd"_s, above + u"/c.tvd"_s},
        {u"../"_s.repeated(99) + u"c.tvd"_s, u"/c.tvd"_s},
        {u"../a/../../c.tvd"_s, above + u"/a/../../c.tvd"_s},
        {u"/../c.tvd"_s, u"/c.tvd"_s},
        {u"/a/./../c.tvd"_s, u"/a/../c.tvd"_s},
        {u":c.tvd"_s, here + u"/:c.tvd"_s},
        {u"a//c.tvd/"_s, here + u"/a/c.tvd/"_s},
        {u"a/c.tvd/."_s, here + u"/a/c.tvd/"_s},
        {u"a/c.tvd/./"_s, here + u"/a/c.tvd/"_s},
        {u"a/.tvd."_s, here + u"/a/.tvd."_s},
        {u"/"_s, u"/"_s},
        {QString(), QString()},
    };
    for (const auto &[name, whole] : expected) {
        EXPECT_EQ(filefacts::wholePath(name), whole);
    }
}

TEST_F(FileFactsTest, TheCurrentFolderIsToldWithoutItsLinks)
{
    ASSERT_TRUE(QDir().mkpath(u"far/near"_s));
    ASSERT_TRUE(QFile::link(u"far/near"_s, u"link"_s));
    const QString far = path(u"far"_s);
    const QByteArray oldPwd = qgetenv("PWD");
    qputenv("PWD", QFile::encodeName(path(u"link"_s))); // as a shell does
    ASSERT_TRUE(QDir::setCurrent(u"link"_s));
    EXPECT_EQ(filefacts::wholePath(u"../mine.tvd"_s), QString(far + u"/mine.tvd"_s));
    qputenv("PWD", oldPwd);
}

TEST_F(FileFactsTest, ScreenReadersHearOfTheKeysUntilTheUserLeavesABoxThatTellsThem)
{
    putBytes(u"normreports.tvd"_s, records(2));
    putBytes(u"interviews.tvd"_s, recordOf(19));
    comeBack();
    expectState("Text3", u"normreports.tvd"_s, counted(2));
    expectState("Text6", u"interviews.tvd"_s, counted(1));
    EXPECT_TRUE(description("Text3").endsWith(kKeys));
    EXPECT_TRUE(description("Text6").endsWith(kKeys));
    click(control("Form1", "Text1")); // whose file is missing
    click(control("Form1", "Text3"));
    EXPECT_TRUE(description("Text3").endsWith(kKeys));
    click(control("Form1", "Text6"));
    EXPECT_TRUE(description("Text3").endsWith(u". Records: 2"_s));
    EXPECT_TRUE(description("Text6").endsWith(u". Records: 1"_s));
    comeBack();
    expectState("Text3", u"normreports.tvd"_s, counted(2)); // the tooltip tells them for ever
    EXPECT_TRUE(description("Text3").endsWith(u". Records: 2"_s));
}

TEST_F(FileFactsTest, AnEmptyFileHasNothingToShow)
{
    putBytes(u"normreports.tvd"_s, {});
    comeBack();
    expectState("Text3", u"normreports.tvd"_s, u"Records: 0"_s);
}

/// What is told of a file to a user whom file permissions bind.
class UnreadableFile : public FileFactsTest
{
protected:
    static bool isTold(const QString &name, const QString &expected)
    {
        return holdsForOrdinaryUser([&] {
            return filefacts::stateOf(name, DataFileKind::NormalEndings).text() == expected;
        });
    }

    const QString kDenied = u"You have no permission to read the file."_s;
};

TEST_F(UnreadableFile, IsNoMissingOne)
{
    putBytes(u"normreports.tvd"_s, records(1));
    ASSERT_EQ(::chmod(".", 0755), 0);
    ASSERT_EQ(::chmod("normreports.tvd", ::geteuid() == 0 ? 0600 : 0), 0);
    EXPECT_TRUE(isTold(u"normreports.tvd"_s, kDenied));
    EXPECT_TRUE(isTold(u"other.tvd"_s, u"The file does not exist yet."_s));
}

TEST_F(UnreadableFile, IsNotMissingInAFolderThatNobodyMayLookInto)
{
    ASSERT_TRUE(QDir().mkpath(u"locked/folder"_s));
    ASSERT_EQ(::chmod(".", 0755), 0);
    ASSERT_EQ(::chmod("locked", 0), 0);
    EXPECT_TRUE(isTold(u"locked/x.tvd"_s, kDenied));
    EXPECT_TRUE(isTold(u"locked/folder/x.tvd"_s, kDenied));
    ASSERT_EQ(::chmod("locked", 0755), 0);
}

TEST_F(FileFactsTest, AFileThatIsNotWholeIsTold)
{
    putBytes(u"normreports.tvd"_s, records(1) + "line\r\n");
    comeBack();
    expectState("Text3", u"normreports.tvd"_s,
                u"Not a whole number of records. It breaks off at line 37, inside record 2: each "
                "record takes 36 lines (lines found: 37). Ctrl+O shows what to repair."_s);
}

TEST_F(FileFactsTest, WhatIsNoFileIsTold)
{
    QDir().mkdir(u"folder"_s);
    type("Form1", "Text3", u"folder"_s);
    expectState("Text3", u"folder"_s, u"It is a folder."_s);
    type("Form1", "Text3", {});
    EXPECT_TRUE(QTest::qWaitFor([this] { return tip("Text3") == u"The file name is empty."_s; }));
}

TEST_F(FileFactsTest, APipeIsNotWaitedFor)
{
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    type("Form1", "Text3", u"pipe"_s);
    expectState("Text3", u"pipe"_s, u"It is not an ordinary file."_s);
}

TEST_F(FileFactsTest, ALargeFileIsNotRead)
{
    QFile file(u"normreports.tvd"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(qint64(17) * 1024 * 1024));
    file.close();
    comeBack();
    expectState("Text3", u"normreports.tvd"_s,
                u"Its records are not counted, as it is larger than 16 MB. Ctrl+O shows them."_s);
}

TEST_F(FileFactsTest, NoMarkupInANameIsTakenForIt)
{
    type("Form1", "Text3", u"<b>x.tvd"_s);
    expectState("Text3", u"<b>x.tvd"_s, u"The file does not exist yet."_s);
}

TEST_F(FileFactsTest, ALongNameIsToldOnce)
{
    const QString name = QString(120, u'n') + u".tvd"_s;
    type("Form1", "Text3", name);
    expectState("Text3", name, u"The file does not exist yet."_s);
}

class Target : public FileFactsTest, public ::testing::WithParamInterface<const FlowPath *>
{
};

TEST_P(Target, TheSaveButtonTellsTheWholePathOfItsFile)
{
    const FlowPath &flow = *GetParam();
    const char *last = flow.screens.back();
    goToCommentary(flow);
    const QString expected = u"Adds to %1 (Ctrl+S)"_s.arg(path(QLatin1StringView(flow.file)));
    EXPECT_EQ(toolTipOf(control(last, "Command1")), expected);
    EXPECT_EQ(control(last, "Command1").accessibleDescription(), expected);
}

TEST_P(Target, TheSaveButtonFollowsTheNameOnTheMainMenu)
{
    const FlowPath &flow = *GetParam();
    const char *last = flow.screens.back();
    given("Form1", flow.fileBox, u"my <b>files</b>/mine.tvd"_s);
    goToCommentary(flow);
    EXPECT_EQ(toolTipOf(control(last, "Command1")),
              u"Adds to %1 (Ctrl+S)"_s.arg(path(u"my <b>files</b>/mine.tvd"_s)));
    goBack(flow);
    given("Form1", flow.fileBox, {});
    goToCommentary(flow);
    EXPECT_EQ(toolTipOf(control(last, "Command1")), u"The file name is empty. (Ctrl+S)"_s);
}

INSTANTIATE_TEST_SUITE_P(Flows, Target,
                         ::testing::Values(&kNormalPath, &kRunInPath, &kTurnPath, &kInterviewPath,
                                           &kTalkShowPath),
                         [](const auto &path) { return path.param->button; });

} // namespace
} // namespace tarvold::testing
