#pragma once

#include "look/figures.h"
#include "support/flow_test.h"

#include <ostream>

namespace tarvold::testing {

/// A screen in a state that changes its look.
struct View
{
    const char *name;
    const char *screen;
    const FlowPath *flow;               ///< the flow that leads to it, or null
    std::vector<ControlRef> press = {}; ///< buttons to press in turn, from the main menu
};

/// All views.
extern const std::vector<View> kViews;

enum class Colours { Light, Dark };

/// A view with a palette.
struct Look
{
    View view;
    Colours colours;
};

/// The name in test output, such as "Form4OfATurn_dark".
std::string nameOf(const ::testing::TestParamInfo<Look> &row);
void PrintTo(const Look &look, std::ostream *out);

/// All views in both palettes.
std::vector<Look> allLooks();

/// All views in one palette, for checks that do not depend on it, such as sizes.
std::vector<Look> looksIn(Colours colours);

/// Some views in both palettes.
std::vector<Look> looksOf(const std::vector<std::string> &views);

/// Sets a palette for as long as it lives, then restores the default one.
class PaletteGuard
{
public:
    explicit PaletteGuard(Colours colours);
    ~PaletteGuard();
};

/// Shows a view in a palette, opened as a user would, with text in every text box. The folder has
/// so many files to import and stipulations to list that the thumbs of the lists have their minimum
/// size; the first of each has a long name.
class LookTest : public ::testing::WithParamInterface<Look>, private PaletteGuard, public FlowTest
{
public:
    LookTest();

protected:
    /// The screen of the view, which is visible.
    Screen &shown() { return screen(GetParam().view.screen); }

    Scene scene() { return sceneOf(shown()); }

    /// The scene of the screen or of another window of this view: a list, a menu or a message box.
    static Scene sceneOf(QWidget &window, const QString &what = {});

    void SetUp() override;

private:
    void fillEmptyBoxes();
};

} // namespace tarvold::testing
