#include "disk/read.h"
#include "support/folder_test.h"
#include "support/windows_program.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using Read = FolderTest;

const auto kFile = u"a.tvd"_s;

TEST_F(Read, ReportsThatAnotherProgramSharesTheFileWithNobody)
{
    put(kFile, "bytes");
    const OtherProgram other(kFile, 0);
    EXPECT_TRUE(fileExists(kFile));
    const auto bytes = readFile(kFile);
    ASSERT_FALSE(bytes);
    EXPECT_EQ(bytes.error().cause, u"Another program has it open."_s);
}

TEST_F(Read, ReadsAWriteProtectedFileAndOneThatOthersUse)
{
    put(kFile, "bytes");
    {
        const OtherProgram other(kFile, kSharesContent);
        EXPECT_EQ(readFile(kFile), "bytes");
    }
    setAttributes(kFile, FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(readFile(kFile), "bytes");
    setAttributes(kFile, FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Read, KnowsNoFilesInOddNames)
{
    put(kFile, "bytes");
    for (const char *name : {"a.tvd:stream", ":a.tvd", "*.tvd", "a.tv?"}) {
        EXPECT_FALSE(fileExists(QString::fromLatin1(name))) << name;
        EXPECT_FALSE(readFile(QString::fromLatin1(name))) << name;
    }
    EXPECT_TRUE(fileExists(u"A.TVD"_s));
}

} // namespace
} // namespace tarvold::testing
