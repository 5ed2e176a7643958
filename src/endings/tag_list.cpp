#include "endings/tag_list.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionComboBox>

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
    lineEdit()->installEventFilter(this);
    setAttribute(Qt::WA_InputMethodEnabled, false);
}

void TagList::hidePopup()
{
    // A press on the box closes its list, and must not be sent on to open it again.
    if (rect().contains(mapFromGlobal(QCursor::pos()))) {
        view()->window()->setAttribute(Qt::WA_NoMouseReplay);
    }
    ComboBox::hidePopup();
}

bool TagList::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != lineEdit() || event->type() != QEvent::MouseButtonPress) {
        return ComboBox::eventFilter(watched, event);
    }
    const auto *press = static_cast<QMouseEvent *>(event);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect arrow =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this);
    QMouseEvent onArrow(press->type(), arrow.center(), press->globalPosition(), press->button(),
                        press->buttons(), press->modifiers());
    mousePressEvent(&onArrow);
    return true;
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
    view()->keyboardSearch({}); // forgets the letters before, and goes to the first item
    view()->keyboardSearch(letter);
}

} // namespace tarvold
