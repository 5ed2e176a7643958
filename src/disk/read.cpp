#include "disk/read.h"

#include "disk/durable.h"

#include <QFile>

#include <algorithm>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

tl::unexpected<FileError> tooLarge()
{
    return failure(u"It is larger than 1 GB."_s);
}

/// Reads to the end. A read that runs short is no end: only the next one tells why it did. Some
/// files that the system makes up tell no size and never end.
Result<QByteArray> readToEnd(QFile &file)
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
            return failure(durable::causeOf(file));
        }
        if (read == 0) {
            bytes.truncate(length);
            return bytes;
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

Result<QByteArray> readFile(const QString &name)
{
    if (const auto ordinary = checkOrdinary(name); !ordinary) {
        return tl::unexpected(ordinary.error());
    }
    // Alone, else a record that another copy of this program is just writing could be read in part.
    QFile file;
    if (const auto cause = durable::openAlone(file, durable::pathOf(name), QIODevice::ReadOnly)) {
        return failure(*cause);
    }
    return readToEnd(file);
}

} // namespace tarvold
