#include "stipulations/stipulation_test.h"

#include <QAccessible>
#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QStyleOptionSlider>
#include <QTest>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class StipulationFormBehaviour : public StipulationTest
{
protected:
    QScrollBar &bar() { return screen("Form3").control<QScrollBar>("HScroll1"); }

    QPoint thumb()
    {
        QStyleOptionSlider option;
        option.initFrom(&bar());
        option.orientation = Qt::Horizontal;
        option.state |= QStyle::State_Horizontal;
        option.minimum = bar().minimum();
        option.maximum = bar().maximum();
        option.pageStep = bar().pageStep();
        option.sliderPosition = bar().sliderPosition();
        option.sliderValue = bar().value();
        return bar()
            .style()
            ->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar())
            .center();
    }
};

/// A smaller font than the usual one, as some desktops have it.
class SmallFont
{
protected:
    SmallFont()
    {
        QFont font = m_usual;
        font.setPointSize(7);
        QApplication::setFont(font);
    }
    ~SmallFont() { QApplication::setFont(m_usual); }
    Q_DISABLE_COPY_MOVE(SmallFont)

private:
    QFont m_usual = QApplication::font();
};

class SmallStipulationForm : private SmallFont, public StipulationTest
{
};

struct Risk
{
    const char *name;
    const char *line;
    int value;
};

void PrintTo(const Risk &sample, std::ostream *out)
{
    *out << sample.name;
}

class InjuryRisk : public StipulationFormBehaviour, public ::testing::WithParamInterface<Risk>
{
};

TEST_P(InjuryRisk, IsShownAsItStandsInTheFileAndOnTheNearestPlaceOfTheBar)
{
    open(stipulation("Singles", "One", {{8, GetParam().line}}));
    edit(0);
    EXPECT_EQ(shown("risk"), utf8(GetParam().line) + u'%');
    EXPECT_EQ(bar().value(), GetParam().value);
    save();
    const QByteArray number = QByteArray::number(GetParam().value);
    EXPECT_EQ(readBack(kFile), stipulation("Singles", "One", {{8, number}}));
}

INSTANTIATE_TEST_SUITE_P(
    , InjuryRisk,
    ::testing::Values(Risk{"Normal", "5", 5}, Risk{"Least", "1", 1}, Risk{"Most", "100", 100},
                      Risk{"TooMuch", "500", 100}, Risk{"JustTooMuch", "101", 100},
                      Risk{"Zero", "0", 1}, Risk{"Negative", "-3", 1}, Risk{"Empty", "", 1},
                      Risk{"Letters", "abc", 1}, Risk{"DigitsFirst", "12x", 12},
                      Risk{"LettersFirst", "x12", 1}, Risk{"LeadingZeros", "007", 7},
                      Risk{"Huge", "99999999999999999999999999", 100},
                      Risk{"HugeNegative", "-99999999999999999999999999", 1}),
    [](const auto &sample) { return sample.param.name; });

TEST_F(StipulationFormBehaviour, RiskFollowsTheThumbWhileItIsDragged)
{
    open("");
    createNew();
    expectReachable(bar());
    const QPoint start = thumb();
    const QPoint end = start + QPoint(bar().width() / 3, 0);
    QTest::mousePress(&bar(), Qt::LeftButton, {}, start);
    QMouseEvent move(QEvent::MouseMove, end, bar().mapToGlobal(end), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&bar(), &move);
    EXPECT_GT(bar().sliderPosition(), 20);
    EXPECT_EQ(shown("risk"), QString::number(bar().sliderPosition()) + u'%');
    QTest::mouseRelease(&bar(), Qt::LeftButton, {}, end);
    EXPECT_GT(bar().value(), 20);
    EXPECT_EQ(shown("risk"), QString::number(bar().value()) + u'%');
}

TEST_F(StipulationFormBehaviour, LeavingTheFormDuringADragSetsRiskBackToTheValue)
{
    open("");
    createNew();
    expectReachable(bar());
    const int value = bar().value();
    const QString before = shown("risk");
    QTest::mousePress(&bar(), Qt::LeftButton, {}, thumb());
    QTest::mouseMove(&bar(), QPoint(bar().width(), bar().height() / 2));
    EXPECT_NE(shown("risk"), before) << "the thumb was not dragged";
    screen("Form3").close();
    expectOnly("Form16");
    EXPECT_EQ(bar().value(), value);
    EXPECT_EQ(bar().sliderPosition(), value);
    EXPECT_EQ(shown("risk"), before);
    EXPECT_FALSE(bar().isSliderDown());
}

TEST_F(StipulationFormBehaviour, RiskFollowsTheKeysWithoutALeadingBlank)
{
    open("");
    createNew();
    const std::tuple<Qt::Key, int, const char *> steps[] = {
        {Qt::Key_Right, 1, "6%"},  {Qt::Key_Up, 1, "7%"},    {Qt::Key_Left, 3, "4%"},
        {Qt::Key_Down, 1, "3%"},   {Qt::Key_Left, 10, "1%"}, {Qt::Key_End, 1, "100%"},
        {Qt::Key_Right, 1, "100%"}};
    bar().setFocus();
    for (const auto &[key, times, expected] : steps) {
        for (int time = 0; time < times; ++time) {
            QTest::keyClick(&bar(), key);
        }
        EXPECT_EQ(shown("risk"), utf8(expected));
    }
    put("stipulation", "Cage");
    save();
    EXPECT_EQ(readBack(kFile), untouched("Cage").replace("\r\n5\r\n", "\r\n100\r\n"));
}

TEST_F(StipulationFormBehaviour, ChoosingNotExclusiveEmptiesTheInitials)
{
    open(stipulation("Singles", "One"));
    edit(0);
    choose("Form3", "exclusive", u"No"_s);
    EXPECT_EQ(shown("prominitials"), u""_s);
    EXPECT_TRUE(control("Form3", "prominitials").isEnabled());
}

TEST_F(StipulationFormBehaviour, ChoosingNotExclusiveByTheKeyboardEmptiesTheInitials)
{
    open("");
    createNew();
    put("prominitials", "ABC");
    combo("Form3", "exclusive").setFocus();
    pickByKeyboard(combo("Form3", "exclusive"), u"No"_s);
    EXPECT_EQ(shown("prominitials"), u""_s);
}

TEST_F(StipulationFormBehaviour, ChoosingExclusiveLeavesTheInitials)
{
    open("");
    createNew();
    put("prominitials", "ABC");
    choose("Form3", "exclusive", u"Yes"_s);
    EXPECT_EQ(shown("prominitials"), u"ABC"_s);
}

TEST_F(StipulationFormBehaviour, TypingNotExclusiveLeavesTheInitials)
{
    open(stipulation("Singles", "One"));
    edit(0);
    put("exclusive", "No");
    QTest::keyClick(screen("Form3").windowHandle(), Qt::Key_Tab);
    EXPECT_EQ(shown("prominitials"), u"ABC"_s);
    save();
    EXPECT_EQ(readBack(kFile), stipulation("Singles", "One", {{17, "No"}}));
}

TEST_F(StipulationFormBehaviour, CancelAfterCreateNewLeavesTheFileUntouched)
{
    const QByteArray old = stipulation("Singles", "One");
    open(old);
    createNew();
    put("stipulation", "Never");
    cancel();
    expectOnly("Form16");
    EXPECT_EQ(readBack(kFile), old);
    EXPECT_EQ(listed(), std::vector<std::string>{"Singles / One"});
}

TEST_F(StipulationFormBehaviour, CancelAfterEditLeavesTheFileUntouched)
{
    const QByteArray old = stipulation("Singles", "One");
    open(old);
    edit(0);
    put("stipulation", "Never");
    cancel();
    expectOnly("Form16");
    EXPECT_EQ(readBack(kFile), old);
    edit(0);
    EXPECT_EQ(shown("stipulation"), u"One"_s);
}

TEST_F(StipulationFormBehaviour, ClosingTheWindowCancels)
{
    open("");
    createNew();
    put("stipulation", "Never");
    screen("Form3").close();
    expectOnly("Form16");
    EXPECT_EQ(readBack(kFile), "");
}

TEST_F(StipulationFormBehaviour, EveryControlHasAnAccessibleNameOfItsOwn)
{
    open("");
    createNew();
    const char *const names[] = {"matchtype",    "stipulation",  "matchshowsas", "dqposs",
                                 "usedefault",   "runins",       "HScroll1",     "drawcurrent",
                                 "drawmax",      "drawdec",      "drawinc",      "entcurrent",
                                 "entmax",       "entdec",       "entinc",       "exclusive",
                                 "prominitials", "matchquality", "titleneeded"};
    QSet<QString> spoken;
    for (const char *name : names) {
        EXPECT_FALSE(control("Form3", name).accessibleName().isEmpty()) << name;
        spoken << control("Form3", name).accessibleName();
    }
    EXPECT_EQ(spoken.size(), qsizetype(std::size(names)));
}

TEST_F(StipulationFormBehaviour, TheValuesStandInTwoRowsUnderTheirCaptions)
{
    open("");
    createNew();
    const char *const columns[][3] = {{"Label10", "drawcurrent", "entcurrent"},
                                      {"Label11", "drawmax", "entmax"},
                                      {"Label12", "drawdec", "entdec"},
                                      {"Label13", "drawinc", "entinc"}};
    int right = control("Form3", "Label9").geometry().right();
    for (const auto &[caption, draw, entertainment] : columns) {
        EXPECT_EQ(control("Form3", draw).x(), control("Form3", caption).x());
        EXPECT_EQ(control("Form3", draw).x(), control("Form3", entertainment).x());
        EXPECT_EQ(control("Form3", draw).y(), control("Form3", "drawcurrent").y());
        EXPECT_EQ(control("Form3", entertainment).y(), control("Form3", "entcurrent").y());
        EXPECT_GT(control("Form3", draw).x(), right);
        right = control("Form3", draw).geometry().right();
    }
    EXPECT_LT(control("Form3", "Label10").y(), control("Form3", "drawcurrent").y());
    EXPECT_LT(control("Form3", "drawcurrent").y(), control("Form3", "entcurrent").y());
}

TEST_F(StipulationFormBehaviour, EveryComboBoxHasALabelOfItsOwn)
{
    open("");
    createNew();
    QStringList names;
    for (ComboBox *combo : screen("Form3").findChildren<ComboBox *>()) {
        const auto labels =
            QAccessible::queryAccessibleInterface(combo)->relations(QAccessible::Label);
        ASSERT_EQ(labels.size(), 1) << combo->objectName().toStdString();
        names << labels.front().first->text(QAccessible::Name);
    }
    EXPECT_EQ(names.size(), 15);
    EXPECT_EQ(names.removeDuplicates(), 0);
    EXPECT_TRUE(names.contains(u"Match Draw Value: Current"_s));
    EXPECT_TRUE(names.contains(u"Match Entertainment Value: Increase Daily By"_s));
}

TEST_F(StipulationFormBehaviour, ItsWindowHasTheSizeOfTheOthersAndFitsASmallScreen)
{
    const QSize menu = screen("Form1").size();
    open("");
    EXPECT_EQ(screen("Form16").size(), menu);
    createNew();
    EXPECT_EQ(screen("Form3").size(), menu);
    const QSize least = screen("Form3").minimumSizeHint();
    EXPECT_LE(least.width(), menu.width());
    EXPECT_LE(least.height(), menu.height());
    // What a title bar and a panel leave of 1366 x 768.
    EXPECT_LE(menu.width(), 1366);
    EXPECT_LE(menu.height(), 768 - 70);
}

TEST_F(SmallStipulationForm, StillHasRoomForAllItsRows)
{
    open({});
    createNew();
    const auto *pane = screen("Form3").findChild<QScrollArea *>();
    EXPECT_GE(pane->viewport()->height(), pane->widget()->sizeHint().height());
}

} // namespace
} // namespace tarvold::testing
