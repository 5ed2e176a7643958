#pragma once

#include <QHash>
#include <QWidget>

#include <initializer_list>

class QLabel;
class QVBoxLayout;

namespace tarvold {

class PushButton;
class ScrollPane;

/// A screen of the program: one top-level window, shown and hidden, never destroyed during a run.
///
/// Its object name is the screen's name, a control's object name is the control's name, and that is
/// how tables, tests and assistive technology find both. All values live in the controls.
class Screen : public QWidget
{
    Q_OBJECT
public:
    explicit Screen(const char *name);

    /// The control of this name. Names come from the program's own tables, so an unknown one ends
    /// the program; a test walks every table.
    QWidget &control(const char *name) const;

    /// The same, as the control's own type. A wrong type ends the program by a std::bad_cast.
    template <class T>
    T &control(const char *name) const
    {
        return dynamic_cast<T &>(control(name));
    }

    /// The text that a control shows now.
    QString text(const char *control) const;

    /// Puts a text into a control; never counts as a choice of the user's.
    void setText(const char *control, const QString &text);

    /// Shows this screen in the place of another, at its position and in its size, and then hides
    /// the other, so that there is always a window to see.
    void replace(Screen &other);

    /// Makes a control known by its name.
    void add(QWidget *control, const char *name);

    /// Makes a label of plain text and makes it known by its name. Whoever lays it out owns it.
    QLabel *newLabel(const char *name, const char *text);

signals:
    /// The user wants to go to the screen before, or to leave the flow on its first screen.
    void backPressed();
    /// The user wants to go to the next screen, and this one has done what comes before that.
    void nextPressed();
    /// The screen's work is done and the main menu comes next.
    void finished();
    /// The user closed the window by its title bar or the desktop's close key.
    void closeRequested();

protected:
    /// The control that has the focus when the screen appears; none leaves the focus as it was.
    virtual QWidget *firstField() const { return nullptr; }

    /// Makes a label that is never visible: its text is a variable of the program's.
    QLabel *addHiddenLabel(const char *name, const QString &text = {});

    /// Makes a button for the row at the foot of the screen.
    PushButton *newButton(const char *name, const char *caption);

    /// Makes the button "<<", with its keys.
    PushButton *newBackButton(const char *name);

    /// The heading over everything else. It is spoken when the screen appears.
    void addHeading(const char *name, const char *text);

    /// What is spoken when the screen appears, before the title that all screens have.
    void setSpokenTitle(const QString &title);

    /// A line across the screen.
    void addRule(const char *name);

    /// Puts a control under what scrolls, above the buttons.
    void addFoot(QWidget *widget);

    /// The row of buttons at the foot of the screen, to its left and to its right.
    void addButtonRow(std::initializer_list<PushButton *> left,
                      std::initializer_list<PushButton *> right);

    /// The column between heading and foot. It scrolls where the display is too small for it.
    QVBoxLayout &column();

    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    QHash<QByteArray, QWidget *> m_controls;
    QVBoxLayout *m_head;
    ScrollPane *m_pane;
    QVBoxLayout *m_foot;
};

} // namespace tarvold
