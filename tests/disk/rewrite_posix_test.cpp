#include "disk/rewrite.h"
#include "support/folder_test.h"
#include "support/hindrances.h"

#include <sys/stat.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

QString name()
{
    return u"a.tvd"_s;
}

mode_t modeOf(const char *file)
{
    struct stat status = {};
    EXPECT_EQ(stat(file, &status), 0);
    return status.st_mode & 07777U;
}

using Rewrite = FolderTest;

TEST_F(Rewrite, LetsAReaderOfTheOldFileReadToItsEnd)
{
    writeFile("a.tvd", "old");
    QFile reader(name());
    ASSERT_TRUE(reader.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    EXPECT_TRUE(rewriteFile(name(), "new"));
    EXPECT_EQ(reader.readAll(), "old");
}

TEST_F(Rewrite, KeepsTheModeOfTheFile)
{
    for (const mode_t mode : {0600U, 0640U, 0664U, 0755U}) {
        writeFile("a.tvd", "old");
        ASSERT_EQ(chmod("a.tvd", mode), 0);
        EXPECT_TRUE(rewriteFile(name(), "new"));
        EXPECT_EQ(modeOf("a.tvd"), mode);
    }
}

TEST_F(Rewrite, WritesThroughASymbolicLink)
{
    ASSERT_TRUE(QDir().mkdir(u"elsewhere"_s));
    writeFile("elsewhere/target", "old");
    ASSERT_EQ(symlink("elsewhere/target", "a.tvd"), 0);
    EXPECT_TRUE(rewriteFile(name(), "new"));
    EXPECT_TRUE(QFileInfo(name()).isSymLink());
    EXPECT_EQ(readBack("elsewhere/target"), "new");
    EXPECT_EQ(folderContent(), "a.tvd elsewhere");
}

TEST_F(Rewrite, WritesThroughLinksThatLeadToNoFileYet)
{
    ASSERT_TRUE(QDir().mkdir(u"elsewhere"_s));
    ASSERT_EQ(symlink("elsewhere/second", "a.tvd"), 0);
    ASSERT_EQ(symlink("../target", "elsewhere/second"), 0);
    EXPECT_TRUE(rewriteFile(name(), "new"));
    EXPECT_TRUE(QFileInfo(name()).isSymLink());
    EXPECT_TRUE(QFileInfo(u"elsewhere/second"_s).isSymLink());
    EXPECT_EQ(readBack("target"), "new");
    EXPECT_EQ(folderContent(), "a.tvd elsewhere target");
}

TEST_F(Rewrite, TakesANameThatStartsWithAColonAsAnOrdinaryOne)
{
    EXPECT_TRUE(rewriteFile(u":a.tvd"_s, "new"));
    EXPECT_EQ(folderContent(), ":a.tvd");
}

TEST_F(Rewrite, LeavesAFileWithoutReadPermission)
{
    writeFile("a.tvd", "old");
    ASSERT_EQ(chmod("a.tvd", 0222), 0);
    ASSERT_EQ(chmod(".", 0777), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const auto saved = rewriteFile(name(), "new", QByteArrayView("old"));
        return !saved && saved.error().outcome == FileOutcome::Unchanged &&
               !saved.error().cause.isEmpty();
    }));
    EXPECT_EQ(readBack("a.tvd"), "old");
}

TEST_F(Rewrite, LeavesTheOldFileWhenTheNewOneDoesNotFit)
{
    writeFile("a.tvd", "old");
    Result<void> saved;
    {
        const FileSizeLimit limit(1000);
        saved = rewriteFile(name(), QByteArray(100000, 'x'));
    }
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().cause.toStdString(), "File too large");
    EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
    EXPECT_EQ(readBack("a.tvd"), "old");
    EXPECT_EQ(folderContent(), "a.tvd");
}

TEST_F(Rewrite, LeavesTheOldFileInAReadOnlyFolder)
{
    writeFile("a.tvd", "old");
    ASSERT_EQ(chmod("a.tvd", 0666), 0);
    ASSERT_EQ(chmod(".", 0555), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const auto saved = rewriteFile(name(), "new");
        return !saved && saved.error().outcome == FileOutcome::Unchanged &&
               !saved.error().cause.isEmpty();
    }));
    ASSERT_EQ(chmod(".", 0755), 0);
    EXPECT_EQ(readBack("a.tvd"), "old");
    EXPECT_EQ(folderContent(), "a.tvd");
}

TEST_F(Rewrite, RefusesAFileWithoutWritePermission)
{
    writeFile("a.tvd", "old");
    ASSERT_EQ(chmod("a.tvd", 0444), 0);
    ASSERT_EQ(chmod(".", 0777), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const auto saved = rewriteFile(name(), "new");
        return !saved && saved.error().outcome == FileOutcome::Unchanged &&
               !saved.error().cause.isEmpty();
    }));
    EXPECT_EQ(readBack("a.tvd"), "old");
    EXPECT_EQ(folderContent(), "a.tvd");
}

TEST_F(Rewrite, RefusesAPipeWithoutWaitingForIt)
{
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    const auto saved = rewriteFile(u"pipe"_s, "new");
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
    EXPECT_EQ(saved.error().cause, u"It is not an ordinary file."_s);
    EXPECT_EQ(folderContent(), "pipe");
}

} // namespace
} // namespace tarvold::testing
