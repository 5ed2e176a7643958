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

class QFileDialog;
class QLineEdit;
class QMessageBox;
class QPushButton;

namespace tarvold::testing {

/// How much was done.
struct Figures
{
    std::map<std::string, int> actions;
    std::map<std::string, int> answers; ///< to message boxes, by what they were told
    std::map<std::string, int> boxes;   ///< message boxes, by their first words
    std::map<std::string, int> windows; ///< after how many actions each was to be seen
    int ends = 0;                       ///< how often the program was ended and started again
};

/// A long day at the program: anything that a user could do, in any order, and after each action a
/// look at the windows, the controls and the folder.
class Day : public QObject
{
public:
    /// Starts the program in a folder of its own.
    explicit Day(unsigned seed);
    ~Day() override;

    /// Does so many actions, or fewer when something goes wrong. `true` when nothing did.
    bool walk(int actions);

    const Figures &figures() const { return m_figures; }

    /// Something is wrong; the walk ends.
    void blame(const QString &what);

private:
    /// Something to do; `false` when it can't be done now.
    struct Action
    {
        const char *name;
        int weight;
        bool (Day::*act)();
    };
    static const Action kActions[];

    void start();
    void end();
    const Action &someAction();
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
    bool changeFolder();

    void look();
    void meet(QMessageBox &box);
    void answer(QMessageBox &box);
    void chooseFile(QFileDialog &dialog);
    QString judge(const QMessageBox &box);
    QString judgeAdded();
    QString judgeStored();
    QString judgeImported();

    Screen &screen() const;
    template <class T>
    QList<T *> shown() const;
    QPushButton *someButton();
    QPoint somePlace(const QWidget &widget);
    void putText(QLineEdit &field, const QString &text);
    void key(int code, Qt::KeyboardModifiers modifiers = {}, const QString &text = {});

    /// Nothing may have changed but by what leads from one window to the next.
    QString wrongWithFolder();
    QString nameIn(ControlRef box) { return m_editor->screens().text(box); }

    Dice m_dice;
    QTemporaryDir m_folder;
    QString m_oldFolder;
    std::unique_ptr<Ledger> m_ledger;
    std::unique_ptr<Editor> m_editor;
    QTimer m_lookout;
    Figures m_figures;
    QString m_wrong;
    QString m_shown; ///< the window that was to be seen before this action
    bool m_wantsEnd = false;
};

} // namespace tarvold::testing
