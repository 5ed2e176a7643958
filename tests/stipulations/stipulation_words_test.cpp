#include "controls/announcement.h"
#include "controls/combo_box.h"
#include "stipulations/stipulation_test.h"
#include "support/tool_tips.h"

#include <QDir>
#include <QLineEdit>
#include <QMessageBox>

#include <iterator>

/// Words outside their list on the form of a stipulation that was loaded from the file.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr char kNotListed[] = "Not in the list.";
constexpr char kLacksLine[] = "Not in the list. The file will lack this line.";
constexpr char kKeepsLine[] = "Not in the list. The file keeps what it has.";

/// A list of the form, and what happens to a word outside it.
struct WordRow
{
    const char *name;
    const char *word; ///< the beginning of an item, which might be taken for unfinished
    const char *warning;
    OtherLines saved; ///< what it changes in the loaded record
};

void PrintTo(const WordRow &row, std::ostream *out)
{
    *out << row.name;
}

const WordRow kRows[] = {
    {"dqposs", "Ye", kNotListed, {{4, "Ye"}}}, {"usedefault", "N", kNotListed, {{5, "N"}}},
    {"runins", "Y", kNotListed, {{7, "Y"}}},   {"titleneeded", "Ye", kNotListed, {{19, "Ye"}}},
    {"matchquality", "Just", kKeepsLine, {}}, // no code stands for it, so the old line stays
};

class StipulationWords : public StipulationTest, public ::testing::WithParamInterface<WordRow>
{
protected:
    StipulationWords()
    {
        open(stipulation("Singles", "One") + stipulation("Singles", "Two"));
        edit(0);
    }

    static const char *name() { return GetParam().name; }
    static QString warning() { return utf8(GetParam().warning); }
    ComboBox &box() { return screen("Form3").control<ComboBox>(name()); }

    void hit(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        expectActive(screen("Form3"));
        QTest::keyClick(screen("Form3").windowHandle(), key, modifiers);
        boxes.checkAllCame();
    }

    void expectMarked()
    {
        EXPECT_TRUE(box().isMarked());
        EXPECT_TRUE(box().accessibleDescription().startsWith(warning()))
            << box().accessibleDescription().toStdString();
        EXPECT_EQ(shown(name()), utf8(GetParam().word));
    }

    /// Saves by Ctrl+S and expects the word to be marked and saved as it was typed.
    void expectSaved()
    {
        boxes.expectNotice(u"Stipulations Editor"_s, u"Saved OK!"_s);
        boxes.beforeItsAnswer([this](const QMessageBox & /*box*/) { expectMarked(); });
        hit(Qt::Key_S, Qt::ControlModifier);
        expectOnly("Form16");
        EXPECT_EQ(readBack(kFile),
                  stipulation("Singles", "One", GetParam().saved) + stipulation("Singles", "Two"));
    }
};

INSTANTIATE_TEST_SUITE_P(Lists, StipulationWords, ::testing::ValuesIn(kRows),
                         [](const auto &row) { return std::string(row.param.name); });

TEST_P(StipulationWords, ALoadedWordOfTheListHasNoMark)
{
    EXPECT_FALSE(box().isMarked());
    EXPECT_FALSE(toolTipOf(box()).value_or(QString()).contains(utf8(kNotListed)));
    EXPECT_FALSE(box().accessibleDescription().contains(utf8(kNotListed)));
}

TEST_P(StipulationWords, CtrlSSavesAMarkedWordAsTyped)
{
    put(name(), GetParam().word);
    hit(Qt::Key_Tab);
    expectMarked();
    EXPECT_EQ(toolTipOf(box()), warning());
    EXPECT_EQ(toolTipOf(*box().lineEdit()), warning());
    expectSaved();
}

TEST_P(StipulationWords, CtrlSInTheBoxMarksTheWordAndSavesItAsTyped)
{
    put(name(), GetParam().word);
    EXPECT_TRUE(box().lineEdit()->hasFocus());
    EXPECT_FALSE(box().isMarked()); // it may become an item yet
    expectSaved();
}

/// The lists whose words stand in the file as they are.
class StipulationWordsInTheFile : public StipulationWords
{
};

INSTANTIATE_TEST_SUITE_P(Lists, StipulationWordsInTheFile,
                         ::testing::ValuesIn(std::begin(kRows), std::end(kRows) - 1),
                         [](const auto &row) { return std::string(row.param.name); });

TEST_P(StipulationWordsInTheFile, AreMarkedOnceTheFormShowsThem)
{
    cancel();
    press("Form16", "Command3");
    open(stipulation("Singles", "One", GetParam().saved));
    edit(0);
    expectMarked();
    EXPECT_EQ(toolTipOf(box()), warning());
    boxes.expectNotice(u"Stipulations Editor"_s, u"Saved OK!"_s);
    hit(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(readBack(kFile), stipulation("Singles", "One", GetParam().saved));
}

class QualityOfAStipulation : public StipulationTest
{
protected:
    ComboBox &box() { return screen("Form3").control<ComboBox>("matchquality"); }

    /// Types an unknown quality, leaves the box, and expects what is said of it.
    void expectSaid(const char *warning, const char *other)
    {
        put("matchquality", "Great");
        QTest::keyClick(screen("Form3").windowHandle(), Qt::Key_Tab);
        EXPECT_EQ(toolTipOf(*box().lineEdit()), utf8(warning));
        EXPECT_EQ(box().accessibleDescription(), utf8(warning));
        EXPECT_EQ(box().lineEdit()->accessibleDescription(), utf8(warning));
        EXPECT_EQ(box().findChild<Announcement *>()->accessibleName(), utf8(warning));
        EXPECT_FALSE(box().accessibleDescription().contains(utf8(other)));
    }
};

TEST_F(QualityOfAStipulation, IsLackedByANewOneAndKeptByAnEditedOne)
{
    const QByteArray before = stipulation("Singles", "One", {{18, "Both"}});
    open(before);
    edit(0);
    expectSaid(kKeepsLine, kLacksLine);
    boxes.expectNotice(u"Stipulations Editor"_s, u"Saved OK!"_s);
    press("Form3", "Command2");
    EXPECT_EQ(readBack(kFile), before);

    press("Form16", "Command1");
    expectSaid(kLacksLine, kKeepsLine);
    put("stipulation", "Two");
    boxes.expectNotice(u"Stipulations Editor"_s, u"Saved OK!"_s);
    press("Form3", "Command2");
    EXPECT_EQ(readBack(kFile).count("\r\n"), 19 + 18);
    EXPECT_TRUE(readBack(kFile).startsWith(before));

    press("Form16", "Command3");
    boxes.expectNotice(
        u"Stipulations Editor"_s,
        u"The file \"%1\" could not be loaded.\n\nIt breaks off at line 37, inside stipulation 2: "
        "each stipulation takes 19 lines (lines found: 37).\n\nNothing was changed. To repair the "
        "file, press Ctrl+O on the main menu."_s.arg(QDir::current().filePath(utf8(kFile))));
    press("Form1", "Command1");
    expectOnly("Form1");
}

TEST_F(QualityOfAStipulation, IsSaidAnewWhereTheWordStays)
{
    open(stipulation("Singles", "One", {{18, "Odd"}}));
    press("Form16", "Command1");
    expectSaid(kLacksLine, kKeepsLine);
    cancel();
    edit(0); // its unknown quality leaves the box as it was
    EXPECT_EQ(shown("matchquality"), u"Great"_s);
    EXPECT_EQ(toolTipOf(*box().lineEdit()), utf8(kKeepsLine));
    EXPECT_EQ(box().accessibleDescription(), utf8(kKeepsLine));
}

} // namespace
} // namespace tarvold::testing
