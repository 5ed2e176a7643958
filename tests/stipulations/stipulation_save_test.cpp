#include "stipulations/stipulation_test.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class StipulationSave : public StipulationTest
{
protected:
    const QByteArray one = stipulation("Singles", "One");
    const QByteArray two = stipulation("Singles", "Two");
    const QByteArray three = stipulation("Tag Team", "Three");
};

TEST_F(StipulationSave, WritesTheRecordOfTheDefaults)
{
    open("");
    createNew();
    put("stipulation", "Cage");
    save();
    EXPECT_EQ(readBack(kFile), untouched("Cage"));
    EXPECT_EQ(listed(), std::vector<std::string>{"Singles / Cage"});
}

TEST_F(StipulationSave, WritesEveryControlInItsLine)
{
    open("");
    createNew();
    const std::pair<const char *, const char *> typed[] = {
        {"matchtype", "Lucha"},  {"stipulation", "One"}, {"matchshowsas", "Shown"},
        {"dqposs", "d"},         {"usedefault", "u"},    {"runins", "r"},
        {"drawcurrent", "9"},    {"entcurrent", "10"},   {"drawmax", "11"},
        {"entmax", "12"},        {"drawdec", "13"},      {"entdec", "14"},
        {"drawinc", "15"},       {"entinc", "16"},       {"exclusive", "Yes"},
        {"prominitials", "ABC"}, {"titleneeded", "t"}};
    for (const auto &[name, text] : typed) {
        put(name, text);
    }
    choose("Form3", "matchquality", u"50% Standard, 50% Hardcore"_s);
    save();
    EXPECT_EQ(readBack(kFile),
              stipulation("Lucha", "One",
                          {{4, "d"}, {5, "u"}, {6, "No"}, {7, "r"}, {8, "5"}, {19, "t"}}));
}

TEST_F(StipulationSave, WritesTheWordOfTheChosenQuality)
{
    const std::pair<const char *, const char *> words[] = {{"Just Standard Ability", "No"},
                                                           {"Just Hardcore Ability", "Yes"},
                                                           {"50% Standard, 50% Hardcore", "Both"}};
    open(one);
    for (const auto &[item, word] : words) {
        edit(0);
        choose("Form3", "matchquality", utf8(item));
        save();
        EXPECT_EQ(readBack(kFile), stipulation("Singles", "One", {{18, word}}));
    }
}

TEST_F(StipulationSave, WritesARiskOfFiveAsTheDigitAndShowsItWithThePercentSign)
{
    open("");
    createNew();
    put("stipulation", "Cage");
    save();
    EXPECT_TRUE(readBack(kFile).contains("Yes\r\n5\r\n50\r\n"));
    edit(0);
    EXPECT_EQ(shown("risk"), u"5%"_s);
    EXPECT_EQ(shown("HScroll1"), u"5"_s);
}

TEST_F(StipulationSave, PutsANewRecordAtTheEnd)
{
    open(one + three);
    createNew();
    put("stipulation", "A");
    save();
    EXPECT_EQ(readBack(kFile), one + three + untouched("A"));
    EXPECT_EQ(listed().back(), "Singles / A");
}

TEST_F(StipulationSave, KeepsTheEditedRecordInItsPlace)
{
    open(one + two + three);
    edit(1);
    put("stipulation", "Other");
    save();
    EXPECT_EQ(readBack(kFile), one + stipulation("Singles", "Other") + three);
    EXPECT_EQ(listed(),
              (std::vector<std::string>{"Singles / One", "Singles / Other", "Tag Team / Three"}));
    EXPECT_EQ(listPosition(), u"19"_s);
}

TEST_F(StipulationSave, WritesAlwaysNoIntoTheReservedLine)
{
    open(stipulation("Singles", "One", {{6, "odd"}}) + two);
    edit(0);
    save();
    EXPECT_EQ(readBack(kFile), one + two);
}

TEST_F(StipulationSave, WritesOneLineLessForANewRecordOfAnUnknownQuality)
{
    open(one);
    createNew();
    put("stipulation", "Cage");
    put("matchquality", "By heart");
    save();
    EXPECT_EQ(readBack(kFile), one + untouched("Cage").chopped(4));
}

TEST_F(StipulationSave, KeepsTheOldLineForAnEditedRecordOfAnUnknownQuality)
{
    open(stipulation("Singles", "One", {{18, "odd"}}) + two);
    edit(0);
    put("matchquality", "just standard ability");
    save();
    EXPECT_EQ(readBack(kFile), stipulation("Singles", "One", {{18, "odd"}}) + two);
}

TEST_F(StipulationSave, WritesInitialsForEveryWordButNo)
{
    open(one);
    edit(0);
    put("exclusive", "no");
    save();
    EXPECT_EQ(readBack(kFile), one);
    edit(0);
    put("exclusive", "Perhaps");
    put("prominitials", "");
    save();
    EXPECT_EQ(readBack(kFile), stipulation("Singles", "One", {{17, ""}}));
}

TEST_F(StipulationSave, LeavesTheBytesOfAllOtherRecords)
{
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    const QByteArray odd = stipulation(all, all, {{3, QByteArray(100000, 'x')}, {8, all}, {6, ""}});
    open(odd + one + odd);
    edit(1);
    put("stipulation", "Other");
    save();
    EXPECT_EQ(readBack(kFile), odd + stipulation("Singles", "Other") + odd);
}

TEST_F(StipulationSave, LeavesTheBytesOfAnOddRecordThatIsSavedUnchanged)
{
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    const QByteArray odd =
        stipulation(all, all, {{3, QByteArray(100000, 'x')}, {9, QByteArray(100000, '9')}});
    open(odd + one);
    edit(0);
    save();
    EXPECT_EQ(readBack(kFile), odd + one);
}

TEST_F(StipulationSave, GoesToTheFileThatTheMenuNamesNow)
{
    open(one);
    editor.screens().setText({"Form1", "Text1"}, u"other.tvd"_s);
    edit(0);
    save();
    EXPECT_EQ(readBack("other.tvd"), one);
}

} // namespace
} // namespace tarvold::testing
