#include "disk/append.h"

#include "disk/file.h"
#include "disk/read_back.h"

#include <utility>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostTries = 10;

/// One try to append to the file that a path means at this moment.
class Try
{
public:
    explicit Try(FilePath path) : m_path(std::move(path)) {}

    /// Appends the bytes and brings them to the disk.
    /// \return whether the path means a file with the bytes in it now
    Result<bool> append(QByteArrayView bytes);

    /// Undoes the write. `true` when the file that the path means holds nothing of it.
    bool undo();

    /// Undoes the write in a file that lost its name to another one. `false` when the file kept its
    /// name, and may hold a part of the bytes.
    bool undoInOldFile();

private:
    Result<void> open();
    Result<void> write(QByteArrayView bytes);
    bool truncate();

    FilePath m_path;
    File m_file;
    bool m_created = false;
    qint64 m_end = 0; ///< behind what was written; only other programs write further
};

Result<void> Try::open()
{
    Result<File> file = File::openLocked(m_path, File::Access::Append);
    if (!file) {
        return failure(file.error());
    }
    m_file = std::move(*file);
    const Result<qint64> size = m_file.size();
    m_end = size.value_or(0); // if unknown, nothing is written
    // A file that is not empty was created by another program in the meantime.
    m_created = m_file.isNew() && m_end == 0;
    return size.map([](qint64 /*size*/) {});
}

Result<void> Try::write(QByteArrayView bytes)
{
    auto written = m_file.append(bytes).and_then([this] { return m_file.sync(); });
    // The system writes at the end of the file as it is then, which has moved if a program that
    // takes no lock changed the file meanwhile. If the position is unknown, assume that it did not.
    if (m_file.appended() > 0) {
        m_end = m_file.position().value_or(m_end + m_file.appended());
    }
    return written;
}

Result<bool> Try::append(QByteArrayView bytes)
{
    return open()
        .and_then([&] { return m_file.reserve(m_end, bytes.size()); })
        .and_then([&] { return write(bytes); })
        // Even a file that was there may have got its name just now, from a program that syncs
        // nothing.
        .and_then([&] { return m_path.syncFolder(); })
        .and_then([&] { return isWritten(m_path, m_file, m_end - m_file.appended(), bytes); });
}

/// Truncates the file to its old length, unless another program appended to it or truncated it.
/// `true` when it holds nothing that was written here.
bool Try::truncate()
{
    const qint64 oldEnd = m_end - m_file.appended();
    const Result<qint64> size = m_file.size();
    if (size == m_end && m_file.truncate(oldEnd) && m_file.sync()) {
        return true;
    }
    // A file of unknown size may still hold all of it.
    return size.value_or(m_end) <= oldEnd || m_file.appended() == 0;
}

bool Try::undo()
{
    if (!m_file.isOpen()) {
        return true;
    }
    const Result<bool> isThis = m_file.isAt(m_path);
    // Through a link it is the file itself that was created, and the link stays. If it is unknown
    // what the path means, nothing is removed.
    if (isThis.value_or(false) && m_created && m_file.size() == m_end && m_path.remove()) {
        return true;
    }
    const bool isTruncated = truncate();
    if (isThis.value_or(true)) { // if unknown, assume that it was not replaced
        return isTruncated && !m_created;
    }
    // What has the name now may be a copy that was made during the write.
    return m_file.appended() == 0;
}

bool Try::undoInOldFile()
{
    // Truncated only when the path surely means another file.
    return !m_file.isAt(m_path).value_or(true) && truncate();
}

} // namespace

Result<void> appendToFile(const QString &name, QByteArrayView bytes)
{
    auto outcome = FileOutcome::Unchanged;
    for (int count = 0; count < kMostTries; ++count) {
        const Result<FilePath> path = FilePath::ofOrdinary(name);
        if (!path) {
            return failure(path.error().cause, outcome);
        }
        Try attempt(*path);
        const Result<bool> isThere = attempt.append(bytes);
        if (isThere == true) {
            return {};
        }
        const bool isUndone =
            isThere ? attempt.undoInOldFile()
                    : isThere.error().outcome == FileOutcome::Unchanged && attempt.undo();
        outcome = isUndone ? outcome : FileOutcome::MaybeChanged;
        if (!isThere) {
            return failure(withPath(isThere.error(), *path, FileUse::Write).cause, outcome);
        }
    }
    return failure(u"Another program changes it again and again."_s, outcome);
}

} // namespace tarvold
