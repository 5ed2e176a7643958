#include "datafiles/rewrite.h"

#include "datafiles/durable.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <array>

namespace tarvold {
namespace {

constexpr QStringView kChanged = u"Another program changed it.";

/// Opens the file to be replaced, if it is there, for no copy of this program to write to.
std::optional<FileError> claim(QFile &file, const QString &path)
{
    const auto failure = durable::openAlone(file, path, QIODevice::ReadOnly);
    return failure && QFileInfo::exists(path) ? std::optional(FileError{*failure}) : std::nullopt;
}

/// Why an open file does not hold what the caller knows of it. Compared as bytes: times are too
/// coarse to show every change, and show some that are none.
std::optional<FileError> compare(QFile &file, QByteArrayView known)
{
    constexpr std::size_t kBlock = 65536;
    std::array<char, kBlock> block{};
    while (true) {
        const qint64 read = file.read(block.data(), block.size());
        if (read < 0) {
            return FileError{file.errorString()};
        }
        if (read == 0 && known.isEmpty()) {
            return std::nullopt;
        }
        if (read == 0 || !known.startsWith(QByteArrayView(block.data(), read))) {
            return FileError{.cause = kChanged.toString(), .outdated = true};
        }
        known = known.sliced(read);
    }
}

/// Why the file that a name means is not what the caller knows of it. The claimed one does not
/// tell: a program that asks for no lock may have put another one in its place.
/// \param path what the name meant before
std::optional<FileError> whyNotAsKnown(const QString &name, const QString &path,
                                       QByteArrayView known)
{
    const std::optional<durable::FileState> state = durable::stateOf(path);
    QFile file;
    if (const auto failure = durable::openOrdinary(file, path, QIODevice::ReadOnly)) {
        if (QFileInfo::exists(path)) {
            return FileError{*failure};
        }
    } else if (auto changed = compare(file, known)) {
        return changed;
    }
    file.close(); // now, to keep the time between the last look and the commit short
    // Comparing takes time, in which the file may be replaced.
    if (durable::realPathOf(durable::pathOf(name)) != path || durable::stateOf(path) != state) {
        return FileError{.cause = kChanged.toString(), .outdated = true};
    }
    return std::nullopt;
}

} // namespace

std::optional<FileError> rewriteFile(const QString &name, QByteArrayView bytes,
                                     std::optional<QByteArrayView> known)
{
    if (auto unfit = whyNotOrdinary(name)) {
        return unfit;
    }
    // Followed here, because the toolkit takes a link that it cannot look up for a plain file.
    const std::optional<QString> path = durable::realPathOf(durable::pathOf(name));
    if (!path) {
        return FileError{qt_error_string()};
    }
    QFile old; // keeps its lock until the new file has taken its place
    if (auto unfit = claim(old, *path)) {
        return unfit;
    }
    QSaveFile file(*path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return FileError{file.errorString()};
    }
    if (!durable::takeModeOf(*path, file.handle())) {
        return FileError{qt_error_string()};
    }
    // commit() alone would report success after losing what a full disk did not take.
    if (const auto failure = durable::writeAndSync(file, bytes)) {
        return FileError{*failure};
    }
    // Only now: whatever such a program does from here to the commit is lost, so that this time has
    // to be short.
    if (auto changed = known ? whyNotAsKnown(name, *path, *known) : std::nullopt) {
        return changed;
    }
    if (!file.commit()) {
        return FileError{file.errorString()};
    }
    if (!durable::syncFolderOf(*path)) {
        return FileError{qt_error_string(), false, true};
    }
    return std::nullopt;
}

} // namespace tarvold
