// The list of files to import from.

#include "import/import_test.h"

#include <QFile>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class ImportFiles : public ImportTest
{
protected:
    void chooseKind()
    {
        enter();
        press("Form2", "Command6");
    }

    void cancelAndChooseAgain()
    {
        press("Form2", "Command9");
        press("Form2", "Command6");
    }
};

TEST_F(ImportFiles, AreExactlyThoseThatEndInTheExtensionSorted)
{
    for (const char *name : {"b.tvd", "a.tvd", "c.TVD", "d.Tvd", "e.tvd.bak", "f.tvdx", "tvd",
                             "g.txt", ".tvd", ".hidden.tvd", "B.tvd", "two words.tvd"}) {
        putBytes(QLatin1StringView(name), {});
    }
    chooseKind();
    EXPECT_EQ(listed(), QStringList({u".hidden.tvd"_s, u".tvd"_s, u"B.tvd"_s, u"a.tvd"_s,
                                     u"b.tvd"_s, u"two words.tvd"_s}));
}

TEST_F(ImportFiles, AreNeitherFoldersNorPipesNorLinksThatLeadNowhere)
{
    QDir().mkdir(u"folder.tvd"_s);
    ASSERT_EQ(::mkfifo("pipe.tvd", 0600), 0);
    ASSERT_EQ(::symlink("nowhere", "dangling.tvd"), 0);
    ASSERT_EQ(::symlink("folder.tvd", "folderlink.tvd"), 0);
    putBytes(u"plain.txt"_s, {});
    ASSERT_EQ(::symlink("plain.txt", "link.tvd"), 0);
    chooseKind();
    EXPECT_EQ(listed(), QStringList(u"link.tvd"_s));
}

TEST_F(ImportFiles, AreThoseOfTheCurrentFolderOnly)
{
    QDir().mkdir(u"sub"_s);
    putBytes(u"sub/a.tvd"_s, {});
    chooseKind();
    EXPECT_EQ(listed(), QStringList());
}

TEST_F(ImportFiles, AreReadAgainForEveryKind)
{
    putBytes(u"old.tvd"_s, {});
    chooseKind();
    EXPECT_EQ(listed(), QStringList(u"old.tvd"_s));
    press("Form2", "Command9");
    press("Form2", "Command1");
    putBytes(u"new.tvd"_s, {});
    ASSERT_TRUE(QFile::remove(u"old.tvd"_s));
    chooseKind();
    EXPECT_EQ(listed(), QStringList(u"new.tvd"_s));
}

TEST_F(ImportFiles, KeepTheSelectionWhileItsFileIsThere)
{
    putBytes(u"m.tvd"_s, {});
    putBytes(u"z.tvd"_s, {});
    chooseKind();
    select(u"m.tvd"_s);
    putBytes(u"a.tvd"_s, {});
    cancelAndChooseAgain();
    EXPECT_EQ(selected(), u"m.tvd"_s);
    ASSERT_TRUE(QFile::remove(u"m.tvd"_s));
    cancelAndChooseAgain();
    EXPECT_EQ(selected(), QString());
    EXPECT_FALSE(files().currentIndex().isValid());
}

TEST_F(ImportFiles, LookUnselectedUntilOneIsSelected)
{
    putBytes(u"a.tvd"_s, {});
    chooseKind();
    EXPECT_TRUE(files().hasFocus());
    EXPECT_FALSE(files().currentIndex().isValid());
    EXPECT_EQ(selected(), QString());
    cancelAndChooseAgain();
    EXPECT_FALSE(files().currentIndex().isValid());
    files().window()->activateWindow();
    QTest::keyClick(&files(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_TRUE(files().hasFocus());
    EXPECT_FALSE(files().currentIndex().isValid());
    EXPECT_EQ(selected(), QString());
}

TEST_F(ImportFiles, CannotBeRenamedInTheList)
{
    putBytes(u"a.tvd"_s, {});
    chooseKind();
    select(u"a.tvd"_s);
    QTest::keyClick(&files(), Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), u"b"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    boxes.checkAllCame();
    EXPECT_EQ(listed(), QStringList(u"a.tvd"_s));
    EXPECT_TRUE(QFile::exists(u"a.tvd"_s));
}

TEST_F(ImportFiles, ShowMarkupInTheirNamesAsText)
{
    putBytes(u"<b>&amp;.tvd"_s, recordOf(19));
    chooseKind();
    select(u"<b>&amp;.tvd"_s);
    import();
    EXPECT_EQ(bytesIn(u"interviews.tvd"_s), recordOf(19));
}

TEST_F(ImportFiles, AreOnlySelectedOneAtATime)
{
    putBytes(u"a.tvd"_s, {});
    putBytes(u"b.tvd"_s, {});
    chooseKind();
    select(u"a.tvd"_s);
    QTest::keyClick(&files(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(files().selectionModel()->selectedIndexes().size(), 1);
    EXPECT_EQ(selected(), u"b.tvd"_s);
}

} // namespace
} // namespace tarvold::testing
