#include "endings/feud_details.h"
#include "look/checks.h"
#include "look/parts.h"
#include "look/views.h"
#include "screens/commentary_line.h"
#include "screens/details_screen.h"
#include "screens/help_line.h"

#include <QPushButton>
#include <QScreen>
#include <QTest>

#include <map>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// By x position, the names of what begins or ends there.
using Column = std::map<int, std::string>;

/// The columns of a screen: captions and controls of its rows, and commentary lines.
struct Columns
{
    Column labels;
    Column controls;
    Column lines;       ///< of commentary
    Column lineNumbers; ///< right edges, as numbers are right-aligned
    int numberedLines = 0;
};

void collect(const Screen &screen, Columns &columns)
{
    for (const QLabel *label : parts::visible<QLabel>(screen)) {
        const QWidget *control = label->buddy();
        if (control == nullptr || !control->isVisible()) {
            continue;
        }
        const QString name = screen.objectName() + u' ' + parts::nameOf(*control);
        const QRect caption = parts::placeOf(*label);
        const int left = parts::placeOf(*control).left();
        columns.labels[caption.left()] += name.toStdString() + ' ';
        columns.controls[left] += name.toStdString() + ' ';
    }
    for (const CommentaryLine *line : parts::visible<CommentaryLine>(screen)) {
        columns.lines[parts::placeOf(*line).left()] += line->objectName().toStdString() + ' ';
        const QString number = line->objectName().mid(u"Text"_s.size());
        for (const QLabel *label : parts::visible<QLabel>(screen)) {
            if (label->text() == number) {
                columns.lineNumbers[parts::placeOf(*label).right()] += number.toStdString() + ' ';
                EXPECT_NEAR(parts::placeOf(*label).center().y(), parts::placeOf(*line).center().y(),
                            2);
                ++columns.numberedLines;
            }
        }
    }
    const bool isCommentary = !columns.lines.empty();
    EXPECT_TRUE(!isCommentary || columns.numberedLines % 10 == 0) << columns.numberedLines;
    EXPECT_TRUE(!isCommentary || columns.numberedLines > 0);
}

void expectOneOfEach(const Columns &columns)
{
    for (const auto &[what, column] : {std::pair{"captions", columns.labels},
                                       {"controls", columns.controls},
                                       {"commentary lines", columns.lines},
                                       {"numbers of commentary lines", columns.lineNumbers}}) {
        EXPECT_LE(column.size(), 1U)
            << "columns of " << what << ", by x position: " << ::testing::PrintToString(column);
    }
}

/// The geometry of all widgets within their parents, except scroll positions.
std::map<const QWidget *, QRect> placesIn(const QWidget &window)
{
    std::map<const QWidget *, QRect> places;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        const QWidget *parent = widget->parentWidget();
        const bool isScrolled =
            parent != nullptr && parent->objectName() == u"qt_scrollarea_viewport"_s;
        places[widget] = isScrolled ? QRect({}, widget->size()) : widget->geometry();
    }
    return places;
}

class PlacesLookTest : public LookTest
{
};

class HelpLookTest : public LookTest
{
};

/// What must not move when one screen of a flow replaces another.
struct Fixed
{
    QString screen;
    QRect window;
    QRect help; ///< null on a commentary screen
    QRect back;
    QRect next; ///< or the button that adds the record, which has another width
};

class FlowPlacesLookTest : public FlowTest, public ::testing::WithParamInterface<FlowPath>
{
protected:
    Fixed look(const char *name)
    {
        const Screen &shown = screen(name);
        const bool isLast = qstrcmp(name, GetParam().screens.back()) == 0;
        const auto *help = shown.findChild<HelpLine *>();
        return {shown.objectName(), shown.geometry(),
                help != nullptr ? parts::placeOf(*help) : QRect(),
                parts::placeOf(shown.control(isLast ? "Command2" : "Command1")),
                parts::placeOf(shown.control(isLast ? "Command1" : "Command2"))};
    }

    /// Goes through the flow from the main menu as it is shown now.
    void expectFixedPlaces();
};

} // namespace

TEST_P(PlacesLookTest, CaptionsAndControlsAreInOneColumnEach)
{
    Columns columns;
    collect(shown(), columns);
    expectOneOfEach(columns);
}

TEST_P(PlacesLookTest, NothingMovesWithTheFocus)
{
    expectActive(shown());
    std::map<const QWidget *, QRect> before;
    do { // until all layouts are done, also those that follow what a thread tells of a file
        before = placesIn(shown());
        QTest::qWait(50);
    } while (placesIn(shown()) != before);
    for (QWidget *control : parts::focusable(shown())) {
        control->setFocus(Qt::TabFocusReason);
        parts::reveal(*control);
        for (const auto &[widget, place] : placesIn(shown())) {
            const auto found = before.find(widget);
            EXPECT_TRUE(found != before.end() && found->second == place)
                << parts::nameOf(*widget).toStdString() << " moved to "
                << ::testing::PrintToString(place) << " when "
                << parts::nameOf(*control).toStdString() << " got the focus";
        }
    }
}

TEST_P(HelpLookTest, EveryHelpTextFitsItsBox)
{
    const auto *help = shown().findChild<HelpLine *>();
    ASSERT_NE(help, nullptr);
    for (QWidget *control : parts::focusable(shown())) {
        control->setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
        checks::expectNotCut(sceneOf(shown(), u"help of " + parts::nameOf(*control)), *help);
    }
    if (auto *feud = qobject_cast<Form8 *>(&shown())) {
        feud->showBrandHelp();
        checks::expectNotCut(sceneOf(shown(), u"help of brands"_s), *help);
        feud->showPowerFigureHelp();
        checks::expectNotCut(sceneOf(shown(), u"help of power figures"_s), *help);
    }
}

INSTANTIATE_TEST_SUITE_P(All, PlacesLookTest, ::testing::ValuesIn(looksIn(Colours::Light)), nameOf);

INSTANTIATE_TEST_SUITE_P(All, HelpLookTest,
                         ::testing::ValuesIn(looksOf({"Form4OfANormalEnding", "Form4OfATurn",
                                                      "Form5OfANormalEnding",
                                                      "Form6OfANormalEnding", "Form8", "Form10",
                                                      "Form12", "Form14", "Form17"})),
                         nameOf);

void FlowPlacesLookTest::expectFixedPlaces()
{
    press("Form1", GetParam().button);
    QCoreApplication::processEvents(); // a new window becomes maximised after it is shown
    const Fixed first = look(GetParam().screens.front());
    for (const char *name : GetParam().screens) {
        expectOnly(name);
        QCoreApplication::processEvents();
        const Fixed now = look(name);
        const std::string where = now.screen.toStdString();
        EXPECT_EQ(now.window, first.window) << where;
        EXPECT_EQ(now.back, first.back) << where;
        EXPECT_EQ(now.next.bottomRight(), first.next.bottomRight()) << where;
        if (qstrcmp(name, GetParam().screens.back()) != 0) {
            EXPECT_EQ(now.next, first.next) << where;
            EXPECT_EQ(now.help, first.help) << where;
            press(name, "Command2");
        }
    }
}

TEST_P(FlowPlacesLookTest, WindowButtonsAndHelpStayInPlace)
{
    expectFixedPlaces();
}

TEST_P(FlowPlacesLookTest, TheyStayInAMaximisedWindow)
{
    Screen &menu = screen("Form1");
    menu.showMaximized();
    expectActive(menu);
    EXPECT_GT(menu.width(), menu.screen()->availableSize().width() * 9 / 10);
    expectFixedPlaces();
    EXPECT_TRUE(screen(GetParam().screens.back()).isMaximized());
}

TEST_P(FlowPlacesLookTest, TheyStayInALowWindow)
{
    Screen &menu = screen("Form1");
    menu.resize(menu.width(), menu.height() * 2 / 3);
    expectFixedPlaces();
}

INSTANTIATE_TEST_SUITE_P(All, FlowPlacesLookTest,
                         ::testing::Values(kNormalPath, kRunInPath, kTurnPath, kInterviewPath,
                                           kTalkShowPath),
                         [](const auto &row) { return std::string(row.param.button); });

TEST_F(FlowTest, AllDetailsScreensHaveTheSameColumns)
{
    Columns columns;
    const auto collectNow = [this, &columns](const char *name) {
        QCoreApplication::processEvents();
        if (qobject_cast<DetailsScreen *>(&screen(name)) != nullptr) {
            collect(screen(name), columns);
        }
    };
    for (const FlowPath &flow :
         {kNormalPath, kRunInPath, kTurnPath, kInterviewPath, kTalkShowPath}) {
        press("Form1", flow.button);
        for (const char *name : flow.screens) {
            expectOnly(name);
            collectNow(name);
            if (qstrcmp(name, flow.screens.back()) != 0) {
                press(name, "Command2");
            }
        }
        goBack(flow);
    }
    screen("Form17").replace(screen("Form1"));
    collectNow("Form17");
    expectOneOfEach(columns);
}

} // namespace tarvold::testing
