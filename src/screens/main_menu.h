#pragma once

#include "screens/screen.h"

class QGridLayout;

namespace tarvold {

class Screens;

/// What the user can start from the main menu.
enum class MenuEntry {
    Stipulations,
    NormalEndings,
    RunInEndings,
    TurnEndings,
    Interviews,
    TalkShows,
    Import,
    Exit,
};

/// The main menu: a button for every task, and the names of the six data files.
///
/// It knows none of the tasks. It tells which button was pressed; the start-up code connects that.
class Form1 : public Screen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form1";

    explicit Form1(Screens &screens);

signals:
    /// The user wants to start this.
    void pressed(tarvold::MenuEntry entry);

private:
    void addRows(QGridLayout &grid);
};

} // namespace tarvold
