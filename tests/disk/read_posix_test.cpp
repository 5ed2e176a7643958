#include "disk/read.h"
#include "support/folder_test.h"
#include "support/hindrances.h"

#include <sys/stat.h>

namespace tarvold::testing {
namespace {

using Read = FolderTest;

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

TEST_F(Read, RefusesAFileThatMustNotBeRead)
{
    writeFile("a.tvd", "bytes");
    ASSERT_EQ(chmod("a.tvd", 0000), 0);
    EXPECT_TRUE(
        holdsForOrdinaryUser([] { return readFile(QStringLiteral("a.tvd")).error.has_value(); }));
}

TEST_F(Read, RefusesAPipeWithoutWaitingForIt)
{
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    const FileContent content = readFile(QStringLiteral("pipe"));
    ASSERT_TRUE(content.error);
    EXPECT_EQ(content.error->cause, QStringLiteral("It is not an ordinary file."));
    EXPECT_TRUE(content.bytes.isEmpty());
}

} // namespace
} // namespace tarvold::testing
