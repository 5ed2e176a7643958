#include "stipulations/stipulation_test.h"
#include "support/hindrances.h"

namespace tarvold::testing {
namespace {

using Texts = std::vector<std::string>;

class StipulationFailure : public StipulationTest
{
protected:
    /// Presses save, expects it to fail with the form kept, and gives what the user was told.
    QString failedSave()
    {
        QString told;
        boxes.catchNotice(utf8("Stipulations Editor"), &told);
        press("Form3", "Command2");
        expectOnly("Form3");
        return told;
    }

    void putAFolderInTheWay()
    {
        ASSERT_TRUE(QFile::remove(utf8(kFile)));
        ASSERT_TRUE(QDir().mkdir(utf8(kFile)));
    }

    void clearTheWay() { ASSERT_TRUE(QDir().rmdir(utf8(kFile))); }

    const QByteArray one = stipulation("Singles", "One");
    const QByteArray two = stipulation("Singles", "Two");
};

TEST_F(StipulationFailure, NamesTheFileAndTheCauseAndKeepsWhatIsTyped)
{
    open(one);
    createNew();
    put("stipulation", "Cage");
    put("prominitials", "ABC");
    putAFolderInTheWay();
    const QString told = failedSave();
    EXPECT_TRUE(told.contains(utf8(kFile)) && told.contains(utf8("folder"))) << told.toStdString();
    EXPECT_EQ(shown("stipulation"), utf8("Cage"));
    EXPECT_EQ(shown("prominitials"), utf8("ABC"));
    EXPECT_EQ(folderContent(), kFile);
}

TEST_F(StipulationFailure, OfANewOneIsMendedByASecondTryThatSavesItOnce)
{
    open(one);
    createNew();
    put("stipulation", "Cage");
    putAFolderInTheWay();
    failedSave();
    clearTheWay();
    save();
    EXPECT_EQ(readBack(kFile), one + untouched("Cage"));
    EXPECT_EQ(listed(), (Texts{"Singles / One", "Singles / Cage"}));
}

TEST_F(StipulationFailure, OfAnEditedOneIsMendedByASecondTry)
{
    open(one + two);
    edit(1);
    put("stipulation", "Other");
    putAFolderInTheWay();
    failedSave();
    clearTheWay();
    save();
    EXPECT_EQ(readBack(kFile), one + stipulation("Singles", "Other"));
}

TEST_F(StipulationFailure, OfANewOneLeavesNoTraceAfterACancel)
{
    open(one);
    createNew();
    put("stipulation", "Cage");
    putAFolderInTheWay();
    failedSave();
    cancel();
    EXPECT_EQ(listed(), Texts{"Singles / One"});
    clearTheWay();
    edit(0);
    save();
    EXPECT_EQ(readBack(kFile), one);
}

TEST_F(StipulationFailure, OfAnEditedOneLeavesNoTraceAfterACancel)
{
    open(one + two);
    edit(1);
    put("stipulation", "Other");
    putAFolderInTheWay();
    failedSave();
    cancel();
    EXPECT_EQ(listed(), (Texts{"Singles / One", "Singles / Two"}));
    clearTheWay();
    edit(0);
    save();
    EXPECT_EQ(readBack(kFile), one + two);
}

TEST_F(StipulationFailure, OnAFullDiskLeavesTheOldFileAndNothingElse)
{
    open(one);
    createNew();
    put("stipulation", "Cage");
    QString told;
    {
        const FileSizeLimit limit(rlim_t(one.size()) + 10);
        told = failedSave();
    }
    EXPECT_TRUE(told.contains(utf8(kFile)) && told.contains(utf8("File too large")))
        << told.toStdString();
    EXPECT_EQ(readBack(kFile), one);
    EXPECT_EQ(folderContent(), kFile);
    save();
    EXPECT_EQ(readBack(kFile), one + untouched("Cage"));
}

struct Field
{
    const char *control;
    const char *caption;
};

void PrintTo(const Field &sample, std::ostream *out)
{
    *out << sample.control;
}

class CharacterThatNoFileHolds : public StipulationFailure,
                                 public ::testing::WithParamInterface<Field>
{
};

TEST_P(CharacterThatNoFileHolds, IsRefusedByTheNameOfItsField)
{
    open(one);
    edit(0);
    put(GetParam().control, "");
    paste(control("Form3", GetParam().control), utf8("a\u03A9b"));
    const QString told = failedSave();
    EXPECT_TRUE(told.contains(utf8(GetParam().caption))) << told.toStdString();
    EXPECT_TRUE(told.contains(utf8("\u03A9"))) << told.toStdString();
    EXPECT_EQ(shown(GetParam().control), utf8("a\u03A9b"));
    EXPECT_EQ(readBack(kFile), one);
    put(GetParam().control, "mended");
    save();
    EXPECT_TRUE(readBack(kFile).contains("\r\nmended\r\n") || readBack(kFile).startsWith("mended"));
}

INSTANTIATE_TEST_SUITE_P(
    , CharacterThatNoFileHolds,
    ::testing::Values(Field{"matchtype", "Connected With Match Type:"},
                      Field{"stipulation", "Name Of Stipulation:"},
                      Field{"matchshowsas", "Shows On Results Screen As:"},
                      Field{"dqposs", "Is DQ Possible In This Match?:"},
                      Field{"usedefault", "Use Default Commentary Also?:"},
                      Field{"runins", "Can There Be Run-Ins For This Match?:"},
                      Field{"drawcurrent", "Match Draw Value: Current"},
                      Field{"entinc", "Match Entertainment Value: Increase Daily By"},
                      Field{"prominitials", "Promotion Initials:"},
                      Field{"titleneeded", "Does a title have to be on the line?:"}),
    [](const auto &sample) { return sample.param.control; });

} // namespace
} // namespace tarvold::testing
