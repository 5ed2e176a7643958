#include "controls/combo_box.h"

#include "controls/list_box.h"
#include "controls/text_box.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QStandardItemModel>
#include <QWheelEvent>

#include <utility>

namespace tarvold {

/// The items of the list.
class ComboBox::Items : public QStandardItemModel
{
public:
    using QStandardItemModel::QStandardItemModel;

    /// Invalidates all persistent copies of this index.
    void forget(const QModelIndex &index) { changePersistentIndex(index, {}); }
};

bool ComboBox::isTyping(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers others = ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const QString text = event.text();
    return !text.isEmpty() && text.front().isPrint() && !(event.modifiers() & others);
}

ComboBox::ComboBox(QWidget *parent)
    : QComboBox(parent)
    , m_items(new Items(this))
    , m_box(new TextBox)
{
    setModel(m_items);
    setLineEdit(m_box);
    connect(m_box, &QLineEdit::textEdited, this, &ComboBox::followText);
    setCompleter(nullptr);
    setInsertPolicy(NoInsert);
    setMaxVisibleItems(25);
    setItemDelegate(new ListRows(this));
    setFocusPolicy(Qt::StrongFocus); // no focus by wheel: the user may just be scrolling past
    setMinimumContentsLength(1);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
}

void ComboBox::checkQt()
{
    ComboBox().connectToList();
}

void ComboBox::connectToList()
{
    if (m_isListConnected) {
        return;
    }
    view()->installEventFilter(this);
    // Only this signal distinguishes a pick from typed text that equals an item: Qt emits
    // activated() for both. Qt's own handler is disconnected because it would clear the undo
    // history. The signal is private, so another Qt version may lack it.
    const QObject *list = view()->parentWidget();
    const char *picked = SIGNAL(itemSelected(QModelIndex));
    m_isListConnected = disconnect(list, picked, this, nullptr) &&
                        bool(connect(list, picked, this, SLOT(choose(QModelIndex))));
    if (!m_isListConnected) {
        qFatal("Qt %s has no signal itemSelected() of a combo box's list, so picks would be lost",
               qVersion());
    }
}

void ComboBox::setText(const QString &text)
{
    setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    setEditText(text);
}

void ComboBox::resizeEvent(QResizeEvent *event)
{
    QComboBox::resizeEvent(event);
    placeMark();
}

void ComboBox::showPopup()
{
    connectToList();
    m_isListOpen = true;
    m_isSearchNew = true;
    const bool isAllSelected = m_box->hasSelectedText() && m_box->selectedText() == m_box->text();
    m_selectsAgain = m_selectsAgain || isAllSelected;
    QComboBox::showPopup();
    if (isAllSelected) { // the list has taken the focus, and with it the selection
        m_box->selectAll();
    }
    // Select the item that the box shows, or none if its text is not in the list. This must not set
    // the box's text, even to the same text, as that would clear its undo history.
    const int row = findText(currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    view()->setCurrentIndex(model()->index(row, modelColumn()));
    if (row >= 0) {
        // Qt announces only the list, not its current item.
        QAccessibleEvent item(view(), QAccessible::Focus);
        item.setChild(row);
        QAccessible::updateAccessibility(&item);
    }
}

void ComboBox::hidePopup()
{
    QComboBox::hidePopup();
    if (std::exchange(m_selectsAgain, false)) {
        // Later, as the focus is still on its way back.
        QMetaObject::invokeMethod(m_box, &TextBox::selectFillWord, Qt::QueuedConnection);
    }
}

void ComboBox::startSearch(const QString &letter)
{
    m_isSearchNew = false;
    const QModelIndex shown = view()->currentIndex();
    const bool isFound = findText(letter, Qt::MatchStartsWith) >= 0;
    {
        const QSignalBlocker quiet(view()->selectionModel()); // nobody has moved yet
        view()->setCurrentIndex({});
        view()->keyboardSearch({}); // forgets the letters of an earlier search
        view()->setCurrentIndex(isFound ? QModelIndex() : shown);
    }
    view()->viewport()->update();
}

bool ComboBox::eventFilter(QObject *watched, QEvent *event)
{
    if (m_isSearchNew && watched == view() && event->type() == QEvent::KeyPress) {
        if (const auto &key = static_cast<QKeyEvent &>(*event); isTyping(key)) {
            startSearch(key.text());
        }
    }
    return QComboBox::eventFilter(watched, event);
}

void ComboBox::choose(const QModelIndex &item)
{
    // While assistive technology listens, Qt delivers each key twice, as it asks the accessibility
    // bus first. Without this check the closed list would report the same pick again.
    if (!std::exchange(m_isListOpen, false)) {
        return;
    }
    if (const QString picked = itemText(item.row()); picked != currentText()) {
        m_box->replaceAsOneStep(picked);
    }
    m_box->end(false);
    m_box->selectFillWord();
    describeMark();
    emit chosen();
}

void ComboBox::followText()
{
    const int row = findText(currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (row >= 0) {
        setCurrentIndex(row); // the box already shows this text, so its undo history is kept
    } else if (currentIndex() >= 0) {
        // setCurrentIndex(-1) would clear the text.
        m_items->forget(m_items->index(currentIndex(), modelColumn()));
    }
}

bool ComboBox::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip &&
        m_box->showWholeText(static_cast<QHelpEvent *>(event)->globalPos())) {
        return true;
    }
    return QComboBox::event(event);
}

void ComboBox::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_F4:
        if (event->modifiers() != Qt::NoModifier) { // Alt+F4 closes windows
            event->ignore();
            return;
        }
        showPopup();
        return;
    case Qt::Key_Down:
        showPopup();
        return;
    case Qt::Key_Up:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return;
    default:
        QComboBox::keyPressEvent(event);
    }
}

void ComboBox::mousePressEvent(QMouseEvent *event)
{
    // A window that becomes active by this click takes the focus, and the selection, only later.
    m_selectsAgain = !isActiveWindow();
    m_box->selectAfterClickBeside(); // before the list opens and takes the focus
    QComboBox::mousePressEvent(event);
}

void ComboBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

} // namespace tarvold
