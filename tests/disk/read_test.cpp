#include "disk/file.h"
#include "disk/read.h"
#include "support/folder_test.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using Read = FolderTest;

TEST_F(Read, GivesAllBytes)
{
    const QByteArray all("a\0\r\n\xFF", 5);
    writeFile("a.tvd", all);
    const auto bytes = readFile(u"a.tvd"_s);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(*bytes, all);
}

TEST_F(Read, GivesTheBeginning)
{
    writeFile("a.tvd", "abcdef");
    for (const auto &[size, beginning] :
         {std::pair(0, ""), std::pair(3, "abc"), std::pair(6, "abcdef"), std::pair(7, "abcdef")}) {
        const auto bytes = readBeginning(u"a.tvd"_s, size);
        ASSERT_TRUE(bytes);
        EXPECT_EQ(*bytes, beginning);
    }
    EXPECT_FALSE(readBeginning(u"missing"_s, 3));
    EXPECT_FALSE(readBeginning(u"."_s, 3));
}

TEST_F(Read, NeedsNoLockIfTold)
{
    writeFile("a.tvd", "abc");
    const auto path = FilePath::ofOrdinary(u"a.tvd"_s);
    ASSERT_TRUE(path);
    const auto locked = File::openLocked(*path, File::Access::Append);
    ASSERT_TRUE(locked);
    const auto bytes = readUnlocked(u"a.tvd"_s);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(*bytes, "abc");
}

TEST_F(Read, RefusesWhatIsNoOrdinaryFile)
{
    ASSERT_TRUE(QDir().mkdir(u"folder"_s));
    for (const char *unfit : {"", "folder", "missing"}) {
        const auto bytes = readFile(QString::fromLatin1(unfit));
        ASSERT_FALSE(bytes) << unfit;
        EXPECT_FALSE(bytes.error().cause.isEmpty());
    }
}

TEST_F(Read, KnowsWhetherAFileIsThere)
{
    writeFile("a.tvd", "");
    EXPECT_TRUE(fileExists(u"a.tvd"_s));
    EXPECT_TRUE(fileExists(u"."_s));
    EXPECT_FALSE(fileExists(u"b.tvd"_s));
}

} // namespace
} // namespace tarvold::testing
