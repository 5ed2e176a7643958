#include "stipulations/stipulation_test.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

const Notice kDuplicate = {
    "Duplication!",
    "This match type/stipulation combination already exists in the file you are editting."};
const Notice kBlank = {"No Stipulation Stated", "Stipulation cannot be left blank!"};
const Notice kNoInitials = {
    "Exclusive To Who?", "You have stated that this stipulation is exclusive to a promotion, but "
                         "you haven't entered the initials of that promotion!"};

class StipulationChecks : public StipulationTest
{
protected:
    const QByteArray one = stipulation("Singles", "One");
    const QByteArray two = stipulation("Singles", "Two");
    const QByteArray three = stipulation("Tag Team", "Three");

    /// Fills the form for a new stipulation of singles matches, up to its save.
    void make(const char *name)
    {
        createNew();
        put("stipulation", name);
    }
};

TEST_F(StipulationChecks, RefuseABlankName)
{
    open(one);
    createNew();
    saveRefused({kBlank});
    EXPECT_EQ(readBack(kFile), one);
}

TEST_F(StipulationChecks, AcceptANameOfOneBlankAndAnEmptyMatchType)
{
    open(one);
    make(" ");
    put("matchtype", "");
    save();
    EXPECT_EQ(readBack(kFile), one + untouched(" ").mid(7));
    EXPECT_EQ(listed(), std::vector<std::string>{"Singles / One"});
}

TEST_F(StipulationChecks, RefuseExclusiveWithoutInitials)
{
    open("");
    make("Cage");
    choose("Form3", "exclusive", u"Yes"_s);
    saveRefused({kNoInitials});
    EXPECT_EQ(readBack(kFile), "");
    put("prominitials", "ABC");
    save();
    EXPECT_EQ(readBack(kFile), untouched("Cage").replace("NA\r\nNo\r\n", "NA\r\nABC\r\n"));
}

TEST_F(StipulationChecks, WriteNoForInitialsThatTheChoiceOfNoCleared)
{
    open("");
    make("Cage");
    put("prominitials", "ABC");
    choose("Form3", "exclusive", u"No"_s);
    save();
    EXPECT_EQ(readBack(kFile), untouched("Cage"));
}

TEST_F(StipulationChecks, RefuseTheKeyOfALaterRecordForANewOne)
{
    open(one + two);
    make("Two");
    saveRefused({kDuplicate});
    EXPECT_EQ(readBack(kFile), one + two);
    EXPECT_EQ(shown("stipulation"), u"Two"_s);
}

TEST_F(StipulationChecks, AcceptTheKeyOfTheFirstRecordForANewOne)
{
    open(one + two);
    make("One");
    save();
    EXPECT_EQ(readBack(kFile), one + two + untouched("One"));
    EXPECT_EQ(listed(),
              (std::vector<std::string>{"Singles / One", "Singles / Two", "Singles / One"}));
}

TEST_F(StipulationChecks, RefuseTheKeyOfTheFirstRecordOnceALaterOneHasItToo)
{
    open(one + two);
    make("One");
    save();
    make("One");
    saveRefused({kDuplicate});
}

TEST_F(StipulationChecks, ReportAKeyOncePerPlaceInTheFile)
{
    open(one + two + two + two);
    make("Two");
    saveRefused({kDuplicate, kDuplicate, kDuplicate});
}

TEST_F(StipulationChecks, FindAPairOfLinesThatIsNoKey)
{
    // "No" and "7" are the lines 7 and 8 of the record.
    open(one);
    make("7");
    put("matchtype", "No");
    saveRefused({kDuplicate});
}

TEST_F(StipulationChecks, FindAPairAcrossTwoRecords)
{
    open(one + three);
    make("Tag Team");
    put("matchtype", "Yes");
    saveRefused({kDuplicate});
}

TEST_F(StipulationChecks, TakeTheLineAfterTheLastAsAnEmptyName)
{
    open(one);
    createNew();
    put("matchtype", "Yes");
    saveRefused({kDuplicate, kBlank});
}

TEST_F(StipulationChecks, CompareKeysCaseSensitively)
{
    open(one + two);
    make("TWO");
    save();
    EXPECT_EQ(readBack(kFile), one + two + untouched("TWO"));
}

TEST_F(StipulationChecks, AcceptTheSameNameForAnotherMatchType)
{
    open(one + two);
    make("Two");
    choose("Form3", "matchtype", u"Tag Team"_s);
    save();
    EXPECT_EQ(listed().back(), "Tag Team / Two");
}

TEST_F(StipulationChecks, AcceptAnEditedRecordThatKeepsItsKey)
{
    open(one + two + three);
    for (int row = 0; row < 3; ++row) {
        edit(row);
        save();
    }
    EXPECT_EQ(readBack(kFile), one + two + three);
}

TEST_F(StipulationChecks, RefuseTheKeyOfAnotherRecordForAnEditedOne)
{
    open(one + two + three);
    edit(1);
    put("stipulation", "One");
    saveRefused({kDuplicate});
    EXPECT_EQ(readBack(kFile), one + two + three);
    put("stipulation", "Four");
    save();
    EXPECT_EQ(readBack(kFile), one + stipulation("Singles", "Four") + three);
}

TEST_F(StipulationChecks, ForgetTheEditedRecordWhenANewOneIsMade)
{
    open(one + two);
    edit(1);
    cancel();
    make("Two");
    saveRefused({kDuplicate});
}

TEST_F(StipulationChecks, ReportSeveralFailuresInTheirOrderAndKeepWhatIsTyped)
{
    open(stipulation("Singles", "One") + stipulation("Singles", ""));
    createNew();
    put("matchshowsas", "typed");
    choose("Form3", "exclusive", u"Yes"_s);
    saveRefused({kDuplicate, kBlank, kNoInitials});
    EXPECT_EQ(shown("matchshowsas"), u"typed"_s);
    EXPECT_EQ(shown("exclusive"), u"Yes"_s);
    put("stipulation", "Two");
    saveRefused({kNoInitials});
    put("prominitials", "ABC");
    save();
}

TEST_F(StipulationChecks, FindNothingInAnEmptyTable)
{
    open("");
    make("Cage");
    save();
    EXPECT_EQ(readBack(kFile), untouched("Cage"));
}

} // namespace
} // namespace tarvold::testing
