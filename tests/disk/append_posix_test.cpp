// Appending to what only some systems have: links that everybody may make, pipes in folders, names
// with any character.

#include "disk/append_fixture.h"

#include <sys/stat.h>
#include <unistd.h>

namespace tarvold::testing {
namespace {

TEST_F(Append, BlanksAndColonsAreInANameWhereTheyAreTyped)
{
    append(QStringLiteral(" spaces "), "a\r\n");
    append(QStringLiteral("a:b"), "a\r\n");
    EXPECT_EQ(entries(), (QStringList{QStringLiteral(" spaces "), QStringLiteral("a:b")}));
}

TEST_F(Append, ANameMayStartWithAColon)
{
    append(QStringLiteral(":file.tvd"), "a\r\n");
    append(QStringLiteral(":"), "b\r\n");
    EXPECT_EQ(bytesOf(QStringLiteral("./:file.tvd")), QByteArray("a\r\n"));
    EXPECT_EQ(bytesOf(QStringLiteral("./:")), QByteArray("b\r\n"));
}

TEST_F(Append, ALinkLeadsToItsFile)
{
    put(QStringLiteral("real.tvd"), "old\r\n");
    ASSERT_EQ(::symlink("real.tvd", "link.tvd"), 0);
    append(QStringLiteral("link.tvd"), "a\r\n");
    EXPECT_TRUE(QFileInfo(QStringLiteral("link.tvd")).isSymLink());
    EXPECT_EQ(bytesOf(QStringLiteral("real.tvd")), QByteArray("old\r\na\r\n"));
}

TEST_F(Append, ALinkToAMissingFileCreatesThatFile)
{
    ASSERT_EQ(::symlink("real.tvd", "link.tvd"), 0);
    append(QStringLiteral("link.tvd"), "a\r\n");
    EXPECT_TRUE(QFileInfo(QStringLiteral("link.tvd")).isSymLink());
    EXPECT_EQ(bytesOf(QStringLiteral("real.tvd")), QByteArray("a\r\n"));
}

TEST_F(Append, ALinkThatLeadsToItselfIsRefused)
{
    ASSERT_EQ(::symlink("loop.tvd", "loop.tvd"), 0);
    refused(QStringLiteral("loop.tvd"));
}

TEST_F(Append, APipeIsRefusedWithoutWaiting)
{
    ASSERT_EQ(::mkfifo("pipe.tvd", 0600), 0);
    ::alarm(20); // opening a pipe that nobody reads would wait for ever
    EXPECT_EQ(refused(QStringLiteral("pipe.tvd")), QStringLiteral("It is not an ordinary file."));
    ::alarm(0);
}

TEST_F(Append, ADeviceIsRefused)
{
    EXPECT_EQ(refused(QStringLiteral("/dev/null")), QStringLiteral("It is not an ordinary file."));
    ASSERT_EQ(::symlink("/dev/full", "full.tvd"), 0);
    EXPECT_EQ(refused(QStringLiteral("full.tvd")), QStringLiteral("It is not an ordinary file."));
}

} // namespace
} // namespace tarvold::testing
