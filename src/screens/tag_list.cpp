#include "screens/tag_list.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>

namespace tarvold {
TagList::TagList(QWidget *parent) : ComboBox(parent)
{
    lineEdit()->setReadOnly(true);
    lineEdit()->setAttribute(Qt::WA_TransparentForMouseEvents); // clicks open the list
    setAttribute(Qt::WA_InputMethodEnabled, false);
}

void TagList::keyPressEvent(QKeyEvent *event)
{
    if (isTyping(*event)) {
        openAt(event->text());
    } else {
        ComboBox::keyPressEvent(event);
    }
}

void TagList::openAt(const QString &letter)
{
    showPopup();
    startSearch(letter);
    view()->keyboardSearch(letter);
}

} // namespace tarvold
