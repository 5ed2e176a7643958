#include "disk/durable.h"
#include "disk/file_attributes.h"
#include "disk/replacement.h"

#include <QFile>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvold::durable {
namespace {

constexpr int kMostTries = 100;

/// An open file, closed at the end.
class Handle
{
public:
    explicit Handle(int handle) : m_handle(handle) {}
    ~Handle()
    {
        const KeptError kept;
        if (m_handle >= 0) {
            ::close(m_handle);
        }
    }
    Q_DISABLE_COPY_MOVE(Handle)
    int get() const { return m_handle; }

private:
    int m_handle;
};

/// Opens the old file, for writing as well: a file that may not be written may not be replaced
/// either. A negative handle with the error code set on failure.
int openOld(const QByteArray &path)
{
    constexpr int kFlags = O_RDWR | O_NONBLOCK | O_CLOEXEC;
    return static_cast<int>(TEMP_FAILURE_RETRY(::open(path.constData(), kFlags)));
}

/// A name beside a file that is most likely free: a dot and six digits or small letters behind it.
QByteArray nameBeside(const QByteArray &path)
{
    constexpr int kLength = 6;
    constexpr int kBase = 36;
    constexpr quint32 kNumbers = 2'176'782'336; // so many numbers have that length
    const quint32 number = QRandomGenerator::global()->generate() % kNumbers;
    return path + '.' + QByteArray::number(number, kBase).rightJustified(kLength, '0');
}

/// The folder of a file.
QByteArray folderOf(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    return slash > 0 ? path.first(slash) : QByteArray(slash == 0 ? "/" : ".");
}

/// Makes a file that has no name yet, so that nothing of it is left if the program ends. A negative
/// handle where the system cannot do that, or give it a name later.
int createNameless(const QByteArray &path, mode_t mode)
{
    if (::access("/proc/self/fd", X_OK) != 0) {
        return -1;
    }
    return ::open(folderOf(path).constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, mode);
}

/// Makes a file of a new name beside another one.
/// \param name where to put that name
int createNamed(const QByteArray &path, mode_t mode, QByteArray &name)
{
    int handle = -1;
    for (int count = 0; handle < 0 && count < kMostTries; ++count) {
        name = nameBeside(path);
        handle = ::open(name.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, mode);
        if (errno != EEXIST) {
            break;
        }
    }
    if (handle < 0) {
        name.clear();
    }
    return handle;
}

/// Gives a nameless file a new name beside another one; none with the error code set on failure.
QByteArray nameIt(int handle, const QByteArray &path)
{
    const QByteArray link = "/proc/self/fd/" + QByteArray::number(handle);
    for (int count = 0; count < kMostTries; ++count) {
        QByteArray name = nameBeside(path);
        if (::linkat(AT_FDCWD, link.constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) ==
            0) {
            return name;
        }
        if (errno != EEXIST) {
            break;
        }
    }
    return {};
}

} // namespace

struct Replacement::Parts
{
    QByteArray path;
    QFile file;
    QByteArray name; ///< of the new file, while it has one of its own

    std::optional<QString> create(mode_t mode);
};

/// Makes and opens the new file.
std::optional<QString> Replacement::Parts::create(mode_t mode)
{
    int handle = createNameless(path, mode);
    if (handle < 0) {
        handle = createNamed(path, mode, name);
    }
    if (handle < 0) {
        return qt_error_string();
    }
    if (!file.open(handle, QIODevice::WriteOnly | QIODevice::Unbuffered,
                   QFileDevice::AutoCloseHandle)) {
        ::close(handle);
        return file.errorString();
    }
    return std::nullopt;
}

Replacement::Replacement(const QString &path)
    : m_parts(new Parts{.path = QFile::encodeName(path), .file = {}, .name = {}})
{
}

Replacement::~Replacement()
{
    if (!m_parts->name.isEmpty()) {
        ::unlink(m_parts->name.constData());
    }
}

std::optional<QString> Replacement::write(QByteArrayView bytes)
{
    constexpr mode_t kModeOfNew = 0666;
    constexpr mode_t kModeOfPrivate = 0600;
    const Handle old(openOld(m_parts->path));
    if (old.get() < 0 && errno != ENOENT) {
        return qt_error_string();
    }
    const bool isThere = old.get() >= 0;
    if (auto failure = m_parts->create(isThere ? kModeOfPrivate : kModeOfNew)) {
        return failure;
    }
    if (isThere && !copyAttributes(old.get(), m_parts->file.handle())) {
        return qt_error_string();
    }
    return writeAndSync(m_parts->file, bytes);
}

std::optional<Replacement::Failure> Replacement::takeName(QFile & /*old*/)
{
    if (m_parts->name.isEmpty()) {
        m_parts->name = nameIt(m_parts->file.handle(), m_parts->path);
    }
    if (m_parts->name.isEmpty() ||
        ::rename(m_parts->name.constData(), m_parts->path.constData()) != 0) {
        return Failure{qt_error_string(), false};
    }
    m_parts->name.clear();
    return std::nullopt;
}

std::optional<QString> Replacement::syncName()
{
    const QString path = QFile::decodeName(m_parts->path);
    return syncFolderOf(path) ? std::nullopt : std::optional(qt_error_string());
}

} // namespace tarvold::durable
