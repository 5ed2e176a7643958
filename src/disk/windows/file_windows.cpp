#include "disk/windows/windows_file.h"

#include <algorithm>
#include <cstring>

namespace tarvold {
namespace {

constexpr qsizetype kMostAtOnce = 1'073'741'824; // bytes that one call reads or writes

/// Where in a file a call reads or writes.
OVERLAPPED at(qint64 place)
{
    OVERLAPPED where = {};
    where.Offset = DWORD(place);
    where.OffsetHigh = DWORD(place >> 32U);
    return where;
}

Result<qint64> seek(const File &file, qint64 distance, DWORD from)
{
    LARGE_INTEGER by = {};
    LARGE_INTEGER place = {};
    by.QuadPart = distance;
    return resultOf(::SetFilePointerEx(handleOf(file), by, &place, from) != FALSE).map([&place] {
        return qint64(place.QuadPart);
    });
}

/// The same file, opened anew for other uses.
Result<File> reopen(const File &file, DWORD access)
{
    return owning(::ReOpenFile(handleOf(file), access, kShared, 0));
}

/// Writes bytes behind the end of a file, wherever that is by then.
/// \return how many
Result<qint64> writeAtTheEnd(const File &file, QByteArrayView bytes)
{
    OVERLAPPED end = at(-1);
    DWORD count = 0;
    if (::WriteFile(handleOf(file), bytes.data(), DWORD(bytes.size()), &count, &end) == FALSE) {
        return failure(systemError());
    }
    return count > 0 ? Result<qint64>(count) : failure(systemError(ERROR_WRITE_FAULT));
}

/// Whether a part of a file is surely what these bytes begin with.
bool surelyHolds(const File &file, qint64 place, qint64 size, QByteArrayView bytes)
{
    if (size > bytes.size()) {
        return false;
    }
    const auto readable = reopen(file, GENERIC_READ);
    return readable && readable->holds(place, bytes.first(size)).value_or(false);
}

} // namespace

Result<File> File::open(const FilePath &path, Access access)
{
    const DWORD wanted = access == Access::Read ? GENERIC_READ : GENERIC_WRITE;
    Result<File> file = openShared(path, wanted);
    if (!file && file.error().reason == FileError::Reason::Missing && access == Access::Append) {
        file = openShared(path, wanted, OPEN_ALWAYS);
    }
    if (!file) {
        return failure(explained(file.error(), path));
    }
    const auto allowed = access == Access::Read ? Result<void>() : checkWritable(*file);
    return allowed ? std::move(file) : failure(allowed.error());
}

void File::close()
{
    if (isOpen()) {
        ::CloseHandle(handleOf(*this));
    }
    m_handle = kNone;
}

Result<bool> File::lock()
{
    // This lock is mandatory: it keeps all programs from reading the locked bytes. So it is beyond
    // the end of any file.
    constexpr qint64 kBehindAllBytes = 1LL << 40U;
    OVERLAPPED place = at(kBehindAllBytes);
    const auto locked =
        resultOf(::LockFileEx(handleOf(*this), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY,
                              0, 1, 0, &place) != FALSE);
    const bool isFree = locked || locked.error().reason != FileError::Reason::Busy;
    if (!isFree || LockGap::isIn(*this)) {
        return false;
    }
    return locked.map([] { return true; });
}

Result<bool> File::isOrdinary() const
{
    if (::GetFileType(handleOf(*this)) != FILE_TYPE_DISK) {
        return false;
    }
    return informationOf(*this).map([](const BY_HANDLE_FILE_INFORMATION &known) {
        return (known.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    });
}

Result<bool> File::isSame(const File &other) const
{
    return identityOf(*this).and_then([&other](const FileIdentity &one) {
        return identityOf(other).map([&one](const FileIdentity &two) { return one == two; });
    });
}

Result<bool> File::isAt(const FilePath &path) const
{
    FILE_STANDARD_INFO opened = {};
    if (::GetFileInformationByHandleEx(handleOf(*this), FileStandardInfo, &opened, sizeof opened) !=
            FALSE &&
        opened.DeletePending != FALSE) {
        return false; // nobody can use the name until all have closed the file
    }
    const auto found = openShared(path, FILE_READ_ATTRIBUTES);
    if (found) {
        return isSame(*found);
    }
    const bool isGone = found.error().reason == FileError::Reason::Missing;
    return isGone ? Result<bool>(false) : failure(found.error());
}

Result<qint64> File::size() const
{
    LARGE_INTEGER size = {};
    return resultOf(::GetFileSizeEx(handleOf(*this), &size) != FALSE).map([&size] {
        return qint64(size.QuadPart);
    });
}

Result<qint64> File::readAt(qint64 place, std::span<char> bytes) const
{
    OVERLAPPED from = at(place);
    DWORD count = 0;
    const auto wanted = DWORD(std::min(std::size_t(kMostAtOnce), bytes.size()));
    return resultOf(::ReadFile(handleOf(*this), bytes.data(), wanted, &count, &from) != FALSE ||
                    ::GetLastError() == ERROR_HANDLE_EOF)
        .map([&count] { return qint64(count); });
}

Result<void> File::reserve(qint64 /*offset*/, qint64 /*count*/)
{
    // Setting the allocation size would truncate what another program appends in the same moment.
    // The write itself fails on a full disk, maybe half-way.
    return {};
}

Result<void> File::append(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const Result<qint64> end = size();
        const Result<qint64> count =
            end ? writeAtTheEnd(*this, bytes.first(std::min(kMostAtOnce, bytes.size()))) : end;
        if (!count) {
            FileError error = count.error();
            // A write may fail half-way, as on a network share or a full disk.
            const qint64 arrived = end ? size().value_or(*end + 1) - *end : 0; // if unknown, some
            if (arrived > 0) {
                m_appended += arrived;
                // Bytes that another program may have written must not be undone.
                const bool isOurs = surelyHolds(*this, *end, arrived, bytes) &&
                                    seek(*this, 0, FILE_END).has_value();
                error.outcome = isOurs ? FileOutcome::Unchanged : FileOutcome::MaybeChanged;
            }
            return failure(error);
        }
        m_appended += *count;
        bytes = bytes.sliced(*count);
    }
    return {};
}

Result<qint64> File::position() const
{
    return seek(*this, 0, FILE_CURRENT);
}

Result<void> File::truncate(qint64 size)
{
    return seek(*this, size, FILE_BEGIN).and_then([this](qint64 /*place*/) {
        return resultOf(::SetEndOfFile(handleOf(*this)) != FALSE);
    });
}

Result<void> File::sync()
{
    auto synced = resultOf(::FlushFileBuffers(handleOf(*this)) != FALSE);
    if (synced || synced.error().reason != FileError::Reason::Denied) {
        return synced;
    }
    // The file was opened for reading, and syncing it needs write access.
    return reopen(*this, GENERIC_WRITE).and_then([](const File &writable) {
        return resultOf(::FlushFileBuffers(handleOf(writable)) != FALSE);
    });
}

} // namespace tarvold
