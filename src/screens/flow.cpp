#include "screens/flow.h"

#include "controls/message_box.h"
#include "screens/main_menu.h"

#include <algorithm>

namespace tarvold {

using namespace Qt::StringLiterals;

std::vector<const char *> pathTo(const char *screen, std::span<const FlowStep> chain)
{
    const auto stepOf = [chain](const char *name) {
        return std::find_if(chain.begin(), chain.end(), [name](const FlowStep &step) {
            return qstrcmp(step.screen, name) == 0;
        });
    };
    std::vector<const char *> path;
    for (auto step = stepOf(screen); step != chain.end(); step = stepOf(step->back)) {
        path.push_back(step->screen);
    }
    return path;
}

Flow::Flow(Screens &screens, std::span<const FlowStep> chain, ControlRef label)
    : m_screens(screens)
    , m_chain(chain)
    , m_label(label)
{
    connect(&screens, &Screens::created, this, [this](Screen *screen) { attach(*screen); });
}

void Flow::attach(Screen &screen)
{
    for (const FlowStep &step : m_chain) {
        if (screen.objectName() != QLatin1StringView(step.screen)) {
            continue;
        }
        connect(&screen, &Screen::backPressed, this,
                [this, &screen, &step] { goBack(screen, step); });
        connect(&screen, &Screen::nextPressed, this,
                [this, &screen, &step] { goOn(screen, step); });
        connect(&screen, &Screen::finished, this, [this, &screen] { show(Form1::kName, screen); });
        connect(&screen, &Screen::closeRequested, this, [this, &screen] { leave(screen); });
    }
}

void Flow::goBack(Screen &screen, const FlowStep &step)
{
    if (qstrcmp(step.back, Form1::kName) == 0) {
        leave(screen);
    } else {
        show(step.back, screen);
    }
}

void Flow::goOn(Screen &screen, const FlowStep &step)
{
    for (const Branch &branch : step.next) {
        if (branch.label == nullptr || m_screens.text(m_label) == QLatin1StringView(branch.label)) {
            show(branch.screen, screen);
            return;
        }
    }
}

void Flow::leave(Screen &screen)
{
    const bool yes = messagebox::question(
        &screen, QLatin1StringView(messagebox::kTitle),
        u"This will return you to the main menu and lose any changes you haven't "
        "saved. Continue?"_s,
        messagebox::EnterMeans::No);
    if (yes) {
        show(Form1::kName, screen);
    }
}

void Flow::show(const char *next, Screen &current)
{
    m_screens[next].replace(current);
}

} // namespace tarvold
