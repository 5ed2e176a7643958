#include "controls/message_box.h"

#include "controls/long_text.h"
#include "controls/sizes.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

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

/// The width of a window whose title bar shows its whole title.
int widthForTitle(const QWidget &window)
{
    constexpr int kIconAndButtons = 6; // and borders, in heights of the title, on any desktop
    QFont font = QFontDatabase::systemFont(QFontDatabase::TitleFont);
    font.setBold(true); // most desktops do that without saying so
    const QFontMetrics metrics(font);
    return metrics.horizontalAdvance(window.windowTitle()) + kIconAndButtons * metrics.height();
}

/// The place of a window's inside that centres it with its frame over another one with its frame,
/// and is wholly on the screen as far as possible.
QRect centredOver(const QWidget &below, const QSize &size)
{
    // The frame of a window that was never shown isn't known, but is much like that of others.
    const QRect inside = below.geometry();
    const QRect outside = below.frameGeometry();
    const QMargins frame(inside.left() - outside.left(), inside.top() - outside.top(),
                         outside.right() - inside.right(), outside.bottom() - inside.bottom());
    const QRect screen = below.screen()->availableGeometry();
    QRect place(QPoint(), size.grownBy(frame));
    place.moveCenter(outside.center());
    place.moveRight(std::min(place.right(), screen.right()));
    place.moveBottom(std::min(place.bottom(), screen.bottom()));
    place.moveLeft(std::max(place.left(), screen.left()));
    place.moveTop(std::max(place.top(), screen.top()));
    return place.marginsRemoved(frame);
}

/// A message box that is as wide as its text and title need, up to a readable line length;
/// QMessageBox lets long words run out of the box, cuts titles, and is off the centre of its window
/// because it is placed before it has its size. Auto-repeat of a key that was already held when the
/// box opened does not answer it.
class Box : public QMessageBox
{
public:
    Box(QWidget *parent, const QString &title, const QString &text, Blocks blocks)
        : QMessageBox(NoIcon, title, {}, NoButton, parent)
    {
        if (blocks == Blocks::Window) {
            setWindowModality(Qt::WindowModal);
        }
        setText(fitted(text, *this));
        setTextFormat(Qt::PlainText);
        evenOutMargins();
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
        if (event->type() == QEvent::LayoutRequest) { // QMessageBox would set another size
            fitToText();
            return true;
        }
        return QMessageBox::event(event);
    }

    /// Sizes and places the box before the desktop shows it.
    void showEvent(QShowEvent *event) override
    {
        QMessageBox::showEvent(event);
        if (event->spontaneous()) {
            return;
        }
        fitToText();
        const QWidget *below = parentWidget() != nullptr ? parentWidget()->window() : nullptr;
        if (below != nullptr && below->isVisible() && !below->isMinimized()) {
            setGeometry(centredOver(*below, size()));
        }
    }

    /// Some desktops offer to minimise the box all the same. Its window would vanish with it.
    void changeEvent(QEvent *event) override
    {
        QMessageBox::changeEvent(event);
        if (event->type() == QEvent::WindowStateChange && isMinimized()) {
            setWindowState(windowState() & ~Qt::WindowMinimized);
            activateWindow();
        }
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
    QLabel &label() const { return *findChild<QLabel *>(u"qt_msgbox_label"_s); }

    /// Takes away the space that Qt leaves beside the text for an icon.
    void evenOutMargins()
    {
        auto &grid = *static_cast<QGridLayout *>(layout());
        for (int place = grid.count() - 1; place >= 0; --place) {
            if (grid.itemAt(place)->spacerItem() != nullptr) {
                delete grid.takeAt(place);
            }
        }
        grid.setContentsMargins(kMargin, kMargin, kMargin, kMargin);
        grid.setHorizontalSpacing(0); // between the text and the column of the icon
        grid.setVerticalSpacing(kMargin);
        label().setContentsMargins({});
        label().setIndent(0);
        label().setWordWrap(true);
    }

    void fitToText()
    {
        const auto *row = findChild<QDialogButtonBox *>();
        const int width =
            std::max({sizeOf(text(), *this, roomFor(*this).width).width(),
                      row->minimumSizeHint().width(), widthForTitle(*this) - 2 * kMargin});
        label().setFixedSize(width, label().heightForWidth(width));
        setFixedSize(layout()->totalMinimumSize());
    }
};

} // namespace

void notice(QWidget *parent, const QString &title, const QString &text, Blocks blocks)
{
    Box box(parent, title, text, blocks);
    QPushButton *ok = box.addButton(QMessageBox::Ok);
    box.ask(ok, ok);
}

bool offer(QWidget *parent, const QString &title, const QString &text, const QString &action,
           Blocks blocks)
{
    Box box(parent, title, text, blocks);
    QPushButton *ok = box.addButton(QMessageBox::Ok);
    const QPushButton *offered = box.addButton(action, QMessageBox::ActionRole);
    return box.ask(ok, ok) == offered;
}

bool question(QWidget *parent, const QString &title, const QString &text, EnterMeans enter,
              Blocks blocks)
{
    Box box(parent, title, text, blocks);
    QPushButton *yes = box.addButton(QMessageBox::Yes);
    QPushButton *no = box.addButton(QMessageBox::No);
    return box.ask(enter == EnterMeans::Yes ? yes : no, no) == yes;
}

Unsaved askUnsaved(QWidget *parent, const QString &title, const QString &text)
{
    Box box(parent, title, text, Blocks::Window);
    QPushButton *save = box.addButton(QMessageBox::Save);
    const QPushButton *discard = box.addButton(u"&Discard"_s, QMessageBox::DestructiveRole);
    QPushButton *cancel = box.addButton(QMessageBox::Cancel);
    const QAbstractButton *pressed = box.ask(save, cancel);
    if (pressed == save) {
        return Unsaved::Save;
    }
    return pressed == discard ? Unsaved::Discard : Unsaved::Cancel;
}

bool askSave(QWidget *parent, const QString &title, const QString &text)
{
    Box box(parent, title, text, Blocks::Window);
    QPushButton *save = box.addButton(QMessageBox::Save);
    QPushButton *cancel = box.addButton(QMessageBox::Cancel);
    return box.ask(save, cancel) == save;
}

} // namespace tarvold::messagebox
