#pragma once

#include "datafiles/record.h"

#include <QObject>

#include <span>
#include <vector>

namespace tarvold {

class Screen;
class Screens;

/// Where ">>" leads while the flow label shows a certain text.
struct Branch
{
    const char *label; ///< the flow label's text; none for any text
    const char *screen;
};

/// A screen of a flow and its neighbours.
struct FlowStep
{
    const char *screen;
    const char *back;              ///< the main menu for the first screen of a flow
    std::vector<Branch> next = {}; ///< the first that fits is taken; none for the last screen
};

/// Moves the user along chains of screens.
///
/// "<<" on the first screen of a chain and closing the window of any of them ask before the main
/// menu comes back; "<<" elsewhere and ">>" do not. It attaches itself to the screens of its chain
/// as they are created.
class Flow : public QObject
{
    Q_OBJECT
public:
    /// \param steps kept by the caller for as long as the flow lives
    /// \param label the control whose text chooses among branches; not needed without branches
    Flow(Screens &screens, std::span<const FlowStep> steps, ControlRef label = {});

private:
    void attach(Screen &screen);
    void goBack(Screen &screen, const FlowStep &step);
    void goOn(Screen &screen, const FlowStep &step);
    void leave(Screen &screen);
    void show(const char *next, Screen &current);

    Screens &m_screens;
    std::span<const FlowStep> m_steps;
    ControlRef m_label;
};

} // namespace tarvold
