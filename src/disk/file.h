#pragma once

#include "disk/file_error.h"
#include "disk/file_path.h"

#include <QByteArrayView>

#include <cstdint>
#include <span>
#include <utility>

namespace tarvold {

/// Owns an open file, and closes it at the end. Nothing is buffered.
class File
{
public:
    /// What the system calls an open file: a descriptor, or a `HANDLE` of Windows.
    using Handle = std::intptr_t;

    enum class Access {
        Read,
        Append, ///< creates a missing file
        Write,  ///< to a file that is there
    };

    /// Opens what a path means, and does not wait for the other end of a pipe. On Windows a file
    /// that another program shares with nobody is waited for.
    [[nodiscard]] static Result<File> open(const FilePath &path, Access access);

    /// The same, but an error when it is no ordinary file, which may have changed since the path
    /// was checked.
    [[nodiscard]] static Result<File> openOrdinary(const FilePath &path, Access access);

    /// The same, and takes the advisory lock that keeps other copies of this program from writing
    /// to the file until it is closed. Waits for a copy that has it. A file system without locks is
    /// no reason to refuse.
    [[nodiscard]] static Result<File> openLocked(const FilePath &path, Access access);

    /// Owns what a system call gave, or tells why it just gave no handle.
    /// \param isNew whether it created the file
    [[nodiscard]] static Result<File> owning(Handle handle, bool isNew = false)
    {
        return resultOf(handle != kNone).map([&] { return File(handle, isNew); });
    }

    /// No open file.
    File() = default;
    File(File &&other) noexcept { swap(other); }
    File &operator=(File &&other) noexcept
    {
        swap(other);
        return *this;
    }
    ~File() { close(); }
    Q_DISABLE_COPY(File)

    bool isOpen() const { return m_handle != kNone; }
    Handle handle() const { return m_handle; }
    /// Closes the file, if it is open, and so releases its lock.
    void close();

    /// Whether there was no such file a moment before it was opened.
    bool isNew() const { return m_isNew; }
    [[nodiscard]] Result<bool> isOrdinary() const;
    [[nodiscard]] Result<bool> isSame(const File &other) const;
    /// Whether a path means this file: other programs may have removed or replaced it since.
    [[nodiscard]] Result<bool> isAt(const FilePath &path) const;
    /// In bytes.
    [[nodiscard]] Result<qint64> size() const;

    /// Reads bytes from a place in the file.
    /// \return how many it read, which may be fewer than wanted; 0 at the end
    [[nodiscard]] Result<qint64> readAt(qint64 place, std::span<char> bytes) const;
    /// Whether the file holds these bytes at a place.
    [[nodiscard]] Result<bool> holds(qint64 place, QByteArrayView bytes) const;

    /// Reserves disk space for bytes to be appended, without changing the file's size, so that a
    /// full disk is noticed before a part of them is written. Truncating the file releases it.
    /// Where the system cannot do that, append() itself fails.
    [[nodiscard]] Result<void> reserve(qint64 offset, qint64 count);
    /// Writes bytes at the end of the file as it is at that moment. After a failure a part of them
    /// may be there; `MaybeChanged` says that it is not known which.
    [[nodiscard]] Result<void> append(QByteArrayView bytes);
    /// How many bytes were appended, including those of an append() that failed.
    qint64 appended() const { return m_appended; }
    /// The place behind what was appended last.
    [[nodiscard]] Result<qint64> position() const;
    [[nodiscard]] Result<void> truncate(qint64 size);
    /// Brings the file's bytes to the disk (fsync).
    [[nodiscard]] Result<void> sync();

private:
    static constexpr Handle kNone = -1; // on both systems

    File(Handle handle, bool isNew) : m_handle(handle), m_isNew(isNew) {}
    void swap(File &other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        std::swap(m_isNew, other.m_isNew);
        std::swap(m_appended, other.m_appended);
    }
    /// Takes the lock. `false` when another program has it.
    [[nodiscard]] Result<bool> lock();

    Handle m_handle = kNone;
    bool m_isNew = false;
    qint64 m_appended = 0;
};

/// The error when a path means a pipe, a device, or anything else that is no ordinary file.
[[nodiscard]] FileError notOrdinary();

} // namespace tarvold
