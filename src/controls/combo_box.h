#pragma once

#include <QComboBox>

namespace tarvold {

class TextBox;

/// The combo box of all screens: a fixed list beside a box that accepts any text.
///
/// What is typed stays exactly as typed; nothing completes, corrects or stores it. Picking an item
/// in the opened list, by mouse or keyboard, is the only choice, and picking the item that is
/// already shown is one too. Down, F4 and Alt+Down open the list; no other key and no wheel turn
/// changes a closed one.
///
/// A pick can be undone in the box, which brings back what was typed there; neither undo nor redo
/// is a choice. The current index follows what the user types, picks and undoes, and what setText()
/// shows: it is that of the item with this text, -1 for any other.
class ComboBox : public QComboBox
{
    Q_OBJECT
public:
    explicit ComboBox(QWidget *parent = nullptr);

    /// Ends the program with a message if its Qt does not tell picks from typed text. Call it at
    /// the start: later, a list that nobody hears would lose what the user picks.
    static void checkQt();

    /// Shows a text, be it in the list or not. This is not a choice, and can't be undone.
    void setText(const QString &text);

    void showPopup() override;

signals:
    /// The user picked an item in the opened list; the box already shows it.
    void chosen();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private slots:
    /// Takes the list's word for a choice, once each time that the list was opened.
    void choose(const QModelIndex &item);

private:
    class Items;

    void listenToList();
    /// Makes the current index that of the item with the text of the box.
    void followText();

    Items *m_items;
    TextBox *m_box;
    bool m_isListening = false;
    bool m_isListOpen = false;
};

} // namespace tarvold
