#include "datafiles/rewrite.h"
#include "support/folder_test.h"
#include "support/hindrances.h"

#include <sys/stat.h>

namespace tarvold::testing {
namespace {

QString name()
{
    return QStringLiteral("a.tvd");
}

mode_t modeOf(const char *file)
{
    struct stat status = {};
    EXPECT_EQ(stat(file, &status), 0);
    return status.st_mode & 07777U;
}

using Rewrite = FolderTest;

TEST_F(Rewrite, CreatesAMissingFile)
{
    EXPECT_FALSE(rewriteFile(name(), "new"));
    EXPECT_EQ(readBack("a.tvd"), "new");
}

TEST_F(Rewrite, PutsTheNewBytesInPlaceOfTheOldOnes)
{
    writeFile("a.tvd", "old and longer");
    EXPECT_FALSE(rewriteFile(name(), "new"));
    EXPECT_EQ(readBack("a.tvd"), "new");
    EXPECT_FALSE(rewriteFile(name(), ""));
    EXPECT_EQ(readBack("a.tvd"), "");
}

TEST_F(Rewrite, LeavesNoTemporaryFile)
{
    writeFile("a.tvd", "old");
    EXPECT_FALSE(rewriteFile(name(), "new"));
    EXPECT_EQ(folderContent(), "a.tvd");
}

TEST_F(Rewrite, LetsWhoReadsTheOldFileReadItToItsEnd)
{
    writeFile("a.tvd", "old");
    QFile reader(name());
    ASSERT_TRUE(reader.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    EXPECT_FALSE(rewriteFile(name(), "new"));
    EXPECT_EQ(reader.readAll(), "old");
}

TEST_F(Rewrite, KeepsTheModeOfTheFile)
{
    for (const mode_t mode : {0600U, 0640U, 0664U, 0755U}) {
        writeFile("a.tvd", "old");
        ASSERT_EQ(chmod("a.tvd", mode), 0);
        EXPECT_FALSE(rewriteFile(name(), "new"));
        EXPECT_EQ(modeOf("a.tvd"), mode);
    }
}

TEST_F(Rewrite, WritesThroughASymbolicLink)
{
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("elsewhere")));
    writeFile("elsewhere/target", "old");
    ASSERT_EQ(symlink("elsewhere/target", "a.tvd"), 0);
    EXPECT_FALSE(rewriteFile(name(), "new"));
    EXPECT_TRUE(QFileInfo(name()).isSymLink());
    EXPECT_EQ(readBack("elsewhere/target"), "new");
    EXPECT_EQ(folderContent(), "a.tvd elsewhere");
}

TEST_F(Rewrite, TakesANameThatStartsWithAColonAsAnOrdinaryOne)
{
    EXPECT_FALSE(rewriteFile(QStringLiteral(":a.tvd"), "new"));
    EXPECT_EQ(folderContent(), ":a.tvd");
}

TEST_F(Rewrite, ReplacesAFileThatHoldsWhatIsKnown)
{
    for (const qsizetype size : {0, 1, 65535, 65536, 65537, 200000}) { // around whole blocks
        const QByteArray old(size, 'x');
        writeFile("a.tvd", old);
        EXPECT_FALSE(rewriteFile(name(), "new", old)) << size;
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
        const auto error = rewriteFile(name(), "new", known);
        ASSERT_TRUE(error);
        EXPECT_TRUE(error->outdated);
        EXPECT_TRUE(error->unchanged);
        EXPECT_EQ(error->cause.toStdString(), "Another program changed it.");
        EXPECT_EQ(readBack("a.tvd"), old);
        EXPECT_EQ(folderContent(), "a.tvd");
    }
}

TEST_F(Rewrite, MakesAFileAnewThatIsGone)
{
    EXPECT_FALSE(rewriteFile(name(), "new", QByteArrayView("old")));
    EXPECT_EQ(readBack("a.tvd"), "new");
}

TEST_F(Rewrite, LeavesAFileThatMustNotBeRead)
{
    writeFile("a.tvd", "old");
    ASSERT_EQ(chmod("a.tvd", 0222), 0);
    ASSERT_EQ(chmod(".", 0777), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const auto error = rewriteFile(name(), "new", QByteArrayView("old"));
        return error && error->unchanged && !error->outdated && !error->cause.isEmpty();
    }));
    EXPECT_EQ(readBack("a.tvd"), "old");
}

TEST_F(Rewrite, LeavesTheOldFileWhenTheNewOneDoesNotFit)
{
    writeFile("a.tvd", "old");
    std::optional<FileError> error;
    {
        const FileSizeLimit limit(1000);
        error = rewriteFile(name(), QByteArray(100000, 'x'));
    }
    ASSERT_TRUE(error);
    EXPECT_EQ(error->cause.toStdString(), "File too large");
    EXPECT_TRUE(error->unchanged);
    EXPECT_EQ(readBack("a.tvd"), "old");
    EXPECT_EQ(folderContent(), "a.tvd");
}

TEST_F(Rewrite, LeavesTheOldFileInAFolderThatTakesNoFiles)
{
    writeFile("a.tvd", "old");
    ASSERT_EQ(chmod("a.tvd", 0666), 0);
    ASSERT_EQ(chmod(".", 0555), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const auto error = rewriteFile(name(), "new");
        return error && error->unchanged && !error->cause.isEmpty();
    }));
    ASSERT_EQ(chmod(".", 0755), 0);
    EXPECT_EQ(readBack("a.tvd"), "old");
    EXPECT_EQ(folderContent(), "a.tvd");
}

TEST_F(Rewrite, RefusesAFileThatMustNotBeWritten)
{
    writeFile("a.tvd", "old");
    ASSERT_EQ(chmod("a.tvd", 0444), 0);
    ASSERT_EQ(chmod(".", 0777), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const auto error = rewriteFile(name(), "new");
        return error && error->unchanged && !error->cause.isEmpty();
    }));
    EXPECT_EQ(readBack("a.tvd"), "old");
    EXPECT_EQ(folderContent(), "a.tvd");
}

TEST_F(Rewrite, RefusesWhatIsNoOrdinaryFile)
{
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("folder")));
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    for (const char *unfit : {"", "folder", "pipe", "missing/a.tvd"}) {
        const auto error = rewriteFile(QString::fromLatin1(unfit), "new");
        ASSERT_TRUE(error) << unfit;
        EXPECT_TRUE(error->unchanged);
        EXPECT_FALSE(error->cause.isEmpty());
    }
    EXPECT_EQ(folderContent(), "folder pipe");
}

} // namespace
} // namespace tarvold::testing
