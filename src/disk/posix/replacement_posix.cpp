#include "disk/posix/posix_file.h"
#include "disk/replacement.h"

#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvold {
namespace {

/// Creates a file that has no name yet, so that nothing of it is left if the program is killed. An
/// error where the system cannot do that, or give it a name later.
Result<File> createNameless(const FilePath &beside, mode_t mode)
{
    if (::access("/proc/self/fd", X_OK) != 0) {
        return failure(systemError());
    }
    constexpr int kFlags = O_TMPFILE | O_WRONLY | O_CLOEXEC;
    return File::owning(::open(folderOf(beside).constData(), kFlags, mode));
}

Result<File> create(const FilePath &path, mode_t mode)
{
    constexpr int kFlags = O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC;
    return File::owning(::open(nativePath(path).constData(), kFlags, mode));
}

/// Gives a nameless file a name.
Result<void> link(const File &file, const FilePath &name)
{
    const QByteArray nameless = "/proc/self/fd/" + QByteArray::number(descriptorOf(file));
    return resultOf(::linkat(AT_FDCWD, nameless.constData(), AT_FDCWD, nativePath(name).constData(),
                             AT_SYMLINK_FOLLOW) == 0);
}

} // namespace

Replacement::~Replacement()
{
    if (m_temporaryName) {
        ::unlink(nativePath(*m_temporaryName).constData());
    }
}

Result<void> Replacement::write(QByteArrayView bytes)
{
    constexpr mode_t kModeOfNew = 0666;
    constexpr mode_t kModeOfPrivate = 0600;
    // Opened for writing because a file that may not be written may not be replaced either.
    const Result<File> old = File::open(m_path, File::Access::Write);
    if (!old && old.error().reason != FileError::Reason::Missing) {
        return failure(old.error());
    }
    const mode_t mode = old ? kModeOfPrivate : kModeOfNew;
    const auto hold = [this](File &&file) { m_file = std::move(file); };
    return createNameless(m_path, mode)
        .map(hold)
        .or_else([&](const FileError & /*unsupported*/) {
            return takeTemporaryName(
                [&](const FilePath &name) { return create(name, mode).map(hold); });
        })
        .and_then([&] { return old ? copyAttributes(*old, m_file) : Result<void>(); })
        .and_then([&] { return m_file.append(bytes); })
        .and_then([&] { return m_file.sync(); });
}

Result<void> Replacement::takeName(File & /*old*/)
{
    const auto nameIt = [this](const FilePath &name) { return link(m_file, name); };
    return (m_temporaryName ? Result<void>() : takeTemporaryName(nameIt))
        .and_then([this] {
            return resultOf(::rename(nativePath(*m_temporaryName).constData(),
                                     nativePath(m_path).constData()) == 0);
        })
        .map([this] { m_temporaryName.reset(); });
}

Result<void> Replacement::syncName()
{
    return m_path.syncFolder();
}

} // namespace tarvold
