#include "controls/look.h"
#include "support/flow_test.h"
#include "support/spoken.h"
#include "support/window_watch.h"

#include <QApplication>
#include <QPushButton>

#include <optional>
#include <tuple>

namespace tarvold::testing {
namespace {

/// A screen and its button for the next one.
struct Step
{
    const char *screen;
    const char *on; ///< none on the last screen
};

/// A path through the program from the main menu.
struct Walk
{
    const char *name;
    std::vector<Step> steps;
};

void PrintTo(const Walk &walk, std::ostream *out)
{
    *out << walk.name;
}

Walk walkOf(const char *name, const FlowPath &flow)
{
    Walk walk = {name, {{"Form1", flow.button}}};
    for (const char *screen : flow.screens) {
        walk.steps.push_back({screen, screen == flow.screens.back() ? nullptr : "Command2"});
    }
    return walk;
}

std::vector<Walk> flowWalks()
{
    return {walkOf("Normal", kNormalPath), walkOf("RunIn", kRunInPath), walkOf("Turn", kTurnPath),
            walkOf("Interview", kInterviewPath), walkOf("TalkShow", kTalkShowPath)};
}

std::vector<Walk> allWalks()
{
    std::vector<Walk> walks = flowWalks();
    walks.push_back(
        {"Stipulations", {{"Form1", "Command1"}, {"Form16", "Command1"}, {"Form3", nullptr}}});
    walks.push_back({"Import", {{"Form1", "Command8"}, {"Form2", "Command2"}, {"Form2", nullptr}}});
    return walks;
}

class WalkTest : public FlowTest
{
protected:
    /// Follows the path and checks each of its screens on arrival.
    template <class Look>
    void goAndLook(const Walk &walk, Look look)
    {
        for (const Step &step : walk.steps) {
            SCOPED_TRACE(step.screen);
            expectOnly(step.screen);
            expectActive(screen(step.screen));
            QTest::qWait(0);
            look(step);
            if (step.on != nullptr) {
                press(step.screen, step.on);
            }
        }
    }
};

class Windows : public WalkTest, public ::testing::WithParamInterface<Walk>
{
};

INSTANTIATE_TEST_SUITE_P(Ways, Windows, ::testing::ValuesIn(allWalks()), kNameOfRow);

TEST_P(Windows, EveryControlHasItsOwnNameOnItsScreen)
{
    goAndLook(GetParam(), [this](const Step &step) { expectOwnNames(screen(step.screen)); });
}

TEST_P(Windows, AreNeverAllHiddenOnTheWay)
{
    const WindowWatch watch;
    goAndLook(GetParam(), [](const Step & /*step*/) {});
    EXPECT_FALSE(watch.sawNone());
    EXPECT_TRUE(watch.sawTwo());
}

class FlowWindows : public Windows
{
};

INSTANTIATE_TEST_SUITE_P(Flows, FlowWindows, ::testing::ValuesIn(flowWalks()), kNameOfRow);

TEST_P(FlowWindows, TabGoesInReadingOrder)
{
    goAndLook(GetParam(), [this](const Step &step) { expectReadingOrder(screen(step.screen)); });
}

TEST_P(FlowWindows, AreNeverAllHiddenOnTheWayBack)
{
    goAndLook(GetParam(), [](const Step & /*step*/) {});
    const WindowWatch watch;
    const std::vector<Step> &steps = GetParam().steps;
    for (std::size_t step = steps.size() - 1; step > 1; --step) {
        press(steps[step].screen, steps[step].on == nullptr ? "Command2" : "Command1");
    }
    expectReturnQuestion(Answer::Yes);
    press(steps[1].screen, "Command1");
    expectOnly("Form1");
    EXPECT_FALSE(watch.sawNone());
    EXPECT_TRUE(watch.sawTwo());
}

TEST_P(FlowWindows, BackIsOnTheLeftAndNextOnTheRightInTheSamePlaces)
{
    std::optional<QRect> back;
    int right = 0;
    goAndLook(GetParam(), [&](const Step &step) {
        if (qstrcmp(step.screen, "Form1") == 0) {
            return;
        }
        const bool isLast = step.on == nullptr;
        const QRect left = control(step.screen, isLast ? "Command2" : "Command1").geometry();
        const QRect on = control(step.screen, isLast ? "Command1" : "Command2").geometry();
        if (!back) {
            back = left;
            right = on.right();
        }
        EXPECT_EQ(left, *back);
        EXPECT_EQ(on.right(), right);
        EXPECT_EQ(on.top(), left.top());
    });
    EXPECT_TRUE(back.has_value());
}

/// Sets the text size of the desktop for one test, before its program starts.
class DesktopFont
{
public:
    explicit DesktopFont(int points) : m_before(QApplication::font())
    {
        QFont font = m_before;
        font.setPointSize(points);
        QApplication::setFont(font);
        look::apply();
    }
    ~DesktopFont()
    {
        QApplication::setFont(m_before);
        look::apply();
    }
    DesktopFont(const DesktopFont &) = delete;
    DesktopFont &operator=(const DesktopFont &) = delete;

private:
    QFont m_before;
};

using WalkAndPoints = ::testing::WithParamInterface<std::tuple<Walk, int>>;

class TextSizes : public WalkAndPoints, private DesktopFont, public WalkTest
{
public:
    TextSizes() : DesktopFont(std::get<int>(GetParam())) {}
};

INSTANTIATE_TEST_SUITE_P(Points, TextSizes,
                         ::testing::Combine(::testing::ValuesIn(allWalks()),
                                            ::testing::Values(9, 10, 12, 18)),
                         [](const auto &row) {
                             return std::string(std::get<Walk>(row.param).name) +
                                    std::to_string(std::get<int>(row.param));
                         });

/// Whether all of a control's text is visible.
void expectNothingCut(const Screen &window)
{
    for (const QWidget *button : window.findChildren<QPushButton *>()) {
        if (button->isVisible()) {
            EXPECT_GE(button->width(), button->sizeHint().width())
                << button->objectName().toStdString();
        }
    }
    for (const QLabel *label : window.findChildren<QLabel *>()) {
        if (label->isVisible() && !label->wordWrap()) {
            EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
        }
        if (label->isVisible() && label->wordWrap()) {
            EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                << label->text().toStdString();
        }
    }
}

TEST_P(TextSizes, AllWindowsHaveOneSizeAndClipNothing)
{
    const QSize standard = screen("Form1").size();
    goAndLook(std::get<Walk>(GetParam()), [&](const Step &step) {
        const Screen &window = screen(step.screen);
        EXPECT_EQ(window.size(), standard);
        EXPECT_LE(window.minimumSizeHint().height(), standard.height());
        EXPECT_LE(window.minimumSizeHint().width(), standard.width());
        expectNothingCut(window);
    });
}

/// A screen that no path leads to.
class UnreachedWindow : public FlowTest
{
};

TEST_F(UnreachedWindow, EveryControlHasItsOwnName)
{
    screen("Form17").show();
    expectOwnNames(screen("Form17"));
}

} // namespace
} // namespace tarvold::testing
