// Rewriting as only Windows has it: files that others have open, attributes, permissions, times.

#include "disk/rewrite.h"
#include "support/folder_test.h"
#include "support/system_call.h"
#include "support/windows_program.h"

#include <chrono>
#include <memory>
#include <sddl.h>
#include <thread>

namespace {

using namespace Qt::StringLiterals;

LARGE_INTEGER creationAskedFor = {}; ///< which not all file systems keep

BOOL WINAPI noteTime(HANDLE file, FILE_INFO_BY_HANDLE_CLASS what, void *information, DWORD size)
{
    static const auto set =
        tarvold::testing::systemCall<decltype(&noteTime)>("SetFileInformationByHandle");
    if (what == FileBasicInfo) {
        creationAskedFor = static_cast<const FILE_BASIC_INFO *>(information)->CreationTime;
    }
    return set(file, what, information, size);
}

} // namespace

// The import pointer of that function; without this definition the linker takes the system's.
extern "C" decltype(&noteTime) __imp_SetFileInformationByHandle;
decltype(&noteTime) __imp_SetFileInformationByHandle = noteTime;

namespace tarvold::testing {
namespace {

using namespace std::chrono_literals;
using Rewrite = FolderTest;

const auto kFile = u"a.tvd"_s;

void expectRefused(const Result<void> &saved, const QString &cause)
{
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().cause, cause);
    EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
    EXPECT_EQ(bytesIn(kFile), "old");
    EXPECT_EQ(folderContent(), "a.tvd");
}

TEST_F(Rewrite, LeavesAFileThatAnotherProgramKeepsOpen)
{
    put(kFile, "old");
    const OtherProgram other(kFile, kSharesContent);
    expectRefused(rewriteFile(kFile, "new", QByteArrayView("old")),
                  u"Another program has it open."_s);
}

TEST_F(Rewrite, WaitsForAProgramThatHasTheFileOpen)
{
    put(kFile, "old");
    auto other = std::make_unique<OtherProgram>(kFile, kSharesContent);
    std::thread release([&other] {
        std::this_thread::sleep_for(300ms);
        other.reset();
    });
    EXPECT_TRUE(rewriteFile(kFile, "new", QByteArrayView("old")));
    release.join();
    EXPECT_EQ(bytesIn(kFile), "new");
    EXPECT_EQ(folderContent(), "a.tvd");
}

TEST_F(Rewrite, SeesWhatTheProgramThatItWaitsForWrites)
{
    put(kFile, "old");
    auto other = std::make_unique<OtherProgram>(kFile, kSharesContent);
    std::thread release([&other] {
        std::this_thread::sleep_for(300ms);
        other->write("odd");
        std::this_thread::sleep_for(
            100ms); // so that a retry surely compares it before it can be replaced
        other.reset();
    });
    const auto saved = rewriteFile(kFile, "new", QByteArrayView("old"));
    release.join();
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().outcome, FileOutcome::ChangedByAnother);
    EXPECT_EQ(bytesIn(kFile), "odd");
    EXPECT_EQ(folderContent(), "a.tvd");
}

TEST_F(Rewrite, LetsAProgramThatSharesAllReadTheOldFileToItsEnd)
{
    put(kFile, "old");
    OtherProgram other(kFile, kSharesAll);
    const auto saved = rewriteFile(kFile, "new");
    EXPECT_EQ(other.read(), "old");
    if (!saved) {
        expectRefused(saved, u"Another program has it open."_s);
        GTEST_SKIP() << "this system replaces no open file, so the rewrite was refused";
    }
    EXPECT_EQ(bytesIn(kFile), "new");
}

TEST_F(Rewrite, LeavesAFileThatACopyOfTheProgramWritesTo)
{
    put(kFile, "old");
    OtherProgram other(kFile, kSharesAll);
    other.lock();
    expectRefused(rewriteFile(kFile, "new"), u"Another program is writing to it."_s);
}

TEST_F(Rewrite, LeavesAWriteProtectedFile)
{
    put(kFile, "old");
    setAttributes(kFile, FILE_ATTRIBUTE_READONLY);
    expectRefused(rewriteFile(kFile, "new"), u"The file is read-only."_s);
    EXPECT_TRUE(attributesOf(kFile) & FILE_ATTRIBUTE_READONLY);
    setAttributes(kFile, FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Rewrite, KeepsTheAttributesOfTheFile)
{
    put(kFile, "old");
    setAttributes(kFile, FILE_ATTRIBUTE_HIDDEN);
    if ((attributesOf(kFile) & FILE_ATTRIBUTE_HIDDEN) == 0) {
        GTEST_SKIP() << "this file system has no hidden files";
    }
    EXPECT_TRUE(rewriteFile(kFile, "new"));
    EXPECT_TRUE(attributesOf(kFile) & FILE_ATTRIBUTE_HIDDEN);
}

/// The permissions of a file (its DACL) as the system keeps them.
QByteArray permissionsOf(const QString &file)
{
    DWORD size = 0;
    ::GetFileSecurityW(nativeName(file).c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    QByteArray permissions(size, '\0');
    EXPECT_TRUE(::GetFileSecurityW(nativeName(file).c_str(), DACL_SECURITY_INFORMATION,
                                   permissions.data(), size, &size));
    return permissions;
}

TEST_F(Rewrite, KeepsExplicitPermissions)
{
    put(kFile, "old");
    const QByteArray ofTheFolder = permissionsOf(kFile);
    PSECURITY_DESCRIPTOR everybodys = nullptr;
    ASSERT_TRUE(::ConvertStringSecurityDescriptorToSecurityDescriptorW(
        L"D:P(A;;FA;;;WD)", SDDL_REVISION_1, &everybodys, nullptr));
    EXPECT_TRUE(
        ::SetFileSecurityW(nativeName(kFile).c_str(), DACL_SECURITY_INFORMATION, everybodys));
    ::LocalFree(everybodys);
    const QByteArray given = permissionsOf(kFile);
    ASSERT_NE(given, ofTheFolder);
    EXPECT_TRUE(rewriteFile(kFile, "new"));
    EXPECT_EQ(permissionsOf(kFile), given);
}

TEST_F(Rewrite, AsksForTheOldTimeOfCreation)
{
    put(kFile, "old");
    WIN32_FILE_ATTRIBUTE_DATA before = {};
    ASSERT_TRUE(::GetFileAttributesExW(nativeName(kFile).c_str(), GetFileExInfoStandard, &before));
    creationAskedFor = {};
    EXPECT_TRUE(rewriteFile(kFile, "new"));
    EXPECT_EQ(creationAskedFor.LowPart, before.ftCreationTime.dwLowDateTime);
    EXPECT_EQ(DWORD(creationAskedFor.HighPart), before.ftCreationTime.dwHighDateTime);
}

TEST_F(Rewrite, KeepsTheNameAsItWasWritten)
{
    put(kFile, "old");
    EXPECT_TRUE(rewriteFile(u"A.TVD"_s, "new"));
    EXPECT_EQ(folderContent(), "a.tvd");
    EXPECT_EQ(bytesIn(kFile), "new");
}

TEST_F(Rewrite, APathMayBeLong)
{
    QString deep = QDir::currentPath();
    while (deep.size() < 400) {
        deep += u'/' + QString(40, u'd');
    }
    ASSERT_TRUE(QDir().mkpath(deep));
    const QString file = deep + u'/' + kFile;
    EXPECT_TRUE(rewriteFile(file, "new"));
    EXPECT_TRUE(rewriteFile(file, "newer", QByteArrayView("new")));
    EXPECT_EQ(bytesIn(file), "newer");
    EXPECT_EQ(QDir(deep).entryList(QDir::Files), QStringList(kFile));
}

} // namespace
} // namespace tarvold::testing
