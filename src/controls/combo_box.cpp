#include "controls/combo_box.h"

#include "controls/list_rows.h"
#include "controls/text_box.h"

#include <QAbstractItemView>
#include <QAccessible>
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

    /// Makes whoever keeps this index keep none.
    void forget(const QModelIndex &index) { changePersistentIndex(index, {}); }
};

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
    setFocusPolicy(Qt::StrongFocus); // not by the wheel, which is for scrolling past
    setMinimumContentsLength(1);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
}

void ComboBox::checkQt()
{
    ComboBox().listenToList();
}

void ComboBox::listenToList()
{
    if (m_isListening) {
        return;
    }
    // Only the list's own signal tells a choice apart from a typed text that equals an item:
    // activated() comes for both. Qt's own answer to it would end what can be undone in the box.
    // The signal is private, and another Qt may not have it.
    const QObject *list = view()->parentWidget();
    const char *picked = SIGNAL(itemSelected(QModelIndex));
    m_isListening = disconnect(list, picked, this, nullptr) &&
                    bool(connect(list, picked, this, SLOT(choose(QModelIndex))));
    if (!m_isListening) {
        qFatal("Qt %s has no signal itemSelected() of a combo box's list, so picks can't be heard",
               qVersion());
    }
}

void ComboBox::setText(const QString &text)
{
    setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    setEditText(text);
}

void ComboBox::showPopup()
{
    listenToList();
    m_isListOpen = true;
    QComboBox::showPopup();
    // The list opens on the item that the box shows, and on none for a text of the user's own. Only
    // the list is told: setting the box, be it to the same text, would end what can be undone
    // there.
    const int row = findText(currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    view()->setCurrentIndex(model()->index(row, modelColumn()));
    if (row >= 0) {
        // Qt names the list alone to those who hear it.
        QAccessibleEvent item(view(), QAccessible::Focus);
        item.setChild(row);
        QAccessible::updateAccessibility(&item);
    }
}

void ComboBox::choose(const QModelIndex &item)
{
    // While assistive technology listens, Qt sends each key twice: the accessibility bus
    // is asked first. The list, closed already, would tell the same choice again.
    if (!std::exchange(m_isListOpen, false)) {
        return;
    }
    if (const QString picked = itemText(item.row()); picked != currentText()) {
        m_box->replaceAsOneStep(picked);
    }
    m_box->end(false);
    emit chosen();
}

void ComboBox::followText()
{
    const int row = findText(currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (row >= 0) {
        setCurrentIndex(row); // the box shows its text already, so what can be undone there stays
    } else if (currentIndex() >= 0) {
        // Setting it to -1 would empty the box.
        m_items->forget(m_items->index(currentIndex(), modelColumn()));
    }
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

void ComboBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

} // namespace tarvold
