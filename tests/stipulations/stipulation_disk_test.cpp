// Saving on a disk that writes the new file, but fails to sync its folder.

#include "stipulations/stipulation_test.h"

#include <QDir>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace Qt::StringLiterals;

bool foldersFail = false;
bool removalFails = false;
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

/// Replaces the system's unlink() in this program.
int unlink(const char *path) noexcept(noexcept(::unlink("")))
{
    if (removalFails) {
        errno = EIO;
        return -1;
    }
    return unlinkat(AT_FDCWD, path, 0);
}

namespace tarvold::testing {
namespace {

using Texts = std::vector<std::string>;

class StipulationsOnAFailingDisk : public StipulationTest
{
protected:
    StipulationsOnAFailingDisk()
    {
        open(one);
        foldersFail = true;
    }
    void TearDown() override
    {
        foldersFail = false;
        removalFails = false;
        StipulationTest::TearDown();
    }

    void expectWarning()
    {
        boxes.expectNotice(
            u"Stipulations Editor"_s,
            u"The file \"%1\" was written, but the disk did not confirm it.\n\n"
            "The disk failed, or was removed.\n\nThe change is in the file. Should the computer "
            "stop before "
            "the disk has caught up, it may be lost."_s.arg(
                QDir::current().filePath(u"stipulations.tvd"_s)));
    }

    const QByteArray one = stipulation("Singles", "One");
};

TEST_F(StipulationsOnAFailingDisk, AreSavedWithAWarning)
{
    createNew();
    put("stipulation", "Cage");
    expectWarning();
    press("Form3", "Command2");
    expectOnly("Form16");
    EXPECT_EQ(readBack(kFile), one + untouched("Cage"));
    EXPECT_EQ(listed(), (Texts{"Singles / One", "Singles / Cage"}));
}

TEST_F(StipulationsOnAFailingDisk, AreDeletedWithAWarning)
{
    select(0);
    boxes.expectQuestion(u"Delete Stipulation"_s,
                         u"Are you sure you want to permanently delete the match stipulation:"
                         "\r\n\r\nSingles / One\r\n"_s,
                         Answer::Yes);
    expectWarning();
    press("Form16", "Command4");
    EXPECT_EQ(readBack(kFile), "");
    EXPECT_TRUE(listed().empty());
}

TEST_F(StipulationsOnAFailingDisk, AreKnownToTheNextSave)
{
    createNew();
    put("stipulation", "Cage");
    expectWarning();
    press("Form3", "Command2");
    foldersFail = false;
    createNew();
    put("stipulation", "Ladder");
    save();
    EXPECT_EQ(readBack(kFile), one + untouched("Cage") + untouched("Ladder"));
}

/// Opens the list with the name of a missing file, and expects this message instead.
class StipulationsMissingOnAFailingDisk : public StipulationsOnAFailingDisk
{
protected:
    void expectRefusal(const char *state)
    {
        press("Form16", "Command3");
        type("Form1", "Text1", u"new.tvd"_s);
        boxes.expectNotice(u"Stipulations Editor"_s,
                           u"The file \"%1\" could not be loaded.\n\nThe disk failed, or was "
                           "removed.\n\n"_s.arg(QDir::current().filePath(u"new.tvd"_s)) +
                               utf8(state));
        press("Form1", "Command1");
        expectOnly("Form1");
    }
};

TEST_F(StipulationsMissingOnAFailingDisk, AreNotChangedWhenTheNewFileIsRemoved)
{
    expectRefusal("Nothing was changed.");
    EXPECT_EQ(folderContent(), kFile);
}

TEST_F(StipulationsMissingOnAFailingDisk, MayBeThereWhenTheNewFileCannotBeRemoved)
{
    removalFails = true;
    expectRefusal("The file was missing, and an empty one may be there now.");
    EXPECT_EQ(readBack("new.tvd"), "");
}

} // namespace
} // namespace tarvold::testing
