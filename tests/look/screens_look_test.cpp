#include "look/checks.h"
#include "look/parts.h"
#include "look/views.h"

namespace tarvold::testing {
namespace {

class ScreensLookTest : public LookTest
{
};

} // namespace

TEST_P(ScreensLookTest, EveryTextIsReadable)
{
    checks::expectReadable(scene());
}

TEST_P(ScreensLookTest, EveryTextIsReadableInAnInactiveWindow)
{
    QWidget other;
    other.show();
    expectActive(other);
    checks::expectReadable(scene());
}

TEST_P(ScreensLookTest, SelectedTextIsReadable)
{
    checks::expectReadableSelections(scene());
    QWidget other;
    other.show();
    expectActive(other);
    checks::expectReadableSelections(scene());
}

TEST_P(ScreensLookTest, EveryControlIsVisible)
{
    checks::expectVisibleControls(scene());
}

TEST_P(ScreensLookTest, EveryControlHasAFocusMark)
{
    checks::expectFocusMarks(scene());
}

INSTANTIATE_TEST_SUITE_P(All, ScreensLookTest, ::testing::ValuesIn(allLooks()), nameOf);

} // namespace tarvold::testing
