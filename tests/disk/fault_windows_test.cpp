// What a file holds on Windows after a system call fails during a save.

#include "disk/append.h"
#include "disk/rewrite.h"
#include "support/folder_test.h"
#include "support/system_call.h"

#include <chrono>
#include <optional>
#include <utility>
#include <windows.h>

namespace {

using namespace Qt::StringLiterals;

using tarvold::testing::systemCall;

bool isSyncToFail = false;
std::optional<DWORD> arriving; ///< how many bytes of the next write reach the file
BOOL answer = FALSE;           ///< what that write returns
constexpr DWORD kError = ERROR_DISK_FULL;
QByteArray theirs; ///< what another program writes to that place instead

BOOL WINAPI syncOrFail(HANDLE file)
{
    static const auto sync = systemCall<BOOL(WINAPI *)(HANDLE)>("FlushFileBuffers");
    if (!std::exchange(isSyncToFail, false)) {
        return sync(file);
    }
    ::SetLastError(kError);
    return FALSE;
}

BOOL WINAPI writeOrFail(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD count, LPOVERLAPPED place)
{
    static const auto write = systemCall<decltype(&writeOrFail)>("WriteFile");
    if (!arriving || place == nullptr) { // of the test's own output and files
        return write(file, bytes, size, count, place);
    }
    DWORD arrived = 0;
    const DWORD part = *std::exchange(arriving, std::nullopt);
    if (part > 0) {
        write(file, theirs.isEmpty() ? bytes : theirs.constData(), part, &arrived, place);
    }
    *count = 0;
    ::SetLastError(kError);
    return answer;
}

bool isRenameDenied = false;

BOOL WINAPI setOrFail(HANDLE file, FILE_INFO_BY_HANDLE_CLASS what, LPVOID info, DWORD size)
{
    static const auto set = systemCall<decltype(&setOrFail)>("SetFileInformationByHandle");
    if (what == FileDispositionInfo || !isRenameDenied) {
        return set(file, what, info, size);
    }
    ::SetLastError(ERROR_ACCESS_DENIED);
    return FALSE;
}

bool isMadeByAnother = false; ///< another program creates the next missing file just before

HANDLE WINAPI createOrFind(LPCWSTR name, DWORD access, DWORD sharing,
                           LPSECURITY_ATTRIBUTES security, DWORD disposition, DWORD flags,
                           HANDLE like)
{
    static const auto create = systemCall<decltype(&createOrFind)>("CreateFileW");
    if (disposition == OPEN_ALWAYS && std::exchange(isMadeByAnother, false)) {
        ::CloseHandle(create(name, access, sharing, security, disposition, flags, like));
    }
    return create(name, access, sharing, security, disposition, flags, like);
}

} // namespace

// The import pointers of these functions; without these definitions the linker takes the system's.
extern "C" decltype(&syncOrFail) __imp_FlushFileBuffers;
decltype(&syncOrFail) __imp_FlushFileBuffers = syncOrFail;
extern "C" decltype(&writeOrFail) __imp_WriteFile;
decltype(&writeOrFail) __imp_WriteFile = writeOrFail;
extern "C" decltype(&setOrFail) __imp_SetFileInformationByHandle;
decltype(&setOrFail) __imp_SetFileInformationByHandle = setOrFail;
extern "C" decltype(&createOrFind) __imp_CreateFileW;
decltype(&createOrFind) __imp_CreateFileW = createOrFind;

namespace tarvold::testing {
namespace {

const auto kFile = u"data.tvd"_s;
const QByteArray kOld = "old\r\n";
const QByteArray kNew = "a new record\r\n";
constexpr DWORD kHalf = 5;

class Fault : public FolderTest
{
protected:
    void SetUp() override
    {
        putBytes(kFile, kOld);
        isSyncToFail = false;
        arriving.reset();
        answer = FALSE;
        theirs.clear();
        isRenameDenied = false;
        isMadeByAnother = false;
    }
    void TearDown() override
    {
        EXPECT_FALSE(isSyncToFail || isMadeByAnother || arriving) << "nothing failed";
    }

    static void expectRefused(const Result<void> &saved)
    {
        ASSERT_FALSE(saved);
        EXPECT_EQ(saved.error().cause, systemError(int(kError)).cause);
        EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
    }
};

TEST_F(Fault, ARecordThatCannotBeSyncedIsUndone)
{
    isSyncToFail = true;
    expectRefused(appendToFile(kFile, kNew));
    EXPECT_EQ(bytesIn(kFile), kOld);
}

TEST_F(Fault, ANewFileThatCannotBeSyncedIsRemoved)
{
    isSyncToFail = true;
    expectRefused(appendToFile(u"new.tvd"_s, kNew));
    EXPECT_EQ(folderContent(), "data.tvd");
}

TEST_F(Fault, AnEmptyFileThatAnotherProgramJustCreatedStays)
{
    isMadeByAnother = true;
    isSyncToFail = true;
    expectRefused(appendToFile(u"new.tvd"_s, kNew));
    EXPECT_EQ(folderContent(), "data.tvd new.tvd");
    EXPECT_EQ(readBack("new.tvd"), "");
}

TEST_F(Fault, ARewriteThatMayNotRenameFailsAtOnce)
{
    isRenameDenied = true;
    const auto start = std::chrono::steady_clock::now();
    const auto saved = rewriteFile(kFile, kNew, kOld);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().cause,
              u"You may not write in the folder \"%1\"."_s.arg(QDir::currentPath()));
    EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
    EXPECT_EQ(bytesIn(kFile), kOld);
    EXPECT_EQ(folderContent(), "data.tvd");
}

TEST_F(Fault, ARewriteThatCannotBeSyncedLeavesTheOldFile)
{
    isSyncToFail = true;
    expectRefused(rewriteFile(kFile, kNew, kOld));
    EXPECT_EQ(bytesIn(kFile), kOld);
    EXPECT_EQ(folderContent(), "data.tvd");
}

TEST_F(Fault, HalfARecordIsUndone)
{
    arriving = kHalf;
    expectRefused(appendToFile(kFile, kNew));
    EXPECT_EQ(bytesIn(kFile), kOld);
}

TEST_F(Fault, ANewFileWithHalfARecordIsRemoved)
{
    arriving = kHalf;
    expectRefused(appendToFile(u"new.tvd"_s, kNew));
    EXPECT_EQ(folderContent(), "data.tvd");
}

TEST_F(Fault, HalfARecordThatCannotBeUndoneIsReported)
{
    arriving = kHalf;
    isSyncToFail = true;
    const auto saved = appendToFile(kFile, kNew);
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().outcome, FileOutcome::MaybeChanged);
}

TEST_F(Fault, WhatAnotherProgramWroteInsteadStaysAndIsReported)
{
    theirs = "their\r\n";
    arriving = DWORD(theirs.size());
    const auto saved = appendToFile(kFile, kNew);
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().outcome, FileOutcome::MaybeChanged);
    EXPECT_EQ(bytesIn(kFile), kOld + theirs);
}

TEST_F(Fault, AWriteOfNothingIsAFailure)
{
    arriving = 0;
    answer = TRUE;
    const auto saved = appendToFile(kFile, kNew);
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().cause, u"The disk failed, or was removed."_s);
    EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
    EXPECT_EQ(bytesIn(kFile), kOld);
}

TEST_F(Fault, ARewriteThatStopsHalfWayLeavesTheOldFile)
{
    arriving = kHalf;
    expectRefused(rewriteFile(kFile, kNew, kOld));
    EXPECT_EQ(bytesIn(kFile), kOld);
    EXPECT_EQ(folderContent(), "data.tvd");
}

} // namespace
} // namespace tarvold::testing
