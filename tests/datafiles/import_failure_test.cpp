// What keeps an import from being done is told, and leaves the target as it was.

#include "datafiles/import_merge.h"
#include "support/folder_test.h"

#include <QFileInfo>
#include <QThread>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvold::testing {
namespace {

const auto kSource = QStringLiteral("source.tvd");
const auto kTarget = QStringLiteral("target.tvd");

/// No file grows beyond a size for as long as this lives, as on a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes) : m_oldHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &m_old), 0);
        const rlimit limit = {bytes, m_old.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_oldHandler);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;
    FileSizeLimit(FileSizeLimit &&) = delete;
    FileSizeLimit &operator=(FileSizeLimit &&) = delete;

private:
    rlimit m_old = {};
    void (*m_oldHandler)(int);
};

class ImportFails : public FolderTest
{
protected:
    /// Imports, which must fail because of `file`, and returns the cause.
    QString causeOf(DataFileKind kind, const QString &file)
    {
        const auto failure = importRecords({kSource, kTarget, kind}, [this](const QString &) {
            ++messages;
            if (duringMessage) {
                duringMessage();
            }
        });
        if (!failure) {
            ADD_FAILURE() << "the import was done";
            return {};
        }
        EXPECT_EQ(failure->file, file);
        EXPECT_TRUE(failure->error.unchanged);
        EXPECT_FALSE(failure->error.cause.isEmpty());
        return failure->error.cause;
    }

    static void expectPlace(const QString &cause, int line, int record)
    {
        EXPECT_TRUE(cause.contains(QStringLiteral("line %1,").arg(line))) << cause.toStdString();
        EXPECT_TRUE(cause.contains(QStringLiteral("record %1:").arg(record)))
            << cause.toStdString();
    }

    int messages = 0;
    std::function<void()> duringMessage;
};

struct KindCase
{
    const char *name;
    DataFileKind kind;
    int lines;
};

void PrintTo(const KindCase &kind, std::ostream *out)
{
    *out << kind.name;
}

class ImportOfCutShortSource : public ImportFails, public ::testing::WithParamInterface<KindCase>
{
};

TEST_P(ImportOfCutShortSource, NamesFileLineAndRecordAndCreatesNothing)
{
    const int lines = GetParam().lines;
    putBytes(kSource, recordOf(lines) + recordOf(lines) + recordOf(lines - 1));
    expectPlace(causeOf(GetParam().kind, kSource), 3 * lines - 1, 3);
    EXPECT_FALSE(QFileInfo::exists(kTarget));
}

TEST_P(ImportOfCutShortSource, LeavesTheTargetAsItWas)
{
    const int lines = GetParam().lines;
    putBytes(kSource, recordOf(lines) + "Any\r\n");
    putBytes(kTarget, recordOf(lines, {"before"}));
    expectPlace(causeOf(GetParam().kind, kSource), lines + 1, 2);
    EXPECT_EQ(bytesIn(kTarget), recordOf(lines, {"before"}));
}

INSTANTIATE_TEST_SUITE_P(, ImportOfCutShortSource,
                         ::testing::Values(KindCase{"Normal", DataFileKind::NormalEndings, 36},
                                           KindCase{"RunIn", DataFileKind::RunInEndings, 44},
                                           KindCase{"Turn", DataFileKind::TurnEndings, 33},
                                           KindCase{"Interview", DataFileKind::Interviews, 19},
                                           KindCase{"TalkShow", DataFileKind::TalkShows, 19},
                                           KindCase{"Stipulation", DataFileKind::Stipulations, 19}),
                         kNameOfRow);

TEST_F(ImportFails, WithoutItsSource)
{
    putBytes(kTarget, recordOf(36));
    causeOf(DataFileKind::NormalEndings, kSource);
    EXPECT_EQ(bytesIn(kTarget), recordOf(36));
}

TEST_F(ImportFails, FromAFolder)
{
    QDir().mkdir(kSource);
    causeOf(DataFileKind::TalkShows, kSource);
    EXPECT_FALSE(QFileInfo::exists(kTarget));
}

TEST_F(ImportFails, FromAPipeInsteadOfWaitingForIt)
{
    ASSERT_EQ(::mkfifo("source.tvd", 0600), 0);
    causeOf(DataFileKind::TalkShows, kSource);
    EXPECT_FALSE(QFileInfo::exists(kTarget));
}

TEST_F(ImportFails, IntoAFolder)
{
    putBytes(kSource, recordOf(44));
    QDir().mkdir(kTarget);
    causeOf(DataFileKind::RunInEndings, kTarget);
    EXPECT_TRUE(QDir(kTarget).isEmpty());
}

TEST_F(ImportFails, WhenStipulationsHaveNoTarget)
{
    putBytes(kSource, recordOf(19, {"Any", "Cage"}));
    causeOf(DataFileKind::Stipulations, kTarget);
    EXPECT_FALSE(QFileInfo::exists(kTarget));
}

TEST_F(ImportFails, WhenTheTargetOfStipulationsVanishesDuringAMessage)
{
    putBytes(kSource, recordOf(19, {"Any", "Cage"}) + recordOf(19, {"Any", "Ladder"}));
    putBytes(kTarget, recordOf(19, {"Any", "Cage"}));
    QThread::msleep(50); // a file that was changed just now is read anew in any case
    duringMessage = [] { ASSERT_TRUE(QFile::remove(kTarget)); };
    causeOf(DataFileKind::Stipulations, kTarget);
    EXPECT_EQ(messages, 1);
    EXPECT_FALSE(QFileInfo::exists(kTarget));
}

struct CutCase
{
    const char *name;
    int lines; ///< that are left of the target's second record, which is a duplicate
    int messages;
};

void PrintTo(const CutCase &cut, std::ostream *out)
{
    *out << cut.name;
}

class ImportIntoCutShortTarget : public ImportFails, public ::testing::WithParamInterface<CutCase>
{
};

TEST_P(ImportIntoCutShortTarget, FailsAfterTheMessagesOfWhatCouldBeRead)
{
    const QByteArray source = recordOf(19, {"Any", "Cage"});
    putBytes(kSource, source + source);
    const QByteArray target =
        source + recordOf(GetParam().lines, QByteArrayList({"", "Cage"}).mid(0, GetParam().lines));
    putBytes(kTarget, target);
    expectPlace(causeOf(DataFileKind::Stipulations, kTarget), 19 + GetParam().lines, 2);
    EXPECT_EQ(messages, GetParam().messages);
    EXPECT_EQ(bytesIn(kTarget), target);
}

INSTANTIATE_TEST_SUITE_P(, ImportIntoCutShortTarget,
                         ::testing::Values(CutCase{"AfterTheMatchType", 1, 1},
                                           CutCase{"AfterTheName", 2, 2},
                                           CutCase{"BeforeTheLastLine", 18, 2}),
                         kNameOfRow);

TEST_F(ImportFails, HalfWayAndTakesBackWhatWasWritten)
{
    putBytes(kSource, recordOf(44) + recordOf(44));
    putBytes(kTarget, recordOf(44, {"before"}));
    {
        const FileSizeLimit limit(static_cast<rlim_t>(recordOf(44).size()) + 100);
        causeOf(DataFileKind::RunInEndings, kTarget);
    }
    EXPECT_EQ(bytesIn(kTarget), recordOf(44, {"before"}));
}

TEST_F(ImportFails, HalfWayAndRemovesTheTargetThatItCreated)
{
    putBytes(kSource, recordOf(44) + recordOf(44));
    const FileSizeLimit limit(100);
    causeOf(DataFileKind::RunInEndings, kTarget);
    EXPECT_FALSE(QFileInfo::exists(kTarget));
}

TEST_F(ImportFails, HalfWayThroughALinkAndKeepsTheLink)
{
    putBytes(kSource, recordOf(44) + recordOf(44));
    ASSERT_EQ(::symlink("elsewhere.tvd", "target.tvd"), 0);
    const FileSizeLimit limit(100);
    causeOf(DataFileKind::RunInEndings, kTarget);
    EXPECT_FALSE(QFileInfo::exists(QStringLiteral("elsewhere.tvd")));
    EXPECT_TRUE(QFileInfo(kTarget).isSymLink());
}

} // namespace
} // namespace tarvold::testing
