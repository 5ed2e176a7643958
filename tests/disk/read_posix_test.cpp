#include "disk/read.h"
#include "support/folder_test.h"
#include "support/hindrances.h"

#include <sys/stat.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using Read = FolderTest;

TEST_F(Read, FollowsASymbolicLink)
{
    writeFile("target", "bytes");
    ASSERT_EQ(symlink("target", "a.tvd"), 0);
    EXPECT_EQ(readFile(u"a.tvd"_s), "bytes");
}

TEST_F(Read, TakesANameThatStartsWithAColonAsAnOrdinaryOne)
{
    writeFile("./:a.tvd", "bytes");
    EXPECT_TRUE(fileExists(u":a.tvd"_s));
    EXPECT_EQ(readFile(u":a.tvd"_s), "bytes");
}

TEST_F(Read, RefusesAFileWithoutReadPermission)
{
    writeFile("a.tvd", "bytes");
    ASSERT_EQ(chmod("a.tvd", 0000), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([] { return !readFile(u"a.tvd"_s); }));
}

TEST_F(Read, RefusesAPipeWithoutWaitingForIt)
{
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    const auto bytes = readFile(u"pipe"_s);
    ASSERT_FALSE(bytes);
    EXPECT_EQ(bytes.error().cause, u"It is not an ordinary file."_s);
}

} // namespace
} // namespace tarvold::testing
