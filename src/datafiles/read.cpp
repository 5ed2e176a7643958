#include "datafiles/read.h"

#include "datafiles/durable.h"

#include <QFile>
#include <QFileInfo>

namespace tarvold {

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
    FileContent content{file.readAll(), std::nullopt};
    if (file.error() != QFile::NoError) {
        return {{}, FileError{file.errorString()}};
    }
    return content;
}

} // namespace tarvold
