#include "screens/file_drop.h"

#include "datafiles/file_name.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace tarvold {

namespace {

QStringList dataFilesIn(const QMimeData &dragged)
{
    QStringList files;
    for (const QUrl &url : dragged.urls()) {
        // Windows and its file systems write extensions in any case.
        if (url.isLocalFile() && isTvdName(url.toLocalFile().toLower())) {
            files << url.toLocalFile();
        }
    }
    return files;
}

} // namespace

void FileDrop::watch(QWidget &target)
{
    target.setAcceptDrops(true);
    target.installEventFilter(this);
}

bool FileDrop::accepts(QDropEvent &event)
{
    const Qt::DropActions possible = event.possibleActions();
    const bool isOffered = (possible & (Qt::CopyAction | Qt::LinkAction)) != Qt::IgnoreAction;
    if (!isOffered || dataFilesIn(*event.mimeData()).isEmpty()) {
        return false;
    }
    event.setDropAction(possible.testFlag(Qt::CopyAction) ? Qt::CopyAction : Qt::LinkAction);
    event.accept();
    return true;
}

bool FileDrop::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        return accepts(static_cast<QDropEvent &>(*event)) || QObject::eventFilter(watched, event);
    case QEvent::Drop: {
        auto &drop = static_cast<QDropEvent &>(*event);
        if (!accepts(drop)) {
            break;
        }
        for (const QString &file : dataFilesIn(*drop.mimeData())) {
            QMetaObject::invokeMethod(
                this, [this, file] { emit dropped(file); }, Qt::QueuedConnection);
        }
        return true;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tarvold
