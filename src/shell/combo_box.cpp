#include "shell/combo_box.h"

#include "shell/list_rows.h"
#include "shell/text_box.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QKeyEvent>
#include <QWheelEvent>

#include <utility>

namespace tarvold {

ComboBox::ComboBox(QWidget *parent) : QComboBox(parent)
{
    setLineEdit(new TextBox);
    setCompleter(nullptr);
    setInsertPolicy(NoInsert);
    setMaxVisibleItems(25);
    setItemDelegate(new ListRows(this));
    setFocusPolicy(Qt::StrongFocus); // not by the wheel, which is for scrolling past
    setMinimumContentsLength(1);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
}

void ComboBox::setText(const QString &text)
{
    setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    setEditText(text);
}

void ComboBox::showPopup()
{
    m_isListOpen = true;
    QComboBox::showPopup();
    // The list opens on the item that the box shows, and on none for a text of the user's own. Only
    // the list is told: setting the box, be it to the same text, would end what can be undone
    // there.
    const int row = findText(currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    view()->setCurrentIndex(model()->index(row, modelColumn()));
    if (row >= 0) {
        // The toolkit names the list alone to those who hear it.
        QAccessibleEvent item(view(), QAccessible::Focus);
        item.setChild(row);
        QAccessible::updateAccessibility(&item);
    }
    // Only the list's own signal tells a choice apart from a typed text that equals an item:
    // activated() comes for both.
    connect(view()->parentWidget(), SIGNAL(itemSelected(QModelIndex)), this, SLOT(choose()),
            Qt::UniqueConnection);
}

void ComboBox::choose()
{
    // While assistive technology listens, the toolkit sends each key twice: the accessibility bus
    // is asked first. The list, closed already, would tell the same choice again.
    if (std::exchange(m_isListOpen, false)) {
        emit chosen();
    }
}

void ComboBox::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Down:
    case Qt::Key_F4:
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
