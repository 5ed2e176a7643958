#include "datafiles/stipulation_table.h"
#include "support/folder_test.h"
#include "support/hindrances.h"
#include "support/stipulation_records.h"

#include <sys/stat.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using StipulationTablePermissions = FolderTest;

TEST_F(StipulationTablePermissions, RefusesAFileThatCannotBeRead)
{
    writeFile("secret.tvd", stipulation("Singles", "Cage"));
    ASSERT_EQ(chmod(".", 0755), 0);
    ASSERT_EQ(chmod("secret.tvd", 0000), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        StipulationTable table;
        const auto loaded = table.load(u"secret.tvd"_s);
        return !loaded && !loaded.error().cause.isEmpty() && table.lineCount() == 0;
    }));
}

TEST_F(StipulationTablePermissions, ReportsAMissingFileThatCannotBeCreated)
{
    ASSERT_EQ(chmod(".", 0555), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([] { return !StipulationTable().load(u"a.tvd"_s); }));
    ASSERT_EQ(chmod(".", 0755), 0);
    EXPECT_EQ(folderContent(), "");
}

TEST_F(StipulationTablePermissions, SaysThatItCreatedAFileThatItMayNotRead)
{
    ASSERT_EQ(chmod(".", 0777), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        umask(0444);
        const auto loaded = StipulationTable().load(u"a.tvd"_s);
        return !loaded && loaded.error().outcome == FileOutcome::MaybeChanged;
    }));
    EXPECT_EQ(folderContent(), "a.tvd");
}

} // namespace
} // namespace tarvold::testing
