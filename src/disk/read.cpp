#include "disk/read.h"

#include "disk/durable.h"

#include <QFile>

#include <algorithm>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

FileContent tooLarge()
{
    return {{}, FileError{u"It is larger than 1 GB."_s}};
}

/// Reads to the end. A read that runs short is no end: only the next one tells why it did. Some
/// files that the system makes up tell no size and never end.
FileContent readToEnd(QFile &file)
{
    constexpr qsizetype kLeastRoom = 4096;
    constexpr qsizetype kMostRoom = 1'073'741'824 + kLeastRoom;
    if (file.size() > kMostRoom - kLeastRoom) {
        return tooLarge();
    }
    QByteArray bytes(file.size() + kLeastRoom, Qt::Uninitialized);
    qsizetype length = 0;
    while (true) {
        const qint64 read = file.read(bytes.data() + length, bytes.size() - length);
        if (read < 0) {
            return {{}, FileError{durable::causeOf(file)}};
        }
        if (read == 0) {
            bytes.truncate(length);
            return {std::move(bytes), std::nullopt};
        }
        length += read;
        if (length == kMostRoom) {
            return tooLarge();
        }
        if (length == bytes.size()) {
            bytes.resize(std::min(2 * length, kMostRoom));
        }
    }
}

} // namespace

bool fileExists(const QString &name)
{
    return durable::canBeName(name) && durable::exists(durable::pathOf(name));
}

FileContent readFile(const QString &name)
{
    if (auto unfit = whyNotOrdinary(name)) {
        return {{}, unfit};
    }
    // Alone, else a record that another copy of this program is just writing could be read in part.
    QFile file;
    if (const auto failure = durable::openAlone(file, durable::pathOf(name), QIODevice::ReadOnly)) {
        return {{}, FileError{*failure}};
    }
    return readToEnd(file);
}

} // namespace tarvold
