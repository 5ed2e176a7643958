#pragma once

#include <QHash>
#include <QWidget>

#include <initializer_list>

class QLabel;
class QVBoxLayout;

namespace tarvold {

class BoundedColumn;
class PushButton;
class ScrollPane;
struct RecordField;

/// A screen of the program: one top-level window, shown and hidden, never destroyed during a run.
///
/// The object name of the window is the screen's name, and that of each control is the control's
/// name. Tables, tests and assistive technology find both by it. All values live in the controls.
class Screen : public QWidget
{
    Q_OBJECT
public:
    explicit Screen(const char *name);

    /// The control with this name. Names come from the program's own tables, so an unknown one ends
    /// the program; a test walks every table.
    QWidget &control(const char *name) const;

    /// The same, as the control's own type. A wrong type throws std::bad_cast, which ends the
    /// program.
    template <class T>
    T &control(const char *name) const
    {
        return dynamic_cast<T &>(control(name));
    }

    /// The text that a control shows now.
    QString text(const char *control) const;

    /// Puts a text into a control; never counts as a choice by the user.
    void setText(const char *control, const QString &text);

    /// Shows this screen at another's position and size and then hides the other, so that there is
    /// always a visible window.
    void replace(Screen &other);

    /// Registers a control under its name.
    void add(QWidget *control, const char *name);

    /// Registers a control as the source of a record's field.
    void addSource(const RecordField &field, QWidget *control)
    {
        m_sources.insert(&field, control);
    }

    /// The control whose text is saved as this field; none if the screen does not have the field.
    QWidget *sourceOf(const RecordField &field) const { return m_sources.value(&field); }

    /// Makes a label of plain text and registers it under its name. Whoever lays it out owns it.
    QLabel *newLabel(const char *name, const char *text);

signals:
    /// The user wants to go to the previous screen or, from the first one, to leave the flow.
    void backPressed();
    /// The user wants to go to the next screen; empty boxes are filled already.
    void nextPressed();
    /// The screen's work is done; the main menu comes next.
    void finished();
    /// The user closed the window by its title bar or the desktop's close key.
    void closeRequested();

protected:
    /// The control that gets the focus when the screen appears; nullptr leaves the focus as it was.
    virtual QWidget *firstField() const { return nullptr; }

    /// Makes a label that is never visible: its text is a variable of the program.
    QLabel *addHiddenLabel(const char *name, const QString &text = {});

    /// Makes a button for the row at the bottom of the screen.
    PushButton *newButton(const char *name, const char *caption);

    /// Makes the button "<<", with its keys.
    PushButton *newBackButton(const char *name);

    /// Adds the heading above everything else. Screen readers speak it when the screen appears.
    void addHeading(const char *name, const char *text);

    /// Sets what screen readers speak when the screen appears, before the title of all screens.
    void setSpokenTitle(const QString &title);

    /// Adds a line across the screen.
    void addRule(const char *name);

    /// Adds a control between the scrolling part and the buttons.
    void addFoot(QWidget *widget);

    /// Adds the row of buttons at the bottom of the screen, on its left and on its right.
    void addButtonRow(std::initializer_list<PushButton *> left,
                      std::initializer_list<PushButton *> right);

    /// The column between heading and buttons. It scrolls if the display is too small for it.
    QVBoxLayout &column();

    /// The column above that one, which begins with the heading and never scrolls.
    QVBoxLayout &head();

    /// In a window of any width, nothing is wider than this, unless what is in column() grows.
    int readableWidth() const;

    /// What is in column() becomes as wide as the window.
    void growInWidth();

    /// Whether the screen becomes as tall as any window. If not, its buttons stay near its fields.
    void setGrowsInHeight(bool grows);

    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void fitGaps();

    QHash<QByteArray, QWidget *> m_controls;
    QHash<const RecordField *, QWidget *> m_sources;
    BoundedColumn *m_whole;
    BoundedColumn *m_head;
    ScrollPane *m_pane;
    BoundedColumn *m_foot;
};

} // namespace tarvold
