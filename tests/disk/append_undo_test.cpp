// Appending when the system gets in the way: size limits, folders that cannot be listed, and other
// programs that use the same file.

#include "disk/append.h"
#include "disk/read.h"
#include "disk/rewrite.h"
#include "support/hindrances.h"
#include "support/processes.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <array>
#include <chrono>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <memory>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;
using testing::FileSizeLimit;
using testing::start;
using testing::succeeds;

constexpr uid_t kNobody = 65534;

/// Holds the lock of a file as another program would.
class LockHolder
{
public:
    explicit LockHolder(const QString &path)
        : m_handle(open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644))
    {
        EXPECT_EQ(flock(m_handle, LOCK_EX), 0);
    }
    LockHolder(const LockHolder &) = delete;
    LockHolder &operator=(const LockHolder &) = delete;
    LockHolder(LockHolder &&) = delete;
    LockHolder &operator=(LockHolder &&) = delete;
    ~LockHolder() { close(m_handle); }

private:
    int m_handle;
};

class AppendUndo : public ::testing::Test
{
protected:
    QString path() const { return folder.filePath(u"data.tvd"_s); }

    void write(QByteArrayView bytes) const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes.data(), bytes.size()), bytes.size());
    }

    QByteArray content() const
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir folder;
};

QByteArray recordOf(char writer, int number)
{
    return QByteArray(1, writer) + QByteArray::number(number) + ' ' +
           QByteArray(number % 200, writer) + "\r\n";
}

/// Whether a file holds the records of the writers "a" and "b", whole, each writer's in order.
void expectAllRecordsOfBoth(const QByteArray &file, int records)
{
    std::array<int, 2> next = {};
    for (QByteArrayView rest = file; !rest.isEmpty();) {
        const char writer = rest.front();
        ASSERT_TRUE(writer == 'a' || writer == 'b');
        const QByteArray expected = recordOf(writer, next.at(writer == 'b' ? 1 : 0)++);
        ASSERT_TRUE(rest.startsWith(expected)) << expected.constData();
        rest = rest.sliced(expected.size());
    }
    EXPECT_EQ(next[0], records);
    EXPECT_EQ(next[1], records);
}

TEST_F(AppendUndo, ARecordThatDoesNotFitIsUndoneAtEverySize)
{
    const QByteArray old("old\r\n");
    const QByteArray record(300, 'x');
    for (qsizetype size = old.size(); size < old.size() + record.size(); ++size) {
        write(old);
        const FileSizeLimit limit(static_cast<rlim_t>(size));
        const auto saved = appendToFile(path(), record);
        ASSERT_FALSE(saved) << size;
        ASSERT_EQ(saved.error().outcome, FileOutcome::Unchanged) << size;
        ASSERT_EQ(content(), old) << size;
    }
}

TEST_F(AppendUndo, AShortWriteReportsItsOwnCause)
{
    write("old\r\n");
    const FileSizeLimit limit(10);
    const auto saved = appendToFile(path(), QByteArray(300, 'x'));
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().cause, u"File too large"_s);
}

TEST_F(AppendUndo, ANewFileIsRemovedAfterAShortWrite)
{
    const FileSizeLimit limit(10);
    const auto saved = appendToFile(path(), QByteArray(300, 'x'));
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
    EXPECT_FALSE(QFileInfo::exists(path()));
}

TEST_F(AppendUndo, AFolderThatCannotBeListedTakesNewFilesAndRewrites)
{
    const QByteArray folderName = QFile::encodeName(folder.path());
    if (geteuid() == 0) { // permissions do not bind the superuser
        ASSERT_EQ(chown(folderName.constData(), kNobody, kNobody), 0);
    }
    ASSERT_EQ(chmod(folderName.constData(), 0300), 0);
    const pid_t process = start([this] {
        const bool isBound = geteuid() != 0 || setuid(kNobody) == 0;
        return isBound && appendToFile(path(), "first\r\n") && rewriteFile(path(), "second\r\n");
    });
    EXPECT_TRUE(succeeds(process));
    ASSERT_EQ(chmod(folderName.constData(), 0700), 0);
    EXPECT_EQ(content(), "second\r\n");
}

TEST_F(AppendUndo, AnAppendWaitsForAnotherProgramToFinish)
{
    write("old\r\n");
    auto holder = std::make_unique<LockHolder>(path());
    std::thread release([&holder] {
        std::this_thread::sleep_for(100ms);
        holder.reset();
    });
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(appendToFile(path(), "new\r\n"));
    EXPECT_GE(std::chrono::steady_clock::now() - start, 90ms);
    release.join();
    EXPECT_EQ(content(), "old\r\nnew\r\n");
}

TEST_F(AppendUndo, ARecordThatAnotherProgramIsWritingIsReadWhole)
{
    write("first ");
    auto holder = std::make_unique<LockHolder>(path());
    std::thread finish([this, &holder] {
        std::this_thread::sleep_for(100ms);
        write("first half, second half\r\n");
        holder.reset();
    });
    const auto bytes = readFile(path());
    finish.join();
    ASSERT_TRUE(bytes);
    EXPECT_EQ(*bytes, "first half, second half\r\n");
}

TEST_F(AppendUndo, ALockThatIsNeverReleasedIsTheReportedCause)
{
    write("old\r\n");
    const LockHolder holder(path());
    const auto saved = appendToFile(path(), "new\r\n");
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().cause, u"Another program is writing to it."_s);
    EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
    EXPECT_EQ(content(), "old\r\n");
}

TEST_F(AppendUndo, AFileRemovedDuringTheWaitIsCreatedAgain)
{
    auto holder = std::make_unique<LockHolder>(path());
    std::thread remove([this, &holder] {
        std::this_thread::sleep_for(100ms);
        QFile::remove(path());
        holder.reset();
    });
    EXPECT_TRUE(appendToFile(path(), "new\r\n"));
    remove.join();
    EXPECT_EQ(content(), "new\r\n");
}

TEST_F(AppendUndo, AFileCreatedAfterTheWaitIsRemovedAfterAShortWrite)
{
    auto holder = std::make_unique<LockHolder>(path());
    std::thread remove([this, &holder] {
        std::this_thread::sleep_for(100ms);
        QFile::remove(path());
        holder.reset();
    });
    const FileSizeLimit limit(10);
    const auto saved = appendToFile(path(), QByteArray(300, 'x'));
    remove.join();
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
    EXPECT_FALSE(QFileInfo::exists(path()));
}

TEST_F(AppendUndo, ARewriteLeavesAFileThatAnotherProgramWritesTo)
{
    write("old\r\n");
    const LockHolder holder(path());
    const auto saved = rewriteFile(path(), "new\r\n", QByteArrayView("old\r\n"));
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().cause, u"Another program is writing to it."_s);
    EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
    EXPECT_EQ(content(), "old\r\n");
}

TEST_F(AppendUndo, ProgramsThatAppendAndOneThatRewritesLoseNoRecord)
{
    constexpr int kRecords = 300;
    write({});
    const pid_t appending = start([this] {
        bool allSaved = true;
        for (int number = 0; number < kRecords; ++number) {
            allSaved = appendToFile(path(), recordOf('a', number)) && allSaved;
        }
        return allSaved;
    });
    for (int number = 0; number < kRecords;) {
        const QByteArray old = content();
        const QByteArray grown = old + recordOf('b', number);
        const auto saved = rewriteFile(path(), grown, old);
        ASSERT_TRUE(saved || saved.error().outcome == FileOutcome::ChangedByAnother)
            << saved.error().cause.toStdString();
        number += saved ? 1 : 0;
    }
    EXPECT_TRUE(succeeds(appending));
    expectAllRecordsOfBoth(content(), kRecords);
}

TEST_F(AppendUndo, TwoProgramsAppendAThousandRecordsEachAndNoneIsLost)
{
    constexpr int kRecords = 1000;
    const auto appendAll = [this](char writer) {
        return start([this, writer] {
            bool allSaved = true;
            for (int number = 0; number < kRecords; ++number) {
                allSaved = appendToFile(path(), recordOf(writer, number)) && allSaved;
            }
            return allSaved;
        });
    };
    const pid_t first = appendAll('a');
    const pid_t second = appendAll('b');
    EXPECT_TRUE(succeeds(first));
    EXPECT_TRUE(succeeds(second));
    expectAllRecordsOfBoth(content(), kRecords);
}

TEST_F(AppendUndo, UndoingAnAppendCutsNoRecordOfAnotherProgram)
{
    constexpr int kRecords = 300;
    const pid_t failing = start([this] {
        bool allUndone = true;
        for (int number = 0; number < kRecords; ++number) {
            const QFileInfo file(path());
            const FileSizeLimit limit(static_cast<rlim_t>(file.size() + 20)); // in the midst of it
            const auto saved = appendToFile(path(), QByteArray(100'000, 'x'));
            allUndone = !saved && saved.error().outcome == FileOutcome::Unchanged && allUndone;
        }
        return allUndone;
    });
    QByteArray expected;
    for (int number = 0; number < kRecords; ++number) {
        const QByteArray record = recordOf('a', number);
        ASSERT_TRUE(appendToFile(path(), record));
        expected += record;
    }
    EXPECT_TRUE(succeeds(failing));
    EXPECT_EQ(content(), expected);
}

} // namespace
} // namespace tarvold
