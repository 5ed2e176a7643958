#include "disk/read.h"
#include "support/folder_test.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using Read = FolderTest;

TEST_F(Read, GivesAllBytes)
{
    const QByteArray bytes("a\0\r\n\xFF", 5);
    writeFile("a.tvd", bytes);
    const FileContent content = readFile(u"a.tvd"_s);
    EXPECT_FALSE(content.error);
    EXPECT_EQ(content.bytes, bytes);
}

TEST_F(Read, RefusesWhatIsNoOrdinaryFile)
{
    ASSERT_TRUE(QDir().mkdir(u"folder"_s));
    for (const char *unfit : {"", "folder", "missing"}) {
        const FileContent content = readFile(QString::fromLatin1(unfit));
        ASSERT_TRUE(content.error) << unfit;
        EXPECT_FALSE(content.error->cause.isEmpty());
        EXPECT_TRUE(content.bytes.isEmpty());
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
