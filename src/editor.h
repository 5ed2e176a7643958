#pragma once

#include "controls/double_click_guard.h"
#include "screens/flow.h"
#include "screens/screens.h"

#include <QObject>

namespace tarvold {

enum class MenuEntry;

/// The program: all screens, and the flows that the main menu's buttons start.
class Editor : public QObject
{
    Q_OBJECT
public:
    /// \param clock the time for the guard against double clicks on buttons
    explicit Editor(DoubleClickGuard::Clock clock = &std::chrono::steady_clock::now);

    /// Shows the main menu. No other screen exists yet.
    void start();

    Screens &screens() { return m_screens; }

signals:
    /// The user wants the program to end, at once.
    void exitRequested();

private:
    void begin(MenuEntry entry);

    DoubleClickGuard m_guard;
    Screens m_screens;
    Flow m_endings;
    Flow m_segments;
};

} // namespace tarvold
