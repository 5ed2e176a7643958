// Why an import fails on systems with pipes in folders and limits of file sizes.

#include "datafiles/import_fixture.h"
#include "support/hindrances.h"

#include <QFileInfo>

#include <sys/stat.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

TEST_F(ImportFails, FromAPipeInsteadOfWaitingForIt)
{
    ASSERT_EQ(::mkfifo("source.tvd", 0600), 0);
    causeOf(DataFileKind::TalkShows, kSource);
    EXPECT_FALSE(QFileInfo::exists(kTarget));
}

TEST_F(ImportFails, HalfWayAndUndoesWhatWasWritten)
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
    EXPECT_FALSE(QFileInfo::exists(u"elsewhere.tvd"_s));
    EXPECT_TRUE(QFileInfo(kTarget).isSymLink());
}

} // namespace
} // namespace tarvold::testing
