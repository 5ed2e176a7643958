#include "datafiles/read.h"
#include "support/folder_test.h"
#include "support/hindrances.h"

#include <sys/stat.h>

namespace tarvold::testing {
namespace {

using Read = FolderTest;

TEST_F(Read, GivesAllBytes)
{
    const QByteArray bytes("a\0\r\n\xFF", 5);
    writeFile("a.tvd", bytes);
    const FileContent content = readFile(QStringLiteral("a.tvd"));
    EXPECT_FALSE(content.error);
    EXPECT_EQ(content.bytes, bytes);
}

TEST_F(Read, FollowsASymbolicLink)
{
    writeFile("target", "bytes");
    ASSERT_EQ(symlink("target", "a.tvd"), 0);
    EXPECT_EQ(readFile(QStringLiteral("a.tvd")).bytes, "bytes");
}

TEST_F(Read, TakesANameThatStartsWithAColonAsAnOrdinaryOne)
{
    writeFile("./:a.tvd", "bytes");
    EXPECT_TRUE(fileExists(QStringLiteral(":a.tvd")));
    EXPECT_EQ(readFile(QStringLiteral(":a.tvd")).bytes, "bytes");
}

TEST_F(Read, RefusesWhatIsNoOrdinaryFileWithoutWaitingForIt)
{
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("folder")));
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    for (const char *unfit : {"", "folder", "pipe", "missing"}) {
        const FileContent content = readFile(QString::fromLatin1(unfit));
        ASSERT_TRUE(content.error) << unfit;
        EXPECT_FALSE(content.error->cause.isEmpty());
        EXPECT_TRUE(content.bytes.isEmpty());
    }
}

TEST_F(Read, RefusesAFileThatMustNotBeRead)
{
    writeFile("a.tvd", "bytes");
    ASSERT_EQ(chmod("a.tvd", 0000), 0);
    EXPECT_TRUE(
        holdsForOrdinaryUser([] { return readFile(QStringLiteral("a.tvd")).error.has_value(); }));
}

TEST_F(Read, KnowsWhetherAFileIsThere)
{
    writeFile("a.tvd", "");
    EXPECT_TRUE(fileExists(QStringLiteral("a.tvd")));
    EXPECT_TRUE(fileExists(QStringLiteral(".")));
    EXPECT_FALSE(fileExists(QStringLiteral("b.tvd")));
}

} // namespace
} // namespace tarvold::testing
