#include "records/file_watch.h"

#include <QFileInfo>

namespace tarvold::records {
namespace {

constexpr int kPauseMs = 150;

std::optional<FileState> stateOf(const QString &name)
{
    const auto path = FilePath::ofTyped(name);
    return path ? path->state() : std::nullopt;
}

/// The file that a name means and its folder, links followed.
QStringList placesOf(const QString &name)
{
    const auto path = FilePath::ofTyped(name);
    if (!path) {
        return {};
    }
    QStringList places;
    const auto real = path->real();
    for (const QString &file : {path->text(), real ? real->text() : QString()}) {
        if (!file.isEmpty()) {
            places << QFileInfo(file).absolutePath();
        }
    }
    if (path->kind() == FilePath::Kind::File) {
        places << QFileInfo(path->text()).absoluteFilePath();
    }
    places.removeDuplicates();
    return places;
}

} // namespace

FileWatch::FileWatch(QObject *parent) : QObject(parent)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(kPauseMs);
    connect(&m_pause, &QTimer::timeout, this, &FileWatch::look);
    const auto soon = [this] {
        if (!m_pause.isActive()) { // a file that is written all the time is looked at now and then
            m_pause.start();
        }
    };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, soon);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, soon);
}

void FileWatch::follow(const QString &name)
{
    if (name != m_name && !m_watcher.files().isEmpty()) {
        m_watcher.removePaths(m_watcher.files());
    }
    m_name = name;
    m_pause.stop();
    watch();
    remember();
}

void FileWatch::look()
{
    if (m_name.isEmpty()) {
        return;
    }
    watch();
    const bool maybeOther = !m_isSure || stateOf(m_name) != m_state;
    remember();
    if (maybeOther) {
        emit changed();
    }
}

void FileWatch::remember()
{
    m_state = stateOf(m_name);
    m_isSure = !m_state || !mayChangeUnseen(*m_state);
}

void FileWatch::watch()
{
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    for (const QString &place : placesOf(m_name)) {
        // Qt would complain on the terminal of what may not be read.
        if (!watched.contains(place) && QFileInfo(place).isReadable()) {
            m_watcher.addPath(place);
        }
    }
}

} // namespace tarvold::records
