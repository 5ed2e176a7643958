#include "disk/posix/posix_file.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvold {
namespace {

Result<struct stat> stateOf(const File &file)
{
    struct stat state = {};
    return resultOf(::fstat(descriptorOf(file), &state) == 0).map([&state] { return state; });
}

bool isSameFile(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

/// Opens a path without waiting for the other end of a pipe.
Result<File> openAtOnce(const FilePath &path, int flags, bool isNew)
{
    constexpr mode_t kModeOfNew = 0666;
    const QByteArray native = nativePath(path);
    const auto handle =
        TEMP_FAILURE_RETRY(::open(native.constData(), flags | O_NONBLOCK | O_CLOEXEC, kModeOfNew));
    if (handle < 0 && errno == ENXIO) { // a pipe that nobody reads from
        return failure(notOrdinary());
    }
    return File::owning(handle, isNew);
}

int flagsFor(File::Access access)
{
    switch (access) {
    case File::Access::Read:
        return O_RDONLY;
    case File::Access::Append:
        return O_WRONLY | O_APPEND;
    case File::Access::Write:
        return O_RDWR;
    }
    Q_UNREACHABLE();
}

} // namespace

FileError systemError(int code)
{
    using Reason = FileError::Reason;
    switch (code) {
    case ENOENT:
        return errorFor(Reason::Missing);
    case EEXIST:
        return errorFor(Reason::Exists);
    case EACCES:
        return errorFor(Reason::Denied);
    case EROFS:
        return errorFor(Reason::ReadOnlyDisk);
    case ENOSPC:
        return errorFor(Reason::FullDisk);
    case EDQUOT:
        return errorFor(Reason::Quota);
    case EIO:
        return errorFor(Reason::BadDisk);
    case EISDIR:
        return errorFor(Reason::Folder);
    case ENOTDIR:
        return errorFor(Reason::BelowAFile);
    case ENAMETOOLONG:
        return errorFor(Reason::LongName);
    case ELOOP:
        return errorFor(Reason::LinkLoop);
    default:
        return {.cause = qt_error_string(code)};
    }
}

FileError systemError()
{
    return systemError(errno);
}

Result<File> File::open(const FilePath &path, Access access)
{
    Result<File> file = openAtOnce(path, flagsFor(access), false);
    if (!file && file.error().reason == FileError::Reason::Missing && access == Access::Append) {
        file = openAtOnce(path, flagsFor(access) | O_CREAT, true);
    }
    return file;
}

void File::close()
{
    if (isOpen()) {
        ::close(descriptorOf(*this));
    }
    m_handle = kNone;
}

Result<bool> File::lock()
{
    if (::flock(descriptorOf(*this), LOCK_EX | LOCK_NB) == 0) {
        return true;
    }
    if (errno == EWOULDBLOCK || errno == EINTR) {
        return false;
    }
    return failure(systemError());
}

Result<bool> File::isOrdinary() const
{
    return stateOf(*this).map([](const struct stat &state) { return S_ISREG(state.st_mode); });
}

Result<bool> File::isSame(const File &other) const
{
    return stateOf(*this).and_then([&other](const struct stat &one) {
        return stateOf(other).map([&one](const struct stat &two) { return isSameFile(one, two); });
    });
}

Result<bool> File::isAt(const FilePath &path) const
{
    const Result<struct stat> opened = stateOf(*this);
    if (!opened) {
        return failure(opened.error());
    }
    struct stat found = {};
    if (::stat(nativePath(path).constData(), &found) == 0) {
        return isSameFile(*opened, found);
    }
    if (errno == ENOENT || errno == ENOTDIR || errno == ELOOP) {
        return false;
    }
    return failure(systemError());
}

Result<qint64> File::size() const
{
    return stateOf(*this).map([](const struct stat &state) { return qint64(state.st_size); });
}

Result<qint64> File::readAt(qint64 place, std::span<char> bytes) const
{
    const ssize_t count =
        TEMP_FAILURE_RETRY(::pread(descriptorOf(*this), bytes.data(), bytes.size(), place));
    return resultOf(count >= 0).map([count] { return qint64(count); });
}

Result<void> File::reserve([[maybe_unused]] qint64 offset, [[maybe_unused]] qint64 count)
{
#ifdef FALLOC_FL_KEEP_SIZE
    return resultOf(::fallocate(descriptorOf(*this), FALLOC_FL_KEEP_SIZE, offset, count) == 0 ||
                    (errno != ENOSPC && errno != EDQUOT));
#else
    return {};
#endif
}

Result<void> File::append(QByteArrayView bytes)
{
    // After a short write, only the next call returns the error.
    while (!bytes.isEmpty()) {
        const ssize_t count = TEMP_FAILURE_RETRY(
            ::write(descriptorOf(*this), bytes.data(), std::size_t(bytes.size())));
        if (count <= 0) {
            return failure(count < 0 ? systemError() : systemError(EIO));
        }
        m_appended += count;
        bytes = bytes.sliced(count);
    }
    return {};
}

Result<qint64> File::position() const
{
    const off_t place = ::lseek(descriptorOf(*this), 0, SEEK_CUR);
    return resultOf(place >= 0).map([place] { return qint64(place); });
}

Result<void> File::truncate(qint64 size)
{
    return resultOf(TEMP_FAILURE_RETRY(::ftruncate(descriptorOf(*this), size)) == 0);
}

Result<void> File::sync()
{
    return resultOf(::fsync(descriptorOf(*this)) == 0);
}

} // namespace tarvold
