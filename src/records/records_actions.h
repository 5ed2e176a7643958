#pragma once

#include <QAction>
#include <QObject>

#include <map>

class QMainWindow;
class QMenu;

namespace tarvold::records {

/// What can be done in a records window.
enum class Act {
    Save,
    SaveAs,
    Reload,
    Close,
    Undo,
    Redo,
    Find,
    FindNext,
    Delete,
    Restore,
    Duplicate,
    MoveUp,
    MoveDown,
    CopyTo,
    WriteSimilar,
    NextProblem,
    PreviousProblem,
    RepairSelected,
    RepairAll,
    OnlyProblems,
    FileOrder,
};

/// The menus of a records window and all that is in them.
class RecordsActions : public QObject
{
    Q_OBJECT
public:
    /// Fills the menu bar of the window.
    /// \param list where Delete deletes records; elsewhere it is the key of text boxes
    RecordsActions(QMainWindow &window, QWidget &list);

    QAction &operator[](Act act) const { return *m_actions.at(act); }

    /// What can be done with the selected records.
    QMenu &recordMenu() const { return *m_recordMenu; }
    /// Empty at first: an entry for each column has to be added.
    QMenu &sortMenu() const { return *m_sortMenu; }

private:
    std::map<Act, QAction *> m_actions;
    QMenu *m_recordMenu = nullptr;
    QMenu *m_sortMenu = nullptr;
};

} // namespace tarvold::records
