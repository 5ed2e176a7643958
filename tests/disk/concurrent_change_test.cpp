// What a file holds after a program that takes no lock changed it while a save syncs it.

#include "disk/append.h"
#include "disk/rewrite.h"
#include "support/folder_test.h"
#include "support/hindrances.h"

#include <functional>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace Qt::StringLiterals;

/// What the other program does when a file is synced.
std::function<void()> duringSync;

} // namespace

int fsync(int handle) noexcept(noexcept(::fsync(0)))
{
    struct stat state = {};
    if (duringSync && ::fstat(handle, &state) == 0 && S_ISREG(state.st_mode)) {
        duringSync();
    }
    return 0;
}

namespace tarvold::testing {
namespace {

const auto kFile = u"data.tvd"_s;
const QByteArray kOld = "old\r\n";
const QByteArray kNew = "new\r\n";
const QByteArray kTheirs = "a record of the other program\r\n";

void replaceBy(const QByteArray &bytes)
{
    writeFile("theirs.tmp", bytes);
    ASSERT_EQ(::rename("theirs.tmp", "data.tvd"), 0);
}

class ConcurrentChange : public FolderTest
{
protected:
    void SetUp() override { putBytes(kFile, kOld); }
    void TearDown() override { duringSync = nullptr; }

    /// Lets another program do something at the first sync.
    static void changeOnce(const std::function<void()> &change)
    {
        duringSync = [change, isFirst = true]() mutable {
            if (isFirst) {
                isFirst = false;
                change();
            }
        };
    }

    static Result<void> appendDuring(const std::function<void()> &change)
    {
        changeOnce(change);
        return appendToFile(kFile, kNew);
    }

    static Result<void> rewriteDuring(const std::function<void()> &change,
                                      const QString &name = kFile)
    {
        changeOnce(change);
        return rewriteFile(name, kNew, kOld);
    }
};

using AppendConcurrentChange = ConcurrentChange;
using RewriteConcurrentChange = ConcurrentChange;

TEST_F(AppendConcurrentChange, AFileThatReplacesTheOldOneGetsTheRecord)
{
    EXPECT_TRUE(appendDuring([] { replaceBy(kTheirs); }));
    EXPECT_EQ(bytesIn(kFile), kTheirs + kNew);
}

TEST_F(AppendConcurrentChange, ACopyThatAlreadyHasTheRecordDoesNotGetItTwice)
{
    EXPECT_TRUE(appendDuring([] { replaceBy(bytesIn(kFile)); }));
    EXPECT_EQ(bytesIn(kFile), kOld + kNew);
}

TEST_F(AppendConcurrentChange, ARemovedFileIsCreatedAgainWithTheRecord)
{
    EXPECT_TRUE(appendDuring([] { QFile::remove(kFile); }));
    EXPECT_EQ(bytesIn(kFile), kNew);
}

TEST_F(AppendConcurrentChange, AFileThatIsRewrittenInPlaceGetsTheRecord)
{
    EXPECT_TRUE(appendDuring([] { putBytes(kFile, kTheirs); }));
    EXPECT_EQ(bytesIn(kFile), kTheirs + kNew);
}

TEST_F(AppendConcurrentChange, ARecordThatWasMovedInsideTheFileDoesNotStandThereTwice)
{
    EXPECT_TRUE(appendDuring([] { putBytes(kFile, kTheirs + bytesIn(kFile)); }));
    EXPECT_EQ(bytesIn(kFile), kTheirs + kOld + kNew);
}

TEST_F(AppendConcurrentChange, ARecordThatWasMovedAcrossTwoBlocksIsFound)
{
    for (qsizetype size = 65520; size < 65540; ++size) { // the file is searched in blocks of 65536
        const QByteArray above = QByteArray(size, 'x') + "\r\n";
        putBytes(kFile, kOld);
        EXPECT_TRUE(appendDuring([&above] { putBytes(kFile, above + bytesIn(kFile)); }));
        EXPECT_EQ(bytesIn(kFile), above + kOld + kNew) << size;
    }
}

TEST_F(AppendConcurrentChange, TheEndOfALongerLineIsNoRecord)
{
    EXPECT_TRUE(appendDuring([] { putBytes(kFile, "re" + kNew); }));
    EXPECT_EQ(bytesIn(kFile), "re" + kNew + kNew);
}

TEST_F(AppendConcurrentChange, ARenamedFileDoesNotKeepTheRecord)
{
    EXPECT_TRUE(appendDuring([] {
        ASSERT_EQ(::rename("data.tvd", "data.tvd~"), 0);
        putBytes(kFile, kTheirs);
    }));
    EXPECT_EQ(bytesIn(kFile), kTheirs + kNew);
    EXPECT_EQ(readBack("data.tvd~"), kOld);
}

TEST_F(AppendConcurrentChange, WhatAnotherProgramAppendsMeanwhileStays)
{
    EXPECT_TRUE(appendDuring([] {
        QFile file(kFile);
        ASSERT_TRUE(file.open(QIODevice::Append));
        ASSERT_EQ(file.write(kTheirs), kTheirs.size());
    }));
    EXPECT_EQ(bytesIn(kFile), kOld + kNew + kTheirs);
}

TEST_F(AppendConcurrentChange, AFolderInPlaceOfTheFileIsAnErrorAndNothingIsSaved)
{
    const auto saved = appendDuring([] {
        QFile::remove(kFile);
        ASSERT_EQ(::mkdir("data.tvd", 0700), 0);
    });
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().cause, u"It is a folder."_s);
    EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
}

TEST_F(AppendConcurrentChange, AFileThatIsReplacedOnEveryTryIsAnError)
{
    int times = 0;
    duringSync = [&times] {
        if (times++ < 100) {
            replaceBy(kTheirs);
        }
    };
    const auto saved = appendToFile(kFile, kNew);
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().cause, u"Another program changes it again and again."_s);
    EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
    EXPECT_EQ(bytesIn(kFile), kTheirs);
    EXPECT_LT(times, 100);
}

TEST_F(AppendConcurrentChange, AFileThatMayNotBeReadIsTrustedForItsSize)
{
    EXPECT_TRUE(::chmod(".", 0777) == 0 && ::chmod("data.tvd", 0222) == 0);
    EXPECT_TRUE(holdsForOrdinaryUser([] { return appendToFile(kFile, kNew).has_value(); }));
    EXPECT_EQ(bytesIn(kFile), kOld + kNew);
}

TEST_F(RewriteConcurrentChange, ARemovedFileIsCreatedAgain)
{
    EXPECT_TRUE(rewriteDuring([] { QFile::remove(kFile); }));
    EXPECT_EQ(bytesIn(kFile), kNew);
}

TEST_F(RewriteConcurrentChange, AFileRemovedBehindALinkedFolderIsCreatedAgain)
{
    ASSERT_EQ(::symlink(".", "link"), 0);
    EXPECT_TRUE(rewriteDuring([] { QFile::remove(kFile); }, u"link/"_s + kFile));
    EXPECT_EQ(bytesIn(kFile), kNew);
}

TEST_F(RewriteConcurrentChange, APipeInPlaceOfTheFileIsAnErrorAndNotWaitedFor)
{
    const auto saved = rewriteDuring([] {
        QFile::remove(kFile);
        ASSERT_EQ(::mkfifo("data.tvd", 0600), 0);
    });
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().cause, u"It is not an ordinary file."_s);
    EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
    EXPECT_FALSE(QFileInfo(kFile).isFile());
}

} // namespace
} // namespace tarvold::testing
