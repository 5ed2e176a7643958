#include "disk/rewrite.h"

#include "disk/durable.h"
#include "disk/replacement.h"

#include <QFile>

#include <array>
#include <chrono>
#include <thread>

namespace tarvold {
namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 2s;
constexpr auto kPause = 20ms;
constexpr QStringView kChanged = u"Another program changed it.";

/// Opens the file to be replaced, if it is there, for no copy of this program to write to.
std::optional<FileError> claim(QFile &file, const QString &path)
{
    const auto failure = durable::openAlone(file, path, QIODevice::ReadOnly);
    return failure && durable::exists(path) ? std::optional(FileError{*failure}) : std::nullopt;
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
            return FileError{durable::causeOf(file)};
        }
        if (read == 0 && known.isEmpty()) {
            return std::nullopt;
        }
        if (read == 0 || !known.startsWith(QByteArrayView(block.data(), read))) {
            return FileError{.cause = kChanged.toString(),
                             .outcome = FileOutcome::ChangedByAnother};
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
        if (durable::exists(path)) {
            return FileError{*failure};
        }
    } else if (auto changed = compare(file, known)) {
        return changed;
    }
    file.close(); // now, to keep the time between the last look and the commit short
    // Comparing takes time, in which the file may be replaced.
    if (durable::realPathOf(durable::pathOf(name)) != path || durable::stateOf(path) != state) {
        return FileError{.cause = kChanged.toString(), .outcome = FileOutcome::ChangedByAnother};
    }
    return std::nullopt;
}

/// Lets a new file take the place of the old one, if that is still as known. Programs that keep
/// this from being done, such as virus scanners, are given some time to let the old file go.
std::optional<FileError> replace(const QString &name, const QString &path, QFile &old,
                                 durable::Replacement &file, std::optional<QByteArrayView> known)
{
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    while (true) {
        // Only now: whatever such a program does from here on is lost, so that this time has to be
        // short.
        if (auto changed = known ? whyNotAsKnown(name, path, *known) : std::nullopt) {
            return changed;
        }
        const auto failure = file.takeName(old);
        if (!failure || !failure->mayPass || std::chrono::steady_clock::now() >= deadline) {
            return failure ? std::optional(FileError{failure->cause}) : std::nullopt;
        }
        std::this_thread::sleep_for(kPause);
        if (auto unfit = old.isOpen() ? std::nullopt : claim(old, path)) {
            return unfit;
        }
    }
}

} // namespace

Result<void> rewriteFile(const QString &name, QByteArrayView bytes,
                         std::optional<QByteArrayView> known)
{
    if (auto ordinary = checkOrdinary(name); !ordinary) {
        return ordinary;
    }
    // Followed here, because Qt takes a link that it cannot look up for a plain file.
    const std::optional<QString> path = durable::realPathOf(durable::pathOf(name));
    if (!path) {
        return failure(qt_error_string());
    }
    QFile old; // keeps its lock until the new file has taken its place
    if (auto unfit = claim(old, *path)) {
        return tl::unexpected(*unfit);
    }
    durable::Replacement file(*path);
    if (const auto cause = file.write(bytes)) {
        return failure(*cause);
    }
    if (auto error = replace(name, *path, old, file, known)) {
        return tl::unexpected(*error);
    }
    if (const auto cause = file.syncName()) {
        return failure(*cause, FileOutcome::Unconfirmed);
    }
    return {};
}

} // namespace tarvold
