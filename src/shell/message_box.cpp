#include "shell/message_box.h"

#include "shell/long_text.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QScreen>

#include <utility>

namespace tarvold::messagebox {
namespace {

/// What a message may take of a display, given what stands around its text.
struct Room
{
    int width;
    int height;
};

Room roomFor(const QWidget &box)
{
    constexpr int kAround = 160; // margins, buttons, and what the desktop draws around the box
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

/// A message may quote a line of a file, which can be of any length: the toolkit would lay out some
/// megabytes for minutes, and show the buttons below the display.
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

/// A message box that is as wide as its text needs, up to a line length that can be read; the
/// toolkit's own lets words run out of it. A key that was down before it came does not answer it.
class Box : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

protected:
    bool event(QEvent *event) override
    {
        const bool handled = QMessageBox::event(event);
        if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show) {
            fitToText();
        }
        return handled;
    }

    /// The buttons take Enter before the box does.
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
        auto *label = findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
        label->setWordWrap(true);
        const int width = sizeOf(text(), *this, roomFor(*this).width).width();
        label->setFixedSize(width, label->heightForWidth(width));
        setFixedSize(layout()->totalMinimumSize());
    }
};

QMessageBox::StandardButton ask(QWidget *parent, const QString &title, const QString &text,
                                QMessageBox::StandardButtons buttons,
                                QMessageBox::StandardButton enter,
                                QMessageBox::StandardButton escape)
{
    Box box(QMessageBox::NoIcon, title, {}, buttons, parent);
    box.setText(fitted(text, box));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(enter);
    box.setEscapeButton(escape);
    for (QAbstractButton *button : box.buttons()) {
        button->setIcon({}); // some desktops draw a tick and a cross that say nothing
        button->installEventFilter(&box);
    }
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

void notice(QWidget *parent, const QString &title, const QString &text)
{
    ask(parent, title, text, QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok);
}

bool question(QWidget *parent, const QString &title, const QString &text, EnterMeans enter)
{
    const auto enterButton = enter == EnterMeans::Yes ? QMessageBox::Yes : QMessageBox::No;
    return ask(parent, title, text, QMessageBox::Yes | QMessageBox::No, enterButton,
               QMessageBox::No) == QMessageBox::Yes;
}

} // namespace tarvold::messagebox
