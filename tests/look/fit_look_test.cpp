#include "controls/scroll_bar.h"
#include "look/checks.h"
#include "look/parts.h"
#include "look/views.h"

#include <QListView>

namespace tarvold::testing {
namespace {

/// Sizes of controls, and whether everything fits.
class FitLookTest : public LookTest
{
};

} // namespace

TEST_P(FitLookTest, EveryTargetIsLargeEnough)
{
    checks::expectLargeTargets(scene());
    for (const QListView *list : parts::visible<QListView>(shown())) {
        checks::expectLargeRows(scene(), "Target: rows of lists", *list);
    }
}

TEST_P(FitLookTest, NoTextIsCutOff)
{
    for (ScrollBar *bar : parts::visible<ScrollBar>(shown())) {
        bar->setValue(bar->maximum()); // so that its label shows its longest text
    }
    checks::expectNothingCut(scene());
}

TEST_P(FitLookTest, EverythingIsOnTheScreen)
{
    checks::expectAllOnScreen(scene());
}

TEST_P(FitLookTest, NothingOverlaps)
{
    checks::expectNoOverlaps(scene());
}

INSTANTIATE_TEST_SUITE_P(All, FitLookTest, ::testing::ValuesIn(looksIn(Colours::Light)), nameOf);

} // namespace tarvold::testing
