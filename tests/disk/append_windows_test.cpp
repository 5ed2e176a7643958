// Appending as only Windows has it: devices among the names, streams, attributes, files that are
// shared with nobody.

#include "disk/append_fixture.h"
#include "support/windows_program.h"

#include <chrono>
#include <memory>
#include <thread>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

const auto kFile = u"file.tvd"_s;

TEST_F(Append, ADeviceIsRefused)
{
    for (const char *name : {"NUL", "nul", "CON", "COM1", R"(\\.\NUL)", R"(\\.\pipe\tarvold)"}) {
        EXPECT_EQ(refused(QString::fromLatin1(name)), u"It is not an ordinary file."_s) << name;
    }
}

TEST_F(Append, AStreamBesideTheContentOfAFileIsRefused)
{
    put(kFile, "old\r\n");
    EXPECT_EQ(refused(kFile + u":stream"_s),
              u"The file name holds a character that no file name can have."_s);
    EXPECT_EQ(bytesOf(kFile), QByteArray("old\r\n"));
}

TEST_F(Append, CharactersThatNoNameHasAreRefused)
{
    for (const char *name : {":file.tvd", ":", "a*b", "a?b", "a<b", "a>b", "a\"b", "a|b", "a\tb"}) {
        EXPECT_EQ(refused(QString::fromLatin1(name)),
                  u"The file name holds a character that no file name can have."_s)
            << name;
    }
}

TEST_F(Append, ANameInOtherLettersMeansTheSameFile)
{
    append(kFile, "a\r\n");
    append(u"FILE.tvd"_s, "b\r\n");
    EXPECT_EQ(bytesOf(kFile), QByteArray("a\r\nb\r\n"));
    EXPECT_EQ(entries(), QStringList(kFile));
}

TEST_F(Append, ANameBehindADriveStartsAtTheCurrentFolder)
{
    append(QDir::currentPath().left(2) + kFile, "a\r\n");
    EXPECT_EQ(entries(), QStringList(kFile));
}

TEST_F(Append, APathMayBeLongAndHaveSlashesOfBothKinds)
{
    QString deep = QDir::currentPath();
    while (deep.size() < 400) {
        deep += u'/' + QString(40, u'd');
    }
    ASSERT_TRUE(QDir().mkpath(deep));
    append(deep + u"\\file.tvd"_s, "a\r\n");
    append(deep + u"/file.tvd"_s, "b\r\n");
    EXPECT_EQ(bytesOf(deep + u"/file.tvd"_s), QByteArray("a\r\nb\r\n"));
}

TEST_F(Append, AWriteProtectedFileIsRefusedAndStaysProtected)
{
    put(kFile, "old\r\n");
    setAttributes(kFile, FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(refused(kFile), u"The file is read-only."_s);
    EXPECT_TRUE(attributesOf(kFile) & FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(bytesOf(kFile), QByteArray("old\r\n"));
    setAttributes(kFile, FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Append, AProgramThatSharesTheFileWithNobodyIsWaitedFor)
{
    put(kFile, "old\r\n");
    auto other = std::make_unique<OtherProgram>(kFile, 0);
    std::thread release([&other] {
        std::this_thread::sleep_for(200ms);
        other.reset();
    });
    append(kFile, "a\r\n");
    release.join();
    EXPECT_EQ(bytesOf(kFile), QByteArray("old\r\na\r\n"));
}

TEST_F(Append, AProgramThatNeverSharesTheFileIsTheReportedCause)
{
    put(kFile, "old\r\n");
    {
        const OtherProgram other(kFile, FILE_SHARE_READ);
        EXPECT_EQ(refused(kFile), u"Another program has it open."_s);
    }
    EXPECT_EQ(bytesOf(kFile), QByteArray("old\r\n"));
}

TEST_F(Append, AProgramThatReadsTheFileDoesNotMatter)
{
    put(kFile, "old\r\n");
    const OtherProgram other(kFile, kSharesContent);
    append(kFile, "a\r\n");
    EXPECT_EQ(bytesOf(kFile), QByteArray("old\r\na\r\n"));
}

TEST_F(Append, ACopyOfTheProgramThatWritesToTheFileIsWaitedFor)
{
    put(kFile, "old\r\n");
    auto other = std::make_unique<OtherProgram>(kFile, kSharesAll);
    other->lock();
    EXPECT_EQ(bytesOf(kFile), QByteArray("old\r\n")); // the lock keeps nobody from reading
    const auto start = std::chrono::steady_clock::now();
    std::thread release([&other] {
        std::this_thread::sleep_for(200ms);
        other.reset();
    });
    append(kFile, "a\r\n");
    release.join();
    EXPECT_GE(std::chrono::steady_clock::now() - start, 190ms);
    EXPECT_EQ(bytesOf(kFile), QByteArray("old\r\na\r\n"));
}

TEST_F(Append, ALockThatIsNeverReleasedIsTheReportedCause)
{
    put(kFile, "old\r\n");
    OtherProgram other(kFile, kSharesAll);
    other.lock();
    EXPECT_EQ(refused(kFile), u"Another program is writing to it."_s);
}

} // namespace
} // namespace tarvold::testing
