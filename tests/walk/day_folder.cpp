#include "walk/day.h"
#include "walk/samples.h"
#include "walk/trace.h"

#include <QFile>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kTidyAbove = 300'000; ///< bytes in the folder above which files are removed

void write(const QString &name, const QByteArray &bytes, QIODevice::OpenMode mode)
{
    QFile file(name);
    if (file.open(mode)) {
        file.write(bytes);
    }
}

} // namespace

/// Changes a file as another program might.
bool Day::changeFolder()
{
    const DataFileKindRow &kind = m_dice.pick(kDataFileKinds);
    const QString name = QLatin1StringView(kind.defaultName);
    const int what = m_dice.below(6);
    trace::note(u"from outside: %1 at "_s.arg(what) + name);
    switch (what) {
    case 0:
        QFile::remove(name);
        break;
    case 1:
        write(name, samples::fileContent(m_dice, kind.linesPerRecord()), QIODevice::Append);
        break;
    case 2:
        QFile::setPermissions(name, m_dice.chance(50) ? QFileDevice::ReadOwner
                                                      : QFileDevice::Permissions());
        break;
    default:
        QFile::setPermissions(name, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        write(name, samples::fileContent(m_dice, kind.linesPerRecord()), QIODevice::WriteOnly);
    }
    if (m_ledger->size() > kTidyAbove) {
        for (const DataFileKindRow &row : kDataFileKinds) {
            QFile::remove(QLatin1StringView(row.defaultName));
        }
    }
    m_ledger->accept();
    return true;
}

} // namespace tarvold::testing
