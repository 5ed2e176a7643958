#include "disk/rewrite.h"

#include "disk/replacement.h"
#include "disk/retry.h"

#include <array>
#include <chrono>
#include <utility>

namespace tarvold {
namespace {

using namespace std::chrono_literals;

constexpr QStringView kChanged = u"Another program changed it.";

/// Sets what became of the file in an error.
auto with(FileOutcome outcome)
{
    return [outcome](FileError error) {
        error.outcome = outcome;
        return error;
    };
}

/// Opens and locks the file to be replaced. No open file when it is not there.
Result<File> claim(const FilePath &path)
{
    Result<File> file = File::openLocked(path, File::Access::Read);
    if (!file && !path.exists()) {
        return File();
    }
    return file;
}

/// Whether an open file holds these bytes and no others. Compares bytes and not times, which are
/// too coarse to show every change, and may differ without one.
Result<bool> holdsOnly(const File &file, QByteArrayView bytes)
{
    Result<bool> isStart = file.holds(0, bytes);
    if (isStart != true) {
        return isStart;
    }
    std::array<char, 1> next{};
    return file.readAt(bytes.size(), next).map([](qint64 count) { return count == 0; });
}

/// The same for the file that a path means. A missing one has nothing to lose.
Result<bool> isKnown(const FilePath &path, QByteArrayView bytes)
{
    const Result<File> file = File::openOrdinary(path, File::Access::Read);
    if (file) {
        return holdsOnly(*file, bytes);
    }
    return path.exists() ? Result<bool>(failure(file.error())) : true;
}

/// Fails when the file that a name means does not hold what the caller knows. It is opened again,
/// because a program that takes no lock may have replaced the file that was claimed.
/// \param path what the name meant before
Result<void> checkKnown(const QString &name, const FilePath &path, QByteArrayView known)
{
    const std::optional<FileState> state = path.state();
    const Result<bool> isSame = isKnown(path, known);
    if (!isSame) {
        return failure(isSame.error());
    }
    // Comparing takes time, in which the file may be replaced.
    const auto realPath = FilePath::ofTyped(name).and_then(&FilePath::real);
    if (!*isSame || realPath != path || path.state() != state) {
        return failure(kChanged.toString(), FileOutcome::ChangedByAnother);
    }
    return {};
}

/// Replaces the old file by the new one, if the old one is still as known. Retries while another
/// program prevents that, such as a virus scanner.
Result<void> replace(const QString &name, const FilePath &path, File &old, Replacement &file,
                     std::optional<QByteArrayView> known)
{
    return retry(20ms, [&, isFirst = true]() mutable -> Result<void> {
        if (!std::exchange(isFirst, false) && !old.isOpen()) {
            Result<File> claimed = claim(path);
            if (!claimed) {
                return failure(claimed.error());
            }
            old = std::move(*claimed);
        }
        // As late as possible: what a program that takes no lock does after this check is lost.
        const auto checked = known ? checkKnown(name, path, *known) : Result<void>();
        return checked ? file.takeName(old) : checked;
    });
}

} // namespace

Result<void> rewriteFile(const QString &name, QByteArrayView bytes,
                         std::optional<QByteArrayView> known)
{
    // Links are followed first, because the rename must replace the file and not a link to it.
    const auto typed = FilePath::ofOrdinary(name);
    const auto path = typed.and_then(&FilePath::real);
    if (!path) {
        return failure(typed ? withPath(path.error(), *typed, FileUse::Write) : path.error());
    }
    Result<File> old = claim(*path); // keeps its lock until the new file has taken its place
    if (!old) {
        return failure(withPath(old.error(), *path, FileUse::Read));
    }
    Replacement file(*path);
    return file.write(bytes)
        .map_error(with(FileOutcome::Unchanged)) // even if the temporary one was
        .and_then([&] { return replace(name, *path, *old, file, known); })
        .and_then([&] { return file.syncName().map_error(with(FileOutcome::Unconfirmed)); })
        .map_error([&](const FileError &error) { return withPath(error, *path, FileUse::Write); });
}

} // namespace tarvold
