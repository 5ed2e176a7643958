#include "look/checks.h"
#include "look/parts.h"
#include "look/views.h"

#include <QListView>

namespace tarvold::testing {
namespace {

class ScreensLookTest : public LookTest
{
protected:
    /// The list of the screen, if it has one.
    QListView *list() { return parts::visible<QListView>(shown()).value(0); }
};

} // namespace

TEST_P(ScreensLookTest, EveryTextCanBeRead)
{
    checks::expectReadable(scene());
}

TEST_P(ScreensLookTest, EveryTextCanBeReadInAWindowThatIsNotActive)
{
    QWidget other;
    other.show();
    expectActive(other);
    checks::expectReadable(scene());
}

TEST_P(ScreensLookTest, SelectedTextsCanBeRead)
{
    checks::expectReadableSelections(scene());
    QWidget other;
    other.show();
    expectActive(other);
    checks::expectReadableSelections(scene());
}

TEST_P(ScreensLookTest, RowsOfListsCanBeRead)
{
    if (list() == nullptr) {
        return;
    }
    checks::expectReadableRow(scene(), "Text: rows of lists", *list(), 0);
    list()->setCurrentIndex(list()->model()->index(1, 0));
    list()->setFocus(Qt::TabFocusReason);
    checks::expectReadableRow(scene(), "Text: selected rows", *list(), 1);
    list()->clearFocus();
    checks::expectReadableRow(scene(), "Text: selected rows without focus", *list(), 1);
    QWidget other;
    other.show();
    expectActive(other);
    checks::expectReadableRow(scene(), "Text: selected rows, inactive window", *list(), 1);
}

TEST_P(ScreensLookTest, EveryControlCanBeSeen)
{
    checks::expectVisibleControls(scene());
}

TEST_P(ScreensLookTest, TheFocusCanBeSeenEverywhere)
{
    checks::expectFocusMarks(scene());
}

INSTANTIATE_TEST_SUITE_P(All, ScreensLookTest, ::testing::ValuesIn(allLooks()), nameOf);

} // namespace tarvold::testing
