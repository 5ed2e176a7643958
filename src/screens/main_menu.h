#pragma once

#include "screens/screens.h"

#include <vector>

class QGridLayout;

namespace tarvold {

class FileDrop;
class FileFacts;
class TextBox;
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
/// Each box tells in its tooltip which file it means and how many records that has. Ctrl+O, and an
/// entry in the context menus of boxes and buttons, look through the file of the row.
///
/// It knows none of the tasks: it only signals what the user wants.
class Form1 : public Screen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form1";

    explicit Form1(Screens &screens);

    /// The box that holds the name of the file for records of this kind.
    static ControlRef fileNameBox(DataFileKind kind);

    /// The button that writes records of this kind.
    static MenuEntry entryOf(DataFileKind kind);

protected:
    void showEvent(QShowEvent *event) override;

signals:
    /// The user pressed the button for this.
    void pressed(tarvold::MenuEntry entry);
    /// The user wants to see the records of this file.
    /// \param name as its box shows it
    void lookThrough(tarvold::DataFileKind kind, const QString &name);
    /// The user dropped a data file on the menu.
    void fileDropped(const QString &path);

private:
    void addRows(QGridLayout &grid);
    /// Shows at a box what is in the file that it names.
    void addFacts(TextBox &box, DataFileKind kind);
    /// Gives a button or a box of a row the entry that looks through the row's file.
    void addLookThrough(QWidget &control, DataFileKind kind);
    void showContextMenu(QWidget &control, DataFileKind kind, const QPoint &place);
    /// The same by the keys, for the row with the focus. Import and Exit name no file.
    void lookThroughFocused();

    std::vector<FileFacts *> m_facts; ///< of each file name box
    FileDrop *m_drop;
};

} // namespace tarvold
