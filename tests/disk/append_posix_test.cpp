// Appending to what only some systems have: links that everybody may make, pipes in folders, names
// with any character.

#include "disk/append_fixture.h"

#include <sys/stat.h>
#include <unistd.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

TEST_F(Append, SpacesAndColonsInANameAreKept)
{
    append(u" spaces "_s, "a\r\n");
    append(u"a:b"_s, "a\r\n");
    EXPECT_EQ(entries(), (QStringList{u" spaces "_s, u"a:b"_s}));
}

TEST_F(Append, ANameMayStartWithAColon)
{
    append(u":file.tvd"_s, "a\r\n");
    append(u":"_s, "b\r\n");
    EXPECT_EQ(bytesOf(u"./:file.tvd"_s), QByteArray("a\r\n"));
    EXPECT_EQ(bytesOf(u"./:"_s), QByteArray("b\r\n"));
}

TEST_F(Append, ALinkLeadsToItsFile)
{
    put(u"real.tvd"_s, "old\r\n");
    ASSERT_EQ(::symlink("real.tvd", "link.tvd"), 0);
    append(u"link.tvd"_s, "a\r\n");
    EXPECT_TRUE(QFileInfo(u"link.tvd"_s).isSymLink());
    EXPECT_EQ(bytesOf(u"real.tvd"_s), QByteArray("old\r\na\r\n"));
}

TEST_F(Append, ALinkToAMissingFileCreatesThatFile)
{
    ASSERT_EQ(::symlink("real.tvd", "link.tvd"), 0);
    append(u"link.tvd"_s, "a\r\n");
    EXPECT_TRUE(QFileInfo(u"link.tvd"_s).isSymLink());
    EXPECT_EQ(bytesOf(u"real.tvd"_s), QByteArray("a\r\n"));
}

TEST_F(Append, ALinkThatLeadsToItselfIsRefused)
{
    ASSERT_EQ(::symlink("loop.tvd", "loop.tvd"), 0);
    refused(u"loop.tvd"_s);
}

TEST_F(Append, APipeIsRefusedWithoutWaiting)
{
    ASSERT_EQ(::mkfifo("pipe.tvd", 0600), 0);
    ::alarm(20); // opening a pipe that nobody reads would wait for ever
    EXPECT_EQ(refused(u"pipe.tvd"_s), u"It is not an ordinary file."_s);
    ::alarm(0);
}

TEST_F(Append, ADeviceIsRefused)
{
    EXPECT_EQ(refused(u"/dev/null"_s), u"It is not an ordinary file."_s);
    ASSERT_EQ(::symlink("/dev/full", "full.tvd"), 0);
    EXPECT_EQ(refused(u"full.tvd"_s), u"It is not an ordinary file."_s);
}

} // namespace
} // namespace tarvold::testing
