#include "disk/append.h"
#include "support/folder_test.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// While it lives, no file can grow beyond a size, as on a full disk.
class SizeLimit
{
public:
    explicit SizeLimit(rlim_t bytes) : m_oldHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_old);
        rlimit limit = m_old;
        limit.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_oldHandler);
    }
    Q_DISABLE_COPY_MOVE(SizeLimit)

private:
    rlimit m_old{};
    void (*m_oldHandler)(int);
};

constexpr rlim_t kLimit = 64 * 1024;
const QByteArray kTooMuch(100 * 1024, 'x');

class AppendFault : public FolderTest
{
protected:
    /// Appends too much under a limit, so that the write stops half-way.
    static Result<void> appendTooMuch(const QString &name)
    {
        const SizeLimit limit(kLimit);
        return appendToFile(name, kTooMuch);
    }
};

TEST_F(AppendFault, AShortWriteLeavesTheOldBytes)
{
    put(u"old.tvd"_s, "old\r\n");
    const auto saved = appendTooMuch(u"old.tvd"_s);
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
    EXPECT_FALSE(saved.error().cause.isEmpty());
    EXPECT_EQ(bytesOf(u"old.tvd"_s), QByteArray("old\r\n"));
}

TEST_F(AppendFault, AShortWriteRemovesTheFileItCreated)
{
    const auto saved = appendTooMuch(u"new.tvd"_s);
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
    EXPECT_EQ(entries(), QStringList());
}

TEST_F(AppendFault, AnEmptyFileThatWasThereStays)
{
    put(u"empty.tvd"_s, {});
    ASSERT_FALSE(appendTooMuch(u"empty.tvd"_s));
    EXPECT_EQ(bytesOf(u"empty.tvd"_s), QByteArray());
}

TEST_F(AppendFault, ThroughALinkToAMissingFileTheLinkStaysAndTheFileGoes)
{
    ASSERT_EQ(::symlink("real.tvd", "link.tvd"), 0);
    const auto saved = appendTooMuch(u"link.tvd"_s);
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
    EXPECT_EQ(entries(), QStringList{u"link.tvd"_s});
}

TEST_F(AppendFault, AFileThatIsFullFromTheStartStays)
{
    const QByteArray old(qsizetype(kLimit), 'o');
    put(u"full.tvd"_s, old);
    ASSERT_FALSE(appendTooMuch(u"full.tvd"_s));
    EXPECT_EQ(bytesOf(u"full.tvd"_s), old);
}

TEST_F(AppendFault, ARetryWithSpaceSucceeds)
{
    put(u"old.tvd"_s, "old\r\n");
    ASSERT_FALSE(appendTooMuch(u"old.tvd"_s));
    EXPECT_TRUE(appendToFile(u"old.tvd"_s, "a\r\n"));
    EXPECT_EQ(bytesOf(u"old.tvd"_s), QByteArray("old\r\na\r\n"));
}

/// Drops the privileges of the superuser, for whom no folder is read-only. Only for a process that
/// ends soon: it cannot get them again.
bool becomeOrdinary()
{
    constexpr uid_t kNobody = 65534;
    return ::geteuid() != 0 || ::setuid(kNobody) == 0;
}

/// Ends the process with 0 when the append failed and left nothing behind.
[[noreturn]] void appendAsOrdinaryUser(const QString &name)
{
    if (!becomeOrdinary()) {
        ::_exit(2);
    }
    const auto saved = appendToFile(name, "a\r\n");
    ::_exit(!saved && saved.error().outcome == FileOutcome::Unchanged &&
                    !saved.error().cause.isEmpty()
                ? 0
                : 1);
}

class AppendFaultDeathTest : public AppendFault
{
protected:
    AppendFaultDeathTest() { ::chmod(qPrintable(folder.path()), 0755); }
};

TEST_F(AppendFaultDeathTest, AReadOnlyFolderIsRefused)
{
    ASSERT_EQ(::mkdir("closed", 0555), 0);
    EXPECT_EXIT(appendAsOrdinaryUser(u"closed/new.tvd"_s), ::testing::ExitedWithCode(0), "");
    EXPECT_FALSE(QFileInfo::exists(u"closed/new.tvd"_s));
}

TEST_F(AppendFaultDeathTest, AReadOnlyFileIsRefused)
{
    put(u"closed.tvd"_s, "old\r\n");
    ASSERT_EQ(::chmod("closed.tvd", 0444), 0);
    EXPECT_EXIT(appendAsOrdinaryUser(u"closed.tvd"_s), ::testing::ExitedWithCode(0), "");
    EXPECT_EQ(bytesOf(u"closed.tvd"_s), QByteArray("old\r\n"));
}

} // namespace
} // namespace tarvold::testing
