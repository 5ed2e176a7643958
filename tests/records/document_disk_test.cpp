// Saving on disks that fail, and beside other programs.

#include "document_test.h"
#include "support/hindrances.h"

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool foldersFail = false;

} // namespace

/// Replaces the system's fsync() in this program.
int fsync(int handle) noexcept(noexcept(::fsync(0)))
{
    struct stat state = {};
    if (foldersFail && fstat(handle, &state) == 0 && S_ISDIR(state.st_mode)) {
        errno = EIO;
        return -1;
    }
    return 0;
}

namespace tarvold::testing {
namespace {

using namespace Qt::StringLiterals;

class DocumentOnDisk : public DocumentTest
{
protected:
    void SetUp() override
    {
        DocumentTest::SetUp();
        document.replace(1, talkShow("New"), u"Edit"_s);
    }
    void TearDown() override { foldersFail = false; }

    /// The outcome of a save that fails.
    FileOutcome failedSave(const std::function<bool()> &mayOverwrite = {})
    {
        const Result<void> result = document.save(mayOverwrite);
        EXPECT_FALSE(result);
        return result ? FileOutcome::Unchanged : result.error().outcome;
    }

    const QByteArray changed = one + talkShow("New") + three;
    const QByteArray theirs = talkShow("Theirs");
};

TEST_F(DocumentOnDisk, SavesItsChanges)
{
    EXPECT_TRUE(document.isFileUnchanged());
    ASSERT_TRUE(document.save({}));
    EXPECT_EQ(readBack(kFile), changed);
    EXPECT_FALSE(document.isChanged());
    EXPECT_TRUE(document.isFileUnchanged());
    EXPECT_EQ(folderContent(), kFile);
}

TEST_F(DocumentOnDisk, AsksBeforeItOverwritesWhatAnotherProgramChanged)
{
    writeFile(kFile, theirs);
    EXPECT_FALSE(document.isFileUnchanged());
    int asked = 0;
    EXPECT_EQ(failedSave([&asked] { return ++asked < 0; }), FileOutcome::ChangedByAnother);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(readBack(kFile), theirs);
    EXPECT_EQ(shown(), "One New:E Three");
    EXPECT_TRUE(document.isChanged());
    ASSERT_TRUE(document.save([] { return true; }));
    EXPECT_EQ(readBack(kFile), changed);
}

TEST_F(DocumentOnDisk, OverwritesNothingWithoutAsking)
{
    writeFile(kFile, one + two + theirs + three);
    EXPECT_EQ(failedSave(), FileOutcome::ChangedByAnother);
    EXPECT_EQ(readBack(kFile), one + two + theirs + three);
}

TEST_F(DocumentOnDisk, SavesTwiceWithoutAsking)
{
    ASSERT_TRUE(document.save({}));
    undo();
    ASSERT_TRUE(document.save({}));
    EXPECT_EQ(readBack(kFile), one + two + three);
}

TEST_F(DocumentOnDisk, CreatesAFileAgainThatIsGone)
{
    ASSERT_TRUE(QFile::remove(QString::fromLatin1(kFile)));
    EXPECT_FALSE(document.isFileUnchanged());
    ASSERT_TRUE(document.save({}));
    EXPECT_EQ(readBack(kFile), changed);
}

TEST_F(DocumentOnDisk, KeepsChangesThatAFolderDoesNotTake)
{
    ASSERT_EQ(::chmod(".", 0555), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([this] {
        const Result<void> saved = document.save({});
        return !saved && saved.error().outcome == FileOutcome::Unchanged && document.isChanged() &&
               content() == changed;
    }));
    ASSERT_EQ(::chmod(".", 0755), 0);
    EXPECT_EQ(readBack(kFile), one + two + three);
}

TEST_F(DocumentOnDisk, KeepsChangesThatAFullDiskDoesNotTake)
{
    {
        const FileSizeLimit limit(100);
        EXPECT_EQ(failedSave(), FileOutcome::Unchanged);
    }
    EXPECT_EQ(readBack(kFile), one + two + three);
    EXPECT_EQ(shown(), "One New:E Three");
    EXPECT_TRUE(document.isChanged());
    EXPECT_EQ(folderContent(), kFile);
    ASSERT_TRUE(document.save({}));
    EXPECT_EQ(readBack(kFile), changed);
}

TEST_F(DocumentOnDisk, TakesChangesForSavedThatOnlyTheDiskDidNotConfirm)
{
    foldersFail = true;
    const Result<void> saved = document.save({});
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().outcome, FileOutcome::Unconfirmed);
    EXPECT_TRUE(Document::isInFile(saved));
    EXPECT_EQ(readBack(kFile), changed);
    EXPECT_EQ(shown(), "One New Three");
    EXPECT_FALSE(document.isChanged());
    EXPECT_TRUE(document.isFileUnchanged());
}

TEST_F(DocumentOnDisk, IsSavedAsAnotherFile)
{
    writeFile("other.tvd", theirs);
    ASSERT_TRUE(document.saveAs(u"other.tvd"_s));
    EXPECT_EQ(readBack("other.tvd"), changed);
    EXPECT_EQ(readBack(kFile), one + two + three);
    EXPECT_EQ(document.fileName(), u"other.tvd");
    EXPECT_FALSE(document.isChanged());
    document.remove({0});
    ASSERT_TRUE(document.save({}));
    EXPECT_EQ(readBack("other.tvd"), talkShow("New") + three);
}

TEST_F(DocumentOnDisk, StaysWithItsFileIfTheOtherCannotBeWritten)
{
    EXPECT_FALSE(document.saveAs(u"missing/other.tvd"_s));
    EXPECT_EQ(document.fileName(), QString::fromLatin1(kFile));
    EXPECT_TRUE(document.isChanged());
}

TEST_F(DocumentOnDisk, CopiesRecordsToTheEndOfAnotherFile)
{
    ASSERT_TRUE(document.copyTo(u"other.tvd"_s, {1, 0}));
    EXPECT_EQ(readBack("other.tvd"), talkShow("New") + one);
    EXPECT_EQ(shown(), "One New:E Three");
}

TEST_F(DocumentOnDisk, EndsTheLinesAroundACopy)
{
    writeFile(kFile, one + two.chopped(2));
    ASSERT_TRUE(document.reload());
    writeFile("other.tvd", theirs.chopped(2));
    ASSERT_TRUE(document.copyTo(u"other.tvd"_s, {1}));
    EXPECT_EQ(readBack("other.tvd"), theirs + two);
}

TEST_F(DocumentOnDisk, ForgetsItsChangesInAReload)
{
    writeFile(kFile, one + theirs);
    ASSERT_TRUE(document.reload());
    EXPECT_EQ(shown(), "One Theirs");
    EXPECT_EQ(steps(), 0);
    EXPECT_TRUE(document.isFileUnchanged());
    ASSERT_TRUE(QFile::remove(QString::fromLatin1(kFile)));
    EXPECT_FALSE(document.reload());
    EXPECT_EQ(shown(), "One Theirs");
}

} // namespace
} // namespace tarvold::testing
