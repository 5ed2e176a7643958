#pragma once

#include "look/figures.h"
#include "support/flow_test.h"

#include <ostream>

namespace tarvold::testing {

/// A screen in one of the states that change what is to be seen on it.
struct View
{
    const char *name;
    const char *screen;
    const FlowPath *flow; ///< the flow that leads to it; none: `press` does, or no button at all
    std::vector<ControlRef> press = {}; ///< what to press one after the other, from the main menu
};

/// All of them.
extern const std::vector<View> kViews;

enum class Colours { Light, Dark };

/// A view in a palette.
struct Look
{
    View view;
    Colours colours;
};

/// The name of the row in test output, such as "Form4OfATurn_dark".
std::string nameOf(const ::testing::TestParamInfo<Look> &row);
void PrintTo(const Look &look, std::ostream *out);

/// All views in both palettes.
std::vector<Look> allLooks();

/// All views in one palette, for what no palette changes: sizes and places.
std::vector<Look> looksIn(Colours colours);

/// Some views in both palettes.
std::vector<Look> looksOf(const std::vector<std::string> &views);

/// Gives the program a palette, and the desktop's own one back.
class PaletteGuard
{
public:
    explicit PaletteGuard(Colours colours);
    ~PaletteGuard();
};

/// Shows a view in a palette, opened as a user opens it, and with something in every text box. The
/// folder has files to import and stipulations to list: so many that the thumbs of the lists are as
/// short as can be, and the first of each with a long name.
class LookTest : public ::testing::WithParamInterface<Look>, private PaletteGuard, public FlowTest
{
public:
    LookTest();

protected:
    /// The screen of the view, shown.
    Screen &shown() { return screen(GetParam().view.screen); }

    Scene scene() { return sceneOf(shown()); }

    /// Another window of this view: a list, a menu or a message box that belongs to it.
    static Scene sceneOf(QWidget &window, const QString &what = {});

    void SetUp() override;

private:
    void fillEmptyBoxes();
};

} // namespace tarvold::testing
