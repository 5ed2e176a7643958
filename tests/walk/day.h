#pragma once

#include "editor.h"
#include "walk/dice.h"
#include "walk/ledger.h"

#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>

#include <map>
#include <memory>
#include <set>
#include <string>

namespace tarvold {
class CommentaryLine;
namespace records {
class RecordsWindow;
}
} // namespace tarvold

class QFileDialog;
class QLineEdit;
class QMessageBox;
class QPushButton;

namespace tarvold::testing {

/// Statistics of a walk.
struct Counts
{
    std::map<std::string, int> actions;
    std::map<std::string, int> answers; ///< to dialogs, by button
    std::map<std::string, int> boxes;   ///< message boxes, by the beginning of their text
    std::map<std::string, int> windows; ///< how many actions started on each
    int ends = 0;                       ///< how often the program was restarted
};

/// A simulated day at the program: random user actions, and after each of them checks of the
/// windows, the controls and the folder.
class Day : public QObject
{
public:
    /// Starts the program in a temporary folder.
    explicit Day(unsigned seed);
    ~Day() override;

    /// Runs a number of actions, or fewer if a check fails. Returns whether all checks passed.
    bool walk(int actions);

    const Counts &counts() const { return m_counts; }

    /// Reports a failed check, which ends the walk.
    void fail(const QString &what);

private:
    /// An action. `act` returns `false` if it is not possible now.
    struct Action
    {
        const char *name;
        int weight;
        bool (Day::*act)();
    };
    static const Action kActions[];

    void start();
    void end();
    const Action &randomAction();
    void step();

    bool pressButton();
    bool pressByKeyboard();
    bool doubleClick();
    bool clickAnywhere();
    bool type();
    bool paste();
    bool compose();
    bool pickByMouse();
    bool pickByKeyboard();
    bool pressKeys();
    bool turnTheWheel();
    bool drag();
    bool selectInList();
    bool closeWindow();
    bool resize();
    bool nameFile();
    bool writeFirstLine();
    bool swapLines();
    bool pasteLines();
    bool changeFolder();
    bool openRecords();
    bool useRecords();

    /// An action in a records window, which may close it.
    struct RecordsAction
    {
        const char *name;
        int weight;
        void (Day::*act)(records::RecordsWindow &window);
    };
    static const RecordsAction kRecordsActions[];

    void followRecords();
    void actIn(records::RecordsWindow &window);
    void chooseRecord(records::RecordsWindow &window);
    void changeField(records::RecordsWindow &window);
    void pressKeysIn(records::RecordsWindow &window);
    void chooseEntry(records::RecordsWindow &window);
    void copyRecords(records::RecordsWindow &window);
    void writeSimilar(records::RecordsWindow &window);
    void searchRecords(records::RecordsWindow &window);
    void sortRecords(records::RecordsWindow &window);
    void chooseKind(records::RecordsWindow &window);
    void pressButtonIn(records::RecordsWindow &window);
    void clickIn(records::RecordsWindow &window);
    void closeRecords(records::RecordsWindow &window);

    void handleDialogs();
    void handleBox(QMessageBox &box);
    void answer(QMessageBox &box);
    void handleFileDialog(QFileDialog &dialog);
    QString checkMessageBox(const QMessageBox &box);
    QString checkAdded();
    QString checkStored();
    QString checkImported();

    Screen &screen() const;
    template <class T>
    QList<T *> shown() const;
    QPushButton *randomButton();
    QPoint randomPosition(const QWidget &widget);
    void putText(QLineEdit &field, const QString &text);
    /// Undoes and redoes an edit of the commentary lines a few times, in any of some lines.
    /// \param before,after the texts of all lines
    void undoAndRedo(const QList<CommentaryLine *> &lines, const QStringList &before,
                     const QStringList &after);
    void key(int code, Qt::KeyboardModifiers modifiers = {}, const QString &text = {});

    /// Expects that nothing has changed except what opening the next window changes.
    QString checkFolder();
    QString nameIn(ControlRef box) { return m_editor->screens().text(box); }

    Dice m_dice;
    QTemporaryDir m_folder;
    QString m_oldFolder;
    std::unique_ptr<Ledger> m_ledger;
    std::unique_ptr<Editor> m_editor;
    QTimer m_dialogTimer;
    Counts m_counts;
    QString m_error;
    QString m_shown; ///< the window that was visible before this action
    bool m_wantsEnd = false;
    bool m_mayChangeScreens = false; ///< an action in a records window began a flow
};

} // namespace tarvold::testing
