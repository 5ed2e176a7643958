#include "datafiles/read.h"

#include "datafiles/durable.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <sys/mman.h>

namespace tarvold {
namespace {

/// Asks for the memory of a large file in large pages: to be given it in tens of thousands of small
/// ones takes as long as reading the file. Only a wish, so nobody asks whether it was granted.
void preferLargePages(QByteArray &bytes)
{
    constexpr quintptr kPage = 4096;
    constexpr qsizetype kLarge = 8'388'608;
    if (bytes.size() < kLarge) {
        return;
    }
    const auto skipped = qsizetype(-quintptr(bytes.data()) % kPage); // up to the next whole page
    ::madvise(bytes.data() + skipped, std::size_t(bytes.size() - skipped), MADV_HUGEPAGE);
}

/// As many bytes as the file has now, and those that came while they were read.
QByteArray readAll(QFile &file)
{
    QByteArray bytes(file.size(), Qt::Uninitialized);
    preferLargePages(bytes);
    bytes.truncate(std::max(file.read(bytes.data(), bytes.size()), qint64(0)));
    return file.error() == QFile::NoError ? bytes.append(file.readAll()) : bytes;
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
    FileContent content{readAll(file), std::nullopt};
    if (file.error() != QFile::NoError) {
        return {{}, FileError{file.errorString()}};
    }
    return content;
}

} // namespace tarvold
