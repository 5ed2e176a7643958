#include "datafiles/read.h"

#include "datafiles/durable.h"

#include <QFile>
#include <QFileInfo>

namespace tarvold {
namespace {

/// Reads to the end. A read that runs short is no end: only the next one tells why it did.
FileContent readToEnd(QFile &file)
{
    constexpr qsizetype kLeastRoom = 4096;
    QByteArray bytes(file.size() + kLeastRoom, Qt::Uninitialized);
    durable::preferLargePages(bytes);
    qsizetype length = 0;
    while (true) {
        const qint64 read = file.read(bytes.data() + length, bytes.size() - length);
        if (read < 0) {
            return {{}, FileError{file.errorString()}};
        }
        if (read == 0) {
            bytes.truncate(length);
            return {std::move(bytes), std::nullopt};
        }
        length += read;
        if (length == bytes.size()) {
            bytes.resize(2 * length);
        }
    }
}

} // namespace

bool fileExists(const QString &name)
{
    return QFileInfo::exists(durable::pathOf(name));
}

FileContent readFile(const QString &name)
{
    if (auto unfit = whyNotOrdinary(name)) {
        return {{}, unfit};
    }
    QFile file(durable::pathOf(name));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return {{}, FileError{file.errorString()}};
    }
    return readToEnd(file);
}

} // namespace tarvold
