#include "disk/read.h"
#include "support/folder_test.h"

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

TEST_F(Read, RefusesWhatIsNoOrdinaryFile)
{
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("folder")));
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
    EXPECT_TRUE(fileExists(QStringLiteral("a.tvd")));
    EXPECT_TRUE(fileExists(QStringLiteral(".")));
    EXPECT_FALSE(fileExists(QStringLiteral("b.tvd")));
}

} // namespace
} // namespace tarvold::testing
