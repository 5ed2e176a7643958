#include "screens/tag_list.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>

namespace tarvold {
namespace {

bool isTyping(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers others = ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const QString text = event.text();
    return !text.isEmpty() && text.front().isPrint() && !(event.modifiers() & others);
}

} // namespace

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
    if (findText(letter, Qt::MatchStartsWith) < 0) {
        return;
    }
    view()->setCurrentIndex({});
    view()->keyboardSearch({}); // resets the search, and goes to the first item
    view()->keyboardSearch(letter);
}

} // namespace tarvold
