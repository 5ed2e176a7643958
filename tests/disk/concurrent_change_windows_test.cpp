// What a file holds on Windows after a program that takes no lock changed it while a save syncs it.

#include "disk/append.h"
#include "disk/rewrite.h"
#include "support/folder_test.h"
#include "support/system_call.h"
#include "support/windows_program.h"

#include <functional>
#include <utility>

namespace {

using namespace Qt::StringLiterals;

/// What the other program does when a file is synced.
std::function<void()> duringSync;

BOOL WINAPI changeAndSync(HANDLE /*file*/)
{
    if (const auto change = std::exchange(duringSync, nullptr)) {
        change();
    }
    return TRUE;
}

/// What a copy of the program does just before a rename over a file that must not be open.
std::function<void()> beforeRename;

BOOL WINAPI changeAndSet(HANDLE file, FILE_INFO_BY_HANDLE_CLASS what, LPVOID info, DWORD size)
{
    static const auto set =
        tarvold::testing::systemCall<decltype(&changeAndSet)>("SetFileInformationByHandle");
    const auto change =
        what == FileRenameInfo ? std::exchange(beforeRename, nullptr) : std::function<void()>();
    if (change) {
        change();
    }
    return set(file, what, info, size);
}

} // namespace

// The import pointers of these functions; without these definitions the linker takes the system's.
extern "C" BOOL(WINAPI *__imp_FlushFileBuffers)(HANDLE);
BOOL(WINAPI *__imp_FlushFileBuffers)(HANDLE) = changeAndSync;
extern "C" decltype(&changeAndSet) __imp_SetFileInformationByHandle;
decltype(&changeAndSet) __imp_SetFileInformationByHandle = changeAndSet;

namespace tarvold::testing {
namespace {

const auto kFile = u"data.tvd"_s;
const QByteArray kOld = "old\r\n";
const QByteArray kNew = "new\r\n";
const QByteArray kTheirs = "a record of the other program\r\n";

class ConcurrentChange : public FolderTest
{
protected:
    void SetUp() override { putBytes(kFile, kOld); }
    void TearDown() override { EXPECT_FALSE(duringSync) << "nothing was synced"; }

    static Result<void> appendDuring(const std::function<void()> &change)
    {
        duringSync = change;
        return appendToFile(kFile, kNew);
    }

    static Result<void> rewriteDuring(const std::function<void()> &change)
    {
        duringSync = change;
        return rewriteFile(kFile, kNew, kOld);
    }
};

/// Writes as a program does that has the file open all the time.
void writeInPlace(const QByteArray &bytes)
{
    OtherProgram(kFile, kSharesAll).write(bytes);
}

TEST_F(ConcurrentChange, ARecordThatIsOverwrittenIsAppendedAgain)
{
    EXPECT_TRUE(appendDuring([] { writeInPlace(kTheirs); }));
    EXPECT_EQ(bytesIn(kFile), kTheirs + kNew);
}

TEST_F(ConcurrentChange, AFileRemovedDuringAnAppendIsCreatedAgain)
{
    bool isStillToBeSeen = false;
    EXPECT_TRUE(appendDuring([&isStillToBeSeen] {
        ASSERT_TRUE(::DeleteFileW(nativeName(kFile).c_str()));
        isStillToBeSeen = QFile(kFile).open(QIODevice::ReadOnly);
    }));
    if (isStillToBeSeen) {
        GTEST_SKIP() << "this system does not tell that a file is removed which somebody has open";
    }
    EXPECT_EQ(bytesIn(kFile), kNew);
}

TEST_F(ConcurrentChange, ARenamedFileDoesNotKeepTheRecord)
{
    EXPECT_TRUE(appendDuring([] {
        ASSERT_TRUE(::MoveFileW(L"data.tvd", L"data.old"));
        putBytes(kFile, kTheirs);
    }));
    EXPECT_EQ(bytesIn(kFile), kTheirs + kNew);
    EXPECT_EQ(readBack("data.old"), kOld);
}

TEST_F(ConcurrentChange, ARecordThatWasMovedInsideTheFileDoesNotStandThereTwice)
{
    EXPECT_TRUE(appendDuring([] { writeInPlace(kTheirs + bytesIn(kFile)); }));
    EXPECT_EQ(bytesIn(kFile), kTheirs + kOld + kNew);
}

TEST_F(ConcurrentChange, AFileThatChangesDuringARewriteStays)
{
    const auto saved = rewriteDuring([] { writeInPlace(kTheirs); });
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().outcome, FileOutcome::ChangedByAnother);
    EXPECT_EQ(bytesIn(kFile), kTheirs);
    EXPECT_EQ(folderContent(), "data.tvd");
}

TEST_F(ConcurrentChange, AnAppendJustBeforeTheRenameLosesNoRecord)
{
    Result<void> saved;
    beforeRename = [&saved] { saved = appendToFile(kFile, kTheirs); };
    EXPECT_TRUE(rewriteFile(kFile, kNew, kOld));
    EXPECT_EQ(bytesIn(kFile), kNew);
    if (std::exchange(beforeRename, nullptr)) {
        GTEST_SKIP() << "this system replaces open files, so that the lock is kept all the time";
    }
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().cause, u"Another program is writing to it."_s);
    EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
}

TEST_F(ConcurrentChange, AFileRemovedDuringARewriteIsCreatedAgain)
{
    EXPECT_TRUE(rewriteDuring([] { ASSERT_TRUE(::DeleteFileW(nativeName(kFile).c_str())); }));
    EXPECT_EQ(bytesIn(kFile), kNew);
}

} // namespace
} // namespace tarvold::testing
