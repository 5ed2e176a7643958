// The list of files to import from.

#include "import/import_test.h"

#include <QFile>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

namespace tarvold::testing {
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
    EXPECT_EQ(listed(), QStringList({QStringLiteral(".hidden.tvd"), QStringLiteral(".tvd"),
                                     QStringLiteral("B.tvd"), QStringLiteral("a.tvd"),
                                     QStringLiteral("b.tvd"), QStringLiteral("two words.tvd")}));
}

TEST_F(ImportFiles, AreNeitherFoldersNorPipesNorLinksThatLeadNowhere)
{
    QDir().mkdir(QStringLiteral("folder.tvd"));
    ASSERT_EQ(::mkfifo("pipe.tvd", 0600), 0);
    ASSERT_EQ(::symlink("nowhere", "dangling.tvd"), 0);
    ASSERT_EQ(::symlink("folder.tvd", "folderlink.tvd"), 0);
    putBytes(QStringLiteral("plain.txt"), {});
    ASSERT_EQ(::symlink("plain.txt", "link.tvd"), 0);
    chooseKind();
    EXPECT_EQ(listed(), QStringList(QStringLiteral("link.tvd")));
}

TEST_F(ImportFiles, AreThoseOfTheCurrentFolderOnly)
{
    QDir().mkdir(QStringLiteral("sub"));
    putBytes(QStringLiteral("sub/a.tvd"), {});
    chooseKind();
    EXPECT_EQ(listed(), QStringList());
}

TEST_F(ImportFiles, AreReadAnewWithEveryKind)
{
    putBytes(QStringLiteral("old.tvd"), {});
    chooseKind();
    EXPECT_EQ(listed(), QStringList(QStringLiteral("old.tvd")));
    press("Form2", "Command9");
    press("Form2", "Command1");
    putBytes(QStringLiteral("new.tvd"), {});
    ASSERT_TRUE(QFile::remove(QStringLiteral("old.tvd")));
    chooseKind();
    EXPECT_EQ(listed(), QStringList(QStringLiteral("new.tvd")));
}

TEST_F(ImportFiles, KeepTheSelectionWhileItsFileIsThere)
{
    putBytes(QStringLiteral("m.tvd"), {});
    putBytes(QStringLiteral("z.tvd"), {});
    chooseKind();
    select(QStringLiteral("m.tvd"));
    putBytes(QStringLiteral("a.tvd"), {});
    cancelAndChooseAgain();
    EXPECT_EQ(selected(), QStringLiteral("m.tvd"));
    ASSERT_TRUE(QFile::remove(QStringLiteral("m.tvd")));
    cancelAndChooseAgain();
    EXPECT_EQ(selected(), QString());
    EXPECT_FALSE(files().currentIndex().isValid());
}

TEST_F(ImportFiles, LookUnselectedUntilOneIsSelected)
{
    putBytes(QStringLiteral("a.tvd"), {});
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
    putBytes(QStringLiteral("a.tvd"), {});
    chooseKind();
    select(QStringLiteral("a.tvd"));
    QTest::keyClick(&files(), Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("b"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    boxes.checkAllCame();
    EXPECT_EQ(listed(), QStringList(QStringLiteral("a.tvd")));
    EXPECT_TRUE(QFile::exists(QStringLiteral("a.tvd")));
}

TEST_F(ImportFiles, ShowMarkupInTheirNamesAsText)
{
    putBytes(QStringLiteral("<b>&amp;.tvd"), recordOf(19));
    chooseKind();
    select(QStringLiteral("<b>&amp;.tvd"));
    import();
    EXPECT_EQ(bytesIn(QStringLiteral("interviews.tvd")), recordOf(19));
}

TEST_F(ImportFiles, AreOnlySelectedOneAtATime)
{
    putBytes(QStringLiteral("a.tvd"), {});
    putBytes(QStringLiteral("b.tvd"), {});
    chooseKind();
    select(QStringLiteral("a.tvd"));
    QTest::keyClick(&files(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(files().selectionModel()->selectedIndexes().size(), 1);
    EXPECT_EQ(selected(), QStringLiteral("b.tvd"));
}

} // namespace
} // namespace tarvold::testing
