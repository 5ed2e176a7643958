// Two copies of the program at the same file at the same time on Windows: nothing that one of them
// wrote is lost, and a copy that is killed keeps no lock.

#include "disk/append.h"
#include "disk/rewrite.h"
#include "support/folder_test.h"
#include "support/windows_process.h"
#include "support/windows_program.h"

#include <QThread>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr int kRecords = 200;
const auto kFile = u"file.tvd"_s;
const auto kReady = u"ready"_s;

QByteArray record(const char *writer, int number)
{
    return QByteArray(writer) + QByteArray::number(number) + "\r\n";
}

/// Appends in the current folder of the program that started this one.
TEST(Task, DISABLED_Appends)
{
    for (int number = 0; number < kRecords; ++number) {
        const auto saved = appendToFile(kFile, record("task ", number));
        ASSERT_TRUE(saved) << saved.error().cause.toStdString();
    }
}

/// Takes the lock and is killed without releasing it.
TEST(Task, DISABLED_IsKilledWithTheLock)
{
    OtherProgram other(kFile, kSharesAll);
    other.lock();
    putBytes(kReady, {});
    QThread::msleep(500);
    ::TerminateProcess(::GetCurrentProcess(), 0);
}

class TwoPrograms : public FolderTest
{
protected:
    /// How many lines of a writer the file has; they must be there once each, in their order.
    static int linesOf(const char *writer)
    {
        int next = 0;
        for (const QByteArray &line : bytesIn(kFile).split('\n')) {
            if (line.startsWith(writer)) {
                EXPECT_EQ(line + '\n', record(writer, next));
                ++next;
            }
        }
        return next;
    }
};

TEST_F(TwoPrograms, ThatAppendLoseNoRecord)
{
    const Task task("Task.DISABLED_Appends");
    for (int number = 0; number < kRecords; ++number) {
        const auto saved = appendToFile(kFile, record("own ", number));
        ASSERT_TRUE(saved) << saved.error().cause.toStdString();
    }
    EXPECT_TRUE(task.succeeds());
    EXPECT_EQ(linesOf("task "), kRecords);
    EXPECT_EQ(linesOf("own "), kRecords);
    EXPECT_EQ(bytesIn(kFile).count('\n'), 2 * kRecords);
}

TEST_F(TwoPrograms, OfWhichOneRewritesAndOneAppendsLoseNoRecord)
{
    put(kFile, {});
    const Task task("Task.DISABLED_Appends");
    int number = 0;
    while (number < kRecords / 4 || task.isRunning()) {
        const QByteArray known = bytesIn(kFile);
        const auto saved = rewriteFile(kFile, QByteArray(known + record("own ", number)), known);
        ASSERT_TRUE(saved || saved.error().outcome == FileOutcome::Unchanged ||
                    saved.error().outcome == FileOutcome::ChangedByAnother);
        number += saved ? 1 : 0;
    }
    EXPECT_TRUE(task.succeeds());
    EXPECT_EQ(linesOf("task "), kRecords);
    EXPECT_EQ(linesOf("own "), number);
    EXPECT_EQ(folderContent(), "file.tvd");
}

TEST_F(TwoPrograms, OfWhichOneIsKilledLeaveNoLockBehind)
{
    put(kFile, "old\r\n");
    const Task task("Task.DISABLED_IsKilledWithTheLock");
    while (!QFile::exists(kReady)) {
        QThread::msleep(10);
    }
    EXPECT_TRUE(appendToFile(kFile, "new\r\n"));
    EXPECT_EQ(bytesIn(kFile), "old\r\nnew\r\n");
    EXPECT_TRUE(task.succeeds());
}

} // namespace
} // namespace tarvold::testing
