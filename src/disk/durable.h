#pragma once

#include <QByteArrayView>
#include <QIODeviceBase>
#include <QString>

#include <chrono>
#include <optional>

class QFile;
class QFileDevice;

/// What the system offers to find files and to bring their bytes to the disk for good. All
/// functions that fail leave the system's error code behind, of which qt_error_string() tells the
/// words. A handle is a descriptor of the C library.
namespace tarvold::durable {

/// While it lives, the calls that clean up after a failure may set the system's error code anew: at
/// the end it is what it was.
class KeptError
{
public:
    KeptError();
    ~KeptError();
    Q_DISABLE_COPY_MOVE(KeptError)

private:
    int m_code;
};

/// Whether the system's error code says that the user has not the right.
[[nodiscard]] bool isDenied();

/// Why the last call to an open file failed, in words.
[[nodiscard]] QString causeOf(const QFileDevice &file);

/// Whether the system can have files of this name at all, wherever.
[[nodiscard]] bool canBeName(const QString &name);

/// The path for a name that the user typed, so that every name means a file: a leading colon is
/// no mark for Qt's built-in resources.
QString pathOf(const QString &name);

/// What a path may mean, when links are followed.
enum class Kind {
    Nothing,
    File,
    Folder,
    Other, ///< such as a pipe or a device
};

/// What a path means. Nothing is waited for.
[[nodiscard]] Kind kindOf(const QString &path);

/// Whether a path means anything.
[[nodiscard]] bool exists(const QString &path);

/// What changes when a file is written or replaced.
struct FileState
{
    quint64 device;
    quint64 number; ///< of the file on its device
    qint64 size;
    qint64 modified; ///< in nanoseconds
    qint64 changed;  ///< in nanoseconds

    bool operator==(const FileState &) const = default;
};

/// Whether a file was changed so recently that another change may leave its state as it is: many
/// systems stamp files with a clock that ticks only every few milliseconds.
bool mayChangeUnseen(const FileState &state);

/// The state of the file that the user typed this name for; none when it cannot be found.
std::optional<FileState> stateOf(const QString &name);

/// The file that a path means when all symbolic links are followed, also when nothing is there.
/// Nothing with the system's error code set when they cannot be followed, such as a link to nothing
/// on Windows.
[[nodiscard]] std::optional<QString> realPathOf(const QString &path);

/// Opens what a path means for reading, without waiting for the other end when that is a pipe.
/// \return the handle, to be given to close(); a negative one on failure
[[nodiscard]] int openToRead(const QString &path);

/// Closes a handle.
void close(int handle);

/// Whether an open handle is an ordinary file. Nothing with the system's error code set on failure.
[[nodiscard]] std::optional<bool> isOrdinary(int handle);

/// Reads bytes from a place in an open file.
/// \return how many it read, 0 at the end; nothing with the system's error code set on failure
[[nodiscard]] std::optional<qint64> readAt(int handle, qint64 place, char *bytes, qint64 size);

/// Lets the next byte be read at the beginning. `false` with the system's error code set on
/// failure.
[[nodiscard]] bool rewind(int handle);

/// Opens an ordinary file without buffering, and nothing else that may have taken its place.
/// \param mode `ReadOnly`, or `Append`, which creates a missing file
/// \param created where to tell whether there was no such file a moment before
/// \return what went wrong, in words
[[nodiscard]] std::optional<QString> openOrdinary(QFile &file, const QString &path,
                                                  QIODeviceBase::OpenModeFlag mode,
                                                  bool *created = nullptr);

/// The same, and keeps other copies of this program from writing to the file until it is closed.
/// \return what went wrong, in words, such as that another program did not give the file back
///         within some seconds. A file system that has no locks is no reason to refuse.
[[nodiscard]] std::optional<QString> openAlone(QFile &file, const QString &path,
                                               QIODeviceBase::OpenModeFlag mode,
                                               bool *created = nullptr);

/// How long to wait before asking again for a lock that another program has: short, to meet the
/// moment between two of its saves.
std::chrono::microseconds lockPause();

/// Takes the lock of an open file, which is given back when it is closed. A file system that has no
/// locks gives it to everybody. `false` when another program has it.
[[nodiscard]] bool takeLock(int handle);

/// Whether two open files are the same one. Nothing with the system's error code set on failure.
[[nodiscard]] std::optional<bool> areSame(int one, int other);

/// Whether a path means this open file: other programs may have removed or replaced it since the
/// opening. Nothing with the system's error code set when that cannot be found out.
[[nodiscard]] std::optional<bool> meansFile(const QString &path, int handle);

/// The size of an open file in bytes. Nothing with the system's error code set on failure.
[[nodiscard]] std::optional<qint64> sizeOf(int handle);

/// Where the next byte would be read or written in an open file; behind a write that is its end, or
/// the beginning when the end may be of another program's bytes.
/// Nothing with the system's error code set on failure.
[[nodiscard]] std::optional<qint64> placeIn(int handle);

/// Claims the space for bytes to be written behind the end of an open file, without changing its
/// size, so that a full disk shows before a part of them is written. Cutting the file gives the
/// space back. Where the system cannot do that, the write itself has to tell.
/// \return `false` with the system's error code set when the space is not there
[[nodiscard]] bool reserve(int handle, qint64 offset, qint64 count);

/// Removes the file that a path means; links to it stay. `false` on failure.
[[nodiscard]] bool removeFile(const QString &path);

/// Writes all bytes to an open file and brings them to the disk.
/// \param written where to add up how many bytes were written, or may have been by a failed call
/// \return what went wrong, in words; a part of the bytes may be in the file then
[[nodiscard]] std::optional<QString> writeAndSync(QFileDevice &file, QByteArrayView bytes,
                                                  qint64 *written = nullptr);

/// Brings an open file's bytes to the disk. `false` with the system's error code set on failure.
[[nodiscard]] bool syncFile(int handle);

/// Brings a file's entry in its folder to the disk, needed once after the file is created. A folder
/// that may be written to but not listed, or that the system never syncs, is left to the system.
/// `false` with the system's error code set on failure.
[[nodiscard]] bool syncFolderOf(const QString &path);

} // namespace tarvold::durable
