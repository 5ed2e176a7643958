#include "disk/append.h"

#include "disk/durable.h"
#include "disk/read_back.h"

#include <QFile>

#include <utility>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostTries = 10;

/// One try to append to the file that a path means at this moment.
class Try
{
public:
    explicit Try(QString path) : m_path(std::move(path)) {}

    /// Appends the bytes and brings them to the disk.
    std::optional<QString> append(QByteArrayView bytes);

    /// Whether the name means a file with the bytes in it, after they were appended.
    bool isThere() const { return m_isThere; }

    /// Undoes what was written. `true` when the file that the name means has nothing of it.
    bool undo();

    /// Takes the appended bytes out of a file that lost its name to another one. `false` when the
    /// file kept its name, and may have a part of them.
    bool takeOutOfOldFile() { return meansThisFile() == false && cut(); }

private:
    std::optional<bool> meansThisFile() const
    {
        return durable::meansFile(m_path, m_file.handle());
    }
    std::optional<QString> open();
    void noteEnd();
    bool cut();

    QString m_path;
    QFile m_file;
    bool m_created = false;
    bool m_isThere = false;
    qint64 m_written = 0;
    qint64 m_end = 0; ///< behind what was written; only other programs write further
};

std::optional<QString> Try::open()
{
    if (auto failure = durable::openAlone(m_file, m_path, QIODevice::Append, &m_created)) {
        return failure;
    }
    const std::optional<qint64> size = durable::sizeOf(m_file.handle());
    m_end = size.value_or(0);
    // A file that holds something was made by somebody else, whatever the look-up said.
    m_created = m_created && m_end == 0;
    return size ? std::nullopt : std::optional(qt_error_string());
}

std::optional<QString> Try::append(QByteArrayView bytes)
{
    if (auto failure = open()) {
        return failure;
    }
    if (!durable::reserve(m_file.handle(), m_end, bytes.size())) {
        return qt_error_string();
    }
    auto failure = durable::writeAndSync(m_file, bytes, &m_written);
    noteEnd();
    if (failure) {
        return failure;
    }
    // Even a file that was there may have got its name just now, from a program that syncs nothing.
    if (!durable::syncFolderOf(m_path)) {
        return qt_error_string();
    }
    const std::optional<bool> isThere =
        isWritten(m_path, m_file.handle(), m_end - m_written, bytes);
    if (!isThere) {
        return qt_error_string();
    }
    m_isThere = *isThere;
    return std::nullopt;
}

/// The system writes behind the end as it is then, which is elsewhere if a program that asks for no
/// lock changed the file meanwhile.
void Try::noteEnd()
{
    if (m_written > 0) {
        m_end = durable::placeIn(m_file.handle()).value_or(m_end + m_written);
    }
}

/// Gives the file its old length, unless another program wrote behind the bytes or cut them.
/// `true` when it holds nothing that was written here.
bool Try::cut()
{
    const qint64 oldEnd = m_end - m_written;
    const std::optional<qint64> size = durable::sizeOf(m_file.handle());
    if (size == m_end && m_file.resize(oldEnd) && durable::syncFile(m_file.handle())) {
        return true;
    }
    return m_written == 0 || (size && *size <= oldEnd);
}

bool Try::undo()
{
    if (!m_file.isOpen()) {
        return true;
    }
    const std::optional<bool> isThis = meansThisFile();
    // Through a link it is the file itself that was created, and the link stays.
    if (isThis == true && m_created && durable::sizeOf(m_file.handle()) == m_end &&
        durable::removeFile(m_path)) {
        return true;
    }
    const bool isCut = cut();
    // What has the name now may be a copy that was made during the write.
    return isThis == false ? m_written == 0 : isCut && !m_created;
}

} // namespace

Result<void> appendToFile(const QString &name, QByteArrayView bytes)
{
    auto outcome = FileOutcome::Unchanged;
    for (int count = 0; count < kMostTries; ++count) {
        if (const auto ordinary = checkOrdinary(name); !ordinary) {
            return failure(ordinary.error().cause, outcome);
        }
        Try attempt(durable::pathOf(name));
        if (const auto cause = attempt.append(bytes)) {
            return failure(*cause, attempt.undo() ? outcome : FileOutcome::MaybeChanged);
        }
        if (attempt.isThere()) {
            return {};
        }
        if (!attempt.takeOutOfOldFile()) {
            outcome = FileOutcome::MaybeChanged;
        }
    }
    return failure(u"Another program changes it again and again."_s, outcome);
}

} // namespace tarvold
