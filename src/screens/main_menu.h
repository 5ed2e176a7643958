#pragma once

#include "screens/screens.h"

#include <vector>

class QGridLayout;

namespace tarvold {

class FileFacts;
enum class DataFileKind;

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
/// Each box tells in its tooltip which file it means and how many records that has.
///
/// It knows none of the tasks: it only signals which button was pressed.
class Form1 : public Screen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form1";

    explicit Form1(Screens &screens);

    /// The box that holds the name of the file for records of this kind.
    static ControlRef fileNameBox(DataFileKind kind);

protected:
    void showEvent(QShowEvent *event) override;

signals:
    /// The user pressed the button for this.
    void pressed(tarvold::MenuEntry entry);

private:
    void addRows(QGridLayout &grid);

    std::vector<FileFacts *> m_facts; ///< of each file name box
};

} // namespace tarvold
