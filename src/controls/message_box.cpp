#include "controls/message_box.h"

#include "controls/long_text.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

namespace tarvold::messagebox {

using namespace Qt::StringLiterals;

namespace {

/// The space that a message may take on a display, apart from buttons and margins.
struct Room
{
    int width;
    int height;
};

Room roomFor(const QWidget &box)
{
    constexpr int kAround = 160; // margins, buttons and window frame
    constexpr int kMostCharacters = 90;
    const QSize display = box.screen()->availableSize();
    return {
        std::min(display.width() - kAround, box.fontMetrics().averageCharWidth() * kMostCharacters),
        display.height() - kAround};
}

QSize sizeOf(const QString &text, const QWidget &box, int width)
{
    const QRect room(0, 0, width, QWIDGETSIZE_MAX);
    return box.fontMetrics().boundingRect(room, Qt::TextWordWrap, text).size();
}

/// A message may quote a line of a file, which can be of any length: Qt would need minutes to lay
/// out megabytes, and the buttons would end up below the display.
QString fitted(const QString &text, const QWidget &box)
{
    constexpr qsizetype kMostTried = 5000;
    constexpr qsizetype kLeast = 100;
    const Room room = roomFor(box);
    qsizetype most = kMostTried;
    QString shown = longtext::breakable(longtext::quoted(text, most));
    while (most > kLeast && sizeOf(shown, box, room.width).height() > room.height) {
        most = most * 3 / 4;
        shown = longtext::breakable(longtext::quoted(text, most));
    }
    return shown;
}

/// A message box that is as wide as its text needs, up to a readable line length; QMessageBox lets
/// long words run out of the box. Auto-repeat of a key that was already held when the box opened
/// does not answer it.
class Box : public QMessageBox
{
public:
    Box(QWidget *parent, const QString &title, const QString &text)
        : QMessageBox(NoIcon, title, {}, NoButton, parent)
    {
        setText(fitted(text, *this));
        setTextFormat(Qt::PlainText);
    }

    /// Shows the box with the buttons that were added.
    /// \param enter the button that Enter presses
    /// \param escape the button that Escape presses
    /// \return the button that was pressed
    QAbstractButton *ask(QPushButton *enter, QPushButton *escape)
    {
        setDefaultButton(enter);
        setEscapeButton(escape);
        for (QAbstractButton *button : buttons()) {
            button->installEventFilter(this);
        }
        exec();
        return clickedButton();
    }

protected:
    bool event(QEvent *event) override
    {
        const bool handled = QMessageBox::event(event);
        if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show) {
            fitToText();
        }
        return handled;
    }

    /// Buttons get Enter before the box does.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        return (event->type() == QEvent::KeyPress &&
                static_cast<QKeyEvent *>(event)->isAutoRepeat()) ||
               QMessageBox::eventFilter(watched, event);
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        if (!event->isAutoRepeat()) {
            QMessageBox::keyPressEvent(event);
        }
    }

private:
    void fitToText()
    {
        auto *label = findChild<QLabel *>(u"qt_msgbox_label"_s);
        label->setWordWrap(true);
        const int width = sizeOf(text(), *this, roomFor(*this).width).width();
        label->setFixedSize(width, label->heightForWidth(width));
        setFixedSize(layout()->totalMinimumSize());
    }
};

} // namespace

void notice(QWidget *parent, const QString &title, const QString &text)
{
    Box box(parent, title, text);
    QPushButton *ok = box.addButton(QMessageBox::Ok);
    box.ask(ok, ok);
}

bool offer(QWidget *parent, const QString &title, const QString &text, const QString &action)
{
    Box box(parent, title, text);
    QPushButton *ok = box.addButton(QMessageBox::Ok);
    const QPushButton *offered = box.addButton(action, QMessageBox::ActionRole);
    return box.ask(ok, ok) == offered;
}

bool question(QWidget *parent, const QString &title, const QString &text, EnterMeans enter)
{
    Box box(parent, title, text);
    QPushButton *yes = box.addButton(QMessageBox::Yes);
    QPushButton *no = box.addButton(QMessageBox::No);
    return box.ask(enter == EnterMeans::Yes ? yes : no, no) == yes;
}

} // namespace tarvold::messagebox
