#pragma once

#include "screens/screens.h"

#include <QObject>

#include <span>
#include <vector>

namespace tarvold {

/// Where ">>" leads, depending on the text of the flow label.
struct Branch
{
    const char *label; ///< the flow label's text; nullptr for any text
    const char *screen;
};

/// A screen of a flow and its neighbours.
struct FlowStep
{
    const char *screen;
    const char *back;              ///< the main menu for the first screen of a flow
    std::vector<Branch> next = {}; ///< the first match is taken; empty for the last screen
};

/// The screens between the main menu and a screen of a chain, the screen itself first.
std::vector<const char *> pathTo(const char *screen, std::span<const FlowStep> chain);

/// Moves the user along chains of screens.
///
/// "<<" on the first screen of a chain asks before it returns to the main menu, and so does closing
/// any window of the chain; "<<" elsewhere and ">>" do not ask. A flow attaches itself to the
/// screens of its chain as they are created.
class Flow : public QObject
{
    Q_OBJECT
public:
    /// \param chain must outlive the flow
    /// \param label the control whose text chooses among branches; not needed without branches
    Flow(Screens &screens, std::span<const FlowStep> chain, ControlRef label = {});

private:
    void attach(Screen &screen);
    void goBack(Screen &screen, const FlowStep &step);
    void goOn(Screen &screen, const FlowStep &step);
    void leave(Screen &screen);
    void show(const char *next, Screen &current);

    Screens &m_screens;
    std::span<const FlowStep> m_chain;
    ControlRef m_label;
};

} // namespace tarvold
