#include "stipulations/stipulation_test.h"
#include "support/tool_tips.h"

#include <QAbstractButton>
#include <QScrollBar>
#include <QSet>
#include <QTest>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

struct Control
{
    const char *control;
    const char *value;
};

const char *const kCombos[] = {"matchtype", "dqposs",  "usedefault", "runins",       "drawcurrent",
                               "drawmax",   "drawdec", "drawinc",    "entcurrent",   "entmax",
                               "entdec",    "entinc",  "exclusive",  "matchquality", "titleneeded"};

class StipulationForm : public StipulationTest
{
protected:
    QScrollBar &bar() { return screen("Form3").control<QScrollBar>("HScroll1"); }

    QStringList items(const char *name)
    {
        QStringList texts;
        const ComboBox &box = combo("Form3", name);
        for (int row = 0; row < box.count(); ++row) {
            texts << box.itemText(row);
        }
        return texts;
    }

    void expectShown(const std::vector<Control> &expected)
    {
        for (const auto &[name, value] : expected) {
            EXPECT_EQ(shown(name), utf8(value)) << name;
        }
    }
};

TEST_F(StipulationForm, TheSaveButtonTellsTheWholePathOfItsFile)
{
    for (const QString &name : {u"mine.tvd"_s, u"./a <b>folder</b>/mine.tvd"_s}) {
        ASSERT_TRUE(QDir().mkpath(u"a <b>folder</b>"_s));
        writeFile(qPrintable(name), stipulation("Singles", "One"));
        type("Form1", "Text1", name);
        press("Form1", "Command1");
        createNew();
        const QString whole = QDir::currentPath() + u'/' + QDir::cleanPath(name);
        const QString expected = u"Saves in %1 (Ctrl+S)"_s.arg(QDir::toNativeSeparators(whole));
        EXPECT_EQ(toolTipOf(control("Form3", "Command2")), expected);
        EXPECT_EQ(control("Form3", "Command2").accessibleDescription(), expected);
        cancel();
        press("Form16", "Command3");
    }
}

TEST_F(StipulationForm, HasItsCaptions)
{
    open("");
    createNew();
    EXPECT_EQ(screen("Form3").windowTitle(), u"Tarvold 1.3 Data Editor"_s);
    expectShown({{"Label1", "Connected With Match Type:"},
                 {"Label2", "Name Of Stipulation:"},
                 {"Label3", "Shows On Results Screen As:"},
                 {"Label4", "Is DQ Possible In This Match?:"},
                 {"Label5", "Use Default Commentary Also?:"},
                 {"Label6", "Can There Be Run-Ins For This Match?:"},
                 {"Label7", "Injury Risk (5% = Normal)"},
                 {"Label9", "Match Draw Value:"},
                 {"Label10", "Current"},
                 {"Label11", "Maximum"},
                 {"Label12", "When Used, Decrease By"},
                 {"Label13", "Increase Daily By"},
                 {"Label14", "Match Entertainment Value:"},
                 {"Label15", "Exclusive To A Promotion?:"},
                 {"Label16", "Promotion Initials:"},
                 {"Label17", "Rate Match Quality By:"},
                 {"Label18", "Does a title have to be on the line?:"}});
    EXPECT_EQ(screen("Form3").control<QAbstractButton>("Command1").text(),
              u"Cancel And Return To Menu"_s);
    EXPECT_EQ(screen("Form3").control<QAbstractButton>("Command2").text(),
              u"Save This Stipulation"_s);
}

TEST_F(StipulationForm, OffersTheListsOfItsCombos)
{
    open("");
    createNew();
    EXPECT_EQ(items("matchtype").join(u'|'),
              u"Singles|Tag Team|Triple Threat|4 Way Dance|6 Way Dance|3 Way Tag Team|"
              "4 Way Tag Team|6 Man Tag|8 Man Tag|10 Man Tag|2 on 1 Handicap Match|"
              "Women's Match|Women's Tag Team|Women's Triple Threat|Women's 6 Person Tag|"
              "Intergender Match|Intergender Tag Team|Intergender 6 Person Tag|"
              "Battle Royal"_s);
    for (const char *name : {"dqposs", "usedefault", "runins", "exclusive", "titleneeded"}) {
        EXPECT_EQ(items(name).join(u'|'), u"Yes|No"_s) << name;
    }
    EXPECT_EQ(items("matchquality").join(u'|'),
              u"Just Standard Ability|Just Hardcore Ability|50% Standard, 50% Hardcore"_s);
}

TEST_F(StipulationForm, OffersTheNumbersTo100AndNaWhereAValueNeedNotChange)
{
    open("");
    createNew();
    QStringList numbers;
    for (int number = 1; number <= 100; ++number) {
        numbers << QString::number(number);
    }
    for (const char *name : {"drawcurrent", "drawmax", "entcurrent", "entmax"}) {
        EXPECT_EQ(items(name), numbers) << name;
    }
    numbers.prepend(u"NA"_s);
    for (const char *name : {"drawdec", "drawinc", "entdec", "entinc"}) {
        EXPECT_EQ(items(name), numbers) << name;
    }
    EXPECT_EQ(bar().minimum(), 1);
    EXPECT_EQ(bar().maximum(), 100);
}

const std::vector<Control> kDefaults = {
    {"matchtype", "Singles"}, {"stipulation", ""},
    {"matchshowsas", ""},     {"dqposs", "Yes"},
    {"usedefault", "No"},     {"runins", "Yes"},
    {"HScroll1", "5"},        {"risk", "5%"},
    {"drawcurrent", "50"},    {"drawmax", "50"},
    {"entcurrent", "50"},     {"entmax", "50"},
    {"drawinc", "NA"},        {"drawdec", "NA"},
    {"entinc", "NA"},         {"entdec", "NA"},
    {"exclusive", "No"},      {"prominitials", ""},
    {"titleneeded", "No"},    {"matchquality", "Just Standard Ability"}};

TEST_F(StipulationForm, StartsANewOneFromTheDefaults)
{
    open("");
    createNew();
    expectShown(kDefaults);
}

TEST_F(StipulationForm, StartsANewOneFromTheDefaultsAfterAnotherWasEdited)
{
    open(stipulation("Tag Team", "One"));
    edit(0);
    cancel();
    createNew();
    expectShown(kDefaults);
}

TEST_F(StipulationForm, ShowsEveryLineOfTheEditedRecordInItsControl)
{
    open(stipulation("Tag Team", "One"));
    edit(0);
    expectShown({{"matchtype", "Tag Team"},
                 {"stipulation", "One"},
                 {"matchshowsas", "Shown"},
                 {"dqposs", "No"},
                 {"usedefault", "Yes"},
                 {"runins", "No"},
                 {"HScroll1", "7"},
                 {"risk", "7%"},
                 {"drawcurrent", "9"},
                 {"entcurrent", "10"},
                 {"drawmax", "11"},
                 {"entmax", "12"},
                 {"drawdec", "13"},
                 {"entdec", "14"},
                 {"drawinc", "15"},
                 {"entinc", "16"},
                 {"exclusive", "Yes"},
                 {"prominitials", "ABC"},
                 {"matchquality", "50% Standard, 50% Hardcore"},
                 {"titleneeded", "Yes"}});
}

TEST_F(StipulationForm, ShowsTheTextsOfAFileEvenWhereNoListHoldsThem)
{
    OtherLines odd;
    for (const int line : {3, 4, 5, 6, 7, 9, 10, 11, 12, 13, 14, 15, 16, 19}) {
        odd[line] = " odd " + QByteArray::number(line);
    }
    open(stipulation("Lucha", "One", odd));
    edit(0);
    expectShown({{"matchtype", "Lucha"},
                 {"matchshowsas", " odd 3"},
                 {"dqposs", " odd 4"},
                 {"usedefault", " odd 5"},
                 {"runins", " odd 7"},
                 {"drawcurrent", " odd 9"},
                 {"entcurrent", " odd 10"},
                 {"drawmax", " odd 11"},
                 {"entmax", " odd 12"},
                 {"drawdec", " odd 13"},
                 {"entdec", " odd 14"},
                 {"drawinc", " odd 15"},
                 {"entinc", " odd 16"},
                 {"titleneeded", " odd 19"}});
    odd[6] = "No";
    save();
    EXPECT_EQ(readBack(kFile), stipulation("Lucha", "One", odd));
}

TEST_F(StipulationForm, ShowsALineThatIsNotNoAsInitialsAndAsExclusive)
{
    const std::pair<const char *, std::vector<Control>> cases[] = {
        {"ABC", {{"exclusive", "Yes"}, {"prominitials", "ABC"}}},
        {"No", {{"exclusive", "No"}, {"prominitials", ""}}},
        {"", {{"exclusive", "Yes"}, {"prominitials", ""}}},
        {"no", {{"exclusive", "Yes"}, {"prominitials", "no"}}},
        {"Yes", {{"exclusive", "Yes"}, {"prominitials", "Yes"}}}};
    for (const auto &[line, expected] : cases) {
        open(stipulation("Singles", "One", {{17, line}}));
        edit(0);
        expectShown(expected);
        cancel();
        press("Form16", "Command3");
    }
}

TEST_F(StipulationForm, ShowsTheQualityOfAKnownWordAndKeepsTheComboForAnyOther)
{
    const std::pair<const char *, const char *> cases[] = {
        {"Yes", "Just Hardcore Ability"},       {"odd", "Just Hardcore Ability"},
        {"No", "Just Standard Ability"},        {"", "Just Standard Ability"},
        {"Both", "50% Standard, 50% Hardcore"}, {"both", "50% Standard, 50% Hardcore"},
        {"Yes ", "50% Standard, 50% Hardcore"}};
    for (const auto &[word, expected] : cases) {
        open(stipulation("Singles", "One", {{18, word}}));
        edit(0);
        EXPECT_EQ(shown("matchquality"), utf8(expected)) << word;
        cancel();
        press("Form16", "Command3");
    }
}

TEST_F(StipulationForm, KeepsATypedQualityForAnUnknownWord)
{
    open(stipulation("Singles", "One", {{18, "odd"}}));
    createNew();
    put("matchquality", "By heart");
    cancel();
    edit(0);
    EXPECT_EQ(shown("matchquality"), u"By heart"_s);
}

TEST_F(StipulationForm, StartsInItsFirstFieldAndReachesAllOthersByTab)
{
    open("");
    createNew();
    expectReachable(control("Form3", "matchtype"));
    QSet<QString> reached;
    for (int step = 0; step < 30; ++step) {
        // The box inside a combo box has the focus instead.
        const QWidget *focused = QApplication::focusWidget();
        ASSERT_NE(focused, nullptr);
        const auto *box = qobject_cast<const QComboBox *>(focused->parentWidget());
        const QString name = (box != nullptr ? box : focused)->objectName();
        if (step == 0) {
            EXPECT_EQ(name, u"matchtype"_s);
        }
        reached << name;
        QTest::keyClick(screen("Form3").windowHandle(), Qt::Key_Tab);
    }
    for (const char *name : kCombos) {
        EXPECT_TRUE(reached.contains(utf8(name))) << name;
    }
    for (const char *name :
         {"stipulation", "matchshowsas", "prominitials", "HScroll1", "Command1", "Command2"}) {
        EXPECT_TRUE(reached.contains(utf8(name))) << name;
    }
    EXPECT_EQ(reached.size(), 15 + 6);
}

} // namespace
} // namespace tarvold::testing
