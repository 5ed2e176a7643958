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

    /// Undoes what was written. `true` when the file that the path means has nothing of it.
    bool undo();

    /// Undoes what was written to a file that lost its name to another one. `false` when the file
    /// kept its name, and may have a part of the bytes.
    bool undoInOldFile();

private:
    Result<void> open();
    Result<void> write(QByteArrayView bytes);
    bool cut();

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
    m_end = size.value_or(0); // after this failure nothing is written
    // A file that holds something was made by somebody else, whatever the look-up said.
    m_created = m_file.isNew() && m_end == 0;
    return size.map([](qint64 /*size*/) {});
}

Result<void> Try::write(QByteArrayView bytes)
{
    auto written = m_file.append(bytes).and_then([this] { return m_file.sync(); });
    // The system writes behind the end as it is then, which is elsewhere if a program that asks for
    // no lock changed the file meanwhile. Where it does not tell, nobody is taken to have.
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

/// Gives the file its old length, unless another program wrote behind the bytes or cut them.
/// `true` when it holds nothing that was written here.
bool Try::cut()
{
    const qint64 oldEnd = m_end - m_file.appended();
    const Result<qint64> size = m_file.size();
    if (size == m_end && m_file.resize(oldEnd) && m_file.sync()) {
        return true;
    }
    // A file of unknown size may hold all of it.
    return size.value_or(m_end) <= oldEnd || m_file.appended() == 0;
}

bool Try::undo()
{
    if (!m_file.isOpen()) {
        return true;
    }
    const Result<bool> isThis = m_file.isAt(m_path);
    // Through a link it is the file itself that was created, and the link stays. What the path
    // means must be known for that.
    if (isThis.value_or(false) && m_created && m_file.size() == m_end && m_path.remove()) {
        return true;
    }
    const bool isCut = cut();
    if (isThis.value_or(true)) { // if unknown, nobody is taken to have replaced it
        return isCut && !m_created;
    }
    // What has the name now may be a copy that was made during the write.
    return m_file.appended() == 0;
}

bool Try::undoInOldFile()
{
    // Cut only when the path surely means another file.
    return !m_file.isAt(m_path).value_or(true) && cut();
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
            return failure(isThere.error().cause, outcome);
        }
    }
    return failure(u"Another program changes it again and again."_s, outcome);
}

} // namespace tarvold
