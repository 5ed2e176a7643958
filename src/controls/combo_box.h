#pragma once

#include <QComboBox>

namespace tarvold {

class Announcement;
class TextBox;

/// The combo box of all screens: a fixed list beside a box that accepts any text.
///
/// Typed text stays exactly as typed; nothing completes, corrects or stores it. Only picking an
/// item in the opened list, by mouse or keyboard, counts as a choice, even if the box already shows
/// that item. Down, F4 and Alt+Down open the list; no other key and no wheel turn changes the text
/// while the list is closed.
/// In the opened list letters find an item; the first one always searches from the top, so that the
/// same letters find the same item.
///
/// Undo after a pick restores the typed text; neither undo nor redo counts as a choice. The current
/// index follows what the user types, picks and undoes, and what setText() shows: it is the index
/// of the item with this text, or -1 if there is none.
///
/// A box may be told what to say of a text outside its list: it then shows a small mark beside such
/// a text, says why in its tooltip and its accessible description, and tells screen readers once
/// when the mark appears. While the user types the beginning of an item there is no mark, and
/// while the user types anything the description stays, as it would be read out at each change.
///
/// Clicks, focus and tooltips are those of a TextBox, the tooltip also over the arrow. A click on
/// the arrow that brings the focus selects a fill word as well, and so does its pick: what is typed
/// then replaces it.
class ComboBox : public QComboBox
{
    Q_OBJECT
public:
    explicit ComboBox(QWidget *parent = nullptr);

    /// Ends the program with a message if this Qt version cannot distinguish picks from typed text.
    /// Call it at startup: otherwise picks would be lost without notice later.
    static void checkQt();

    /// Shows a text, whether or not it is in the list. This is not a choice, and can't be undone.
    void setText(const QString &text);

    /// Marks every text outside the list. Called again, it only changes what is said of it.
    /// \param warning what to say of it
    void markUnlisted(const QString &warning);

    /// Whether the text is marked as being outside the list.
    bool isMarked() const { return m_mark != nullptr && m_isMarked; }

    void showPopup() override;
    void hidePopup() override;

signals:
    /// The user picked an item in the opened list; the box already shows it.
    void chosen();

protected:
    /// Whether a key types a character, which searches in a list.
    static bool isTyping(const QKeyEvent &event);

    /// Makes the letter that is typed next the first one of a search from the top of the opened
    /// list. If no item starts with it, it finds nothing.
    void startSearch(const QString &letter);

    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private slots:
    /// Emits chosen() once per opened list.
    void choose(const QModelIndex &item);

private:
    class Items;

    void connectToList();
    /// Sets the current index to the item whose text the box shows, or to none.
    void followText();
    /// Whether the text is outside the list and no beginning of an item that is being typed.
    bool isUnlisted(bool isTyping) const;
    /// Whether the user is changing the text by keys.
    bool isBeingTyped() const;
    /// Brings the mark up to date, and its description once the user has finished typing.
    void updateMark(bool isTyping);
    void showMark(bool isMarked);
    /// Says in the accessible description whether there is a mark.
    void describeMark() { describeMark(m_isMarked); }
    void describeMark(bool isMarked);
    void placeMark();

    Items *m_items;
    TextBox *m_box;
    QString m_warning;
    QWidget *m_mark = nullptr; ///< null unless such texts are marked
    Announcement *m_announcement = nullptr;
    bool m_isMarked = false;
    bool m_isMarkDescribed = false;
    bool m_isListConnected = false;
    bool m_isListOpen = false;
    bool m_isSearchNew = false;  ///< no letter was typed since the list opened
    bool m_selectsAgain = false; ///< a fill word, when the list has closed
};

} // namespace tarvold
