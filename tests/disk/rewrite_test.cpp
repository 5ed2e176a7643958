#include "disk/rewrite.h"
#include "support/folder_test.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

QString name()
{
    return u"a.tvd"_s;
}

using Rewrite = FolderTest;

TEST_F(Rewrite, CreatesAMissingFile)
{
    EXPECT_TRUE(rewriteFile(name(), "new"));
    EXPECT_EQ(readBack("a.tvd"), "new");
}

TEST_F(Rewrite, PutsTheNewBytesInPlaceOfTheOldOnes)
{
    writeFile("a.tvd", "old and longer");
    EXPECT_TRUE(rewriteFile(name(), "new"));
    EXPECT_EQ(readBack("a.tvd"), "new");
    EXPECT_TRUE(rewriteFile(name(), ""));
    EXPECT_EQ(readBack("a.tvd"), "");
}

TEST_F(Rewrite, LeavesNoTemporaryFile)
{
    writeFile("a.tvd", "old");
    EXPECT_TRUE(rewriteFile(name(), "new"));
    EXPECT_EQ(folderContent(), "a.tvd");
}

TEST_F(Rewrite, ReplacesAFileThatHoldsWhatIsKnown)
{
    for (const qsizetype size : {0, 1, 65535, 65536, 65537, 200000}) { // around whole blocks
        const QByteArray old(size, 'x');
        writeFile("a.tvd", old);
        EXPECT_TRUE(rewriteFile(name(), "new", old)) << size;
        EXPECT_EQ(readBack("a.tvd"), "new") << size;
    }
}

TEST_F(Rewrite, LeavesAFileThatHoldsAnythingElse)
{
    const QByteArray old(100000, 'x');
    QByteArray other = old;
    other.back() = 'y';
    const QByteArrayList others = {other, old + 'x', old.chopped(1), QByteArray()};
    for (const QByteArray &known : others) {
        writeFile("a.tvd", old);
        const auto saved = rewriteFile(name(), "new", known);
        ASSERT_FALSE(saved);
        EXPECT_EQ(saved.error().outcome, FileOutcome::ChangedByAnother);
        EXPECT_EQ(saved.error().cause.toStdString(), "Another program changed it.");
        EXPECT_EQ(readBack("a.tvd"), old);
        EXPECT_EQ(folderContent(), "a.tvd");
    }
}

TEST_F(Rewrite, CreatesAgainAFileThatIsGone)
{
    EXPECT_TRUE(rewriteFile(name(), "new", QByteArrayView("old")));
    EXPECT_EQ(readBack("a.tvd"), "new");
}

TEST_F(Rewrite, RefusesWhatIsNoOrdinaryFile)
{
    ASSERT_TRUE(QDir().mkdir(u"folder"_s));
    for (const char *unfit : {"", "folder", "missing/a.tvd"}) {
        const auto saved = rewriteFile(QString::fromLatin1(unfit), "new");
        ASSERT_FALSE(saved) << unfit;
        EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
        EXPECT_FALSE(saved.error().cause.isEmpty());
    }
    EXPECT_EQ(folderContent(), "folder");
}

} // namespace
} // namespace tarvold::testing
