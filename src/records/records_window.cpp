#include "records/records_window.h"

#include "records/editor_keys.h"
#include "records/record_list_view.h"
#include "records/record_pane.h"
#include "records/records_actions.h"
#include "records/records_file.h"
#include "records/records_window_parts.h"
#include "records/to_front.h"
#include "screens/file_choice.h"
#include "screens/file_facts.h"

#include <QCloseEvent>
#include <QDialog>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

QList<RecordsWindow *> &windows()
{
    static QList<RecordsWindow *> all;
    return all;
}

/// The size that a new window gets: it follows the user's text size, as far as the display has
/// room.
QSize startSize(const QWidget &window)
{
    constexpr QSize kFrame(16, 48); // the largest window frame that a desktop draws
    const QFontMetrics metrics = window.fontMetrics();
    return QSize(metrics.averageCharWidth() * 170, metrics.lineSpacing() * 42)
        .boundedTo(window.screen()->availableSize() - kFrame);
}

bool isOf(const RecordsWindow &window, const QString &name)
{
    return filechoice::areSame(window.fileName(), name) ||
           filefacts::wholePath(window.fileName()) == filefacts::wholePath(name);
}

} // namespace

RecordsWindow *RecordsWindow::open(const QString &name, std::optional<DataFileKind> kind)
{
    for (RecordsWindow *window : windows()) {
        if (isOf(*window, name)) {
            bringToFront(*window);
            return window;
        }
    }
    auto *window = new RecordsWindow(name, kind);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    window->activateWindow();
    return window;
}

QList<RecordsWindow *> RecordsWindow::all()
{
    return windows();
}

void RecordsWindow::showDialogs()
{
    for (RecordsWindow *window : windows()) {
        if (QDialog *dialog = window->openDialog()) {
            bringToFront(*window);
            bringToFront(*dialog);
        }
    }
}

bool RecordsWindow::closeAll()
{
    const QList<RecordsWindow *> open = windows();
    return std::all_of(open.begin(), open.end(), [](RecordsWindow *window) {
        return !windows().contains(window) || window->close();
    });
}

RecordsWindow::RecordsWindow(const QString &name, std::optional<DataFileKind> kind, QWidget *parent)
    : QMainWindow(parent)
    , m_parts(nullptr)
{
    setObjectName(u"records"_s);
    setContextMenuPolicy(Qt::NoContextMenu); // Qt's own would only offer to hide the menus
    m_parts = std::make_unique<Parts>(*this);
    new EditorKeys(*this);
    resize(startSize(*this));
    windows() << this;
    m_parts->file->open(name, kind);
    if (!m_parts->file->isAllRead()) {
        constexpr std::chrono::seconds kLatest(1);
        QTimer::singleShot(kLatest, this, &RecordsWindow::finishStart); // if it is not painted
    } else {
        m_parts->pane->prepare(); // at once, as what it makes may need a wider pane
    }
    if (isLoaded()) {
        m_parts->list->setFocus();
    }
}

RecordsWindow::~RecordsWindow()
{
    windows().removeOne(this);
    // The undo stack tells of its end when the list is gone, and the views look at the document.
    m_parts->document.undoStack().disconnect(this);
    delete takeCentralWidget();
}

const QString &RecordsWindow::fileName() const
{
    return m_parts->file->name();
}

bool RecordsWindow::isLoaded() const
{
    return m_parts->file->isLoaded();
}

std::optional<DataFileKind> RecordsWindow::kind() const
{
    return isLoaded() ? std::optional(m_parts->document.kind()) : std::nullopt;
}

void RecordsWindow::offerWriteSimilar()
{
    (*m_parts->actions)[Act::WriteSimilar].setVisible(true);
}

bool RecordsWindow::saveFirst()
{
    return m_parts->file->saveFirst();
}

void RecordsWindow::closeEvent(QCloseEvent *event)
{
    // Whoever opened a dialog waits for its end, and looks at the window then.
    if (openDialog() != nullptr) {
        showDialogs();
        event->ignore();
        return;
    }
    event->setAccepted(!m_parts->file->isAsking() && m_parts->file->mayClose());
}

void RecordsWindow::paintEvent(QPaintEvent *event)
{
    QMainWindow::paintEvent(event);
    if (!std::exchange(m_isPainted, true)) {
        QTimer::singleShot(0, this, &RecordsWindow::finishStart);
    }
}

/// Does what would only delay the first records of a large file.
void RecordsWindow::finishStart()
{
    m_parts->file->startReadingRest();
    m_parts->pane->prepare();
}

QDialog *RecordsWindow::openDialog() const
{
    const QList<QDialog *> dialogs = findChildren<QDialog *>();
    const auto open = std::find_if(dialogs.begin(), dialogs.end(),
                                   [](const QDialog *dialog) { return dialog->isVisible(); });
    return open != dialogs.end() ? *open : nullptr;
}

void RecordsWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    // Some file systems do not report what others write.
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && m_parts != nullptr) {
        m_parts->file->look();
    }
}

} // namespace tarvold::records
