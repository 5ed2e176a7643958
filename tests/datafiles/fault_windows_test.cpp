// What becomes of a file on Windows when the system fails in the midst of a save.

#include "datafiles/append.h"
#include "datafiles/rewrite.h"
#include "support/folder_test.h"

#include <optional>
#include <utility>
#include <windows.h>

namespace {

/// A call of the system as its library has it.
template <typename Call>
Call systemCall(const char *name)
{
    const auto address = ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), name);
    return reinterpret_cast<Call>(reinterpret_cast<void *>(address));
}

bool isSyncToFail = false;
std::optional<DWORD> arriving; ///< how much of the next write to a file
BOOL answer = FALSE;           ///< to that write
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

} // namespace

// Where the calls of these functions go; else the system's library puts its addresses here.
extern "C" BOOL(WINAPI *__imp_FlushFileBuffers)(HANDLE);
BOOL(WINAPI *__imp_FlushFileBuffers)(HANDLE) = syncOrFail;
extern "C" BOOL(WINAPI *__imp_WriteFile)(HANDLE, LPCVOID, DWORD, LPDWORD, LPOVERLAPPED);
BOOL(WINAPI *__imp_WriteFile)(HANDLE, LPCVOID, DWORD, LPDWORD, LPOVERLAPPED) = writeOrFail;

namespace tarvold::testing {
namespace {

const auto kFile = QStringLiteral("data.tvd");
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
    }
    void TearDown() override { EXPECT_FALSE(isSyncToFail || arriving) << "nothing failed"; }

    static void expectRefused(const std::optional<FileError> &refusal)
    {
        ASSERT_TRUE(refusal);
        EXPECT_EQ(refusal->cause, qt_error_string(int(kError)));
        EXPECT_TRUE(refusal->unchanged);
        EXPECT_FALSE(refusal->inPlace);
    }
};

TEST_F(Fault, ARecordThatCannotBeSyncedIsTakenBack)
{
    isSyncToFail = true;
    expectRefused(appendToFile(kFile, kNew));
    EXPECT_EQ(bytesIn(kFile), kOld);
}

TEST_F(Fault, ANewFileThatCannotBeSyncedIsGoneAgain)
{
    isSyncToFail = true;
    expectRefused(appendToFile(QStringLiteral("new.tvd"), kNew));
    EXPECT_EQ(folderContent(), "data.tvd");
}

TEST_F(Fault, ARewriteThatCannotBeSyncedLeavesTheOldFile)
{
    isSyncToFail = true;
    expectRefused(rewriteFile(kFile, kNew, kOld));
    EXPECT_EQ(bytesIn(kFile), kOld);
    EXPECT_EQ(folderContent(), "data.tvd");
}

TEST_F(Fault, HalfARecordIsTakenBack)
{
    arriving = kHalf;
    expectRefused(appendToFile(kFile, kNew));
    EXPECT_EQ(bytesIn(kFile), kOld);
}

TEST_F(Fault, ANewFileWithHalfARecordIsGoneAgain)
{
    arriving = kHalf;
    expectRefused(appendToFile(QStringLiteral("new.tvd"), kNew));
    EXPECT_EQ(folderContent(), "data.tvd");
}

TEST_F(Fault, HalfARecordThatCannotBeTakenBackIsTold)
{
    arriving = kHalf;
    isSyncToFail = true;
    const auto refusal = appendToFile(kFile, kNew);
    ASSERT_TRUE(refusal);
    EXPECT_FALSE(refusal->unchanged);
}

TEST_F(Fault, WhatAnotherProgramWroteInsteadStaysAndIsTold)
{
    theirs = "their\r\n";
    arriving = DWORD(theirs.size());
    const auto refusal = appendToFile(kFile, kNew);
    ASSERT_TRUE(refusal);
    EXPECT_FALSE(refusal->unchanged);
    EXPECT_EQ(bytesIn(kFile), kOld + theirs);
}

TEST_F(Fault, AWriteOfNothingIsAFailure)
{
    arriving = 0;
    answer = TRUE;
    const auto refusal = appendToFile(kFile, kNew);
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->cause, qt_error_string(ERROR_WRITE_FAULT));
    EXPECT_TRUE(refusal->unchanged);
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
