#pragma once

#include "disk/file_path.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

#include <optional>

namespace tarvold::records {

/// Tells when a file on the disk may hold something else than before: it was written, replaced,
/// removed or created.
///
/// Watches the file and its folder, as many programs replace a file instead of writing into it.
/// Some file systems report nothing, so look() should be called now and then, such as when a window
/// becomes active.
class FileWatch : public QObject
{
    Q_OBJECT
public:
    explicit FileWatch(QObject *parent = nullptr);

    /// Follows another file, or the same one after it was read or written.
    /// \param name as the user typed it
    void follow(const QString &name);

    /// Looks at the file now.
    void look();

signals:
    /// The file may hold something else. Not told again until it may have changed once more.
    void changed();

private:
    void remember();
    /// Watches what can be watched now; a path that is replaced is no longer watched.
    void watch();

    QFileSystemWatcher m_watcher;
    QTimer m_pause; ///< several reports mostly come at once
    QString m_name;
    std::optional<FileState> m_state; ///< nothing: there is no such file
    bool m_isSure = true;             ///< that a change would show in the state
};

} // namespace tarvold::records
