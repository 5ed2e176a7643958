#include "screens/file_facts.h"

#include "controls/text_box.h"
#include "datafiles/data_file_kind.h"
#include "datafiles/line_reader.h"
#include "disk/file_path.h"
#include "disk/read.h"

#include <QDir>
#include <QFileInfo>
#include <QPromise>
#include <QThreadPool>

#include <chrono>
#include <memory>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

/// Larger files are not read just for a tooltip.
constexpr qint64 kMostCounted = qint64(16) * 1024 * 1024;

QString countOf(const QString &path, int linesPerRecord)
{
    const auto bytes = readFile(path);
    if (!bytes) {
        return bytes.error().cause;
    }
    qsizetype lines = 0;
    for (LineReader reader(*bytes); !reader.atEnd(); reader.readLine()) {
        ++lines;
    }
    if (const auto error = whyNotWhole(*bytes, lines, linesPerRecord)) {
        return u"Not a whole number of records. "_s + error->cause;
    }
    return u"Records: %1"_s.arg(lines / linesPerRecord);
}

} // namespace

namespace filefacts {

QString wholePath(const QString &name)
{
    const auto typed = FilePath::ofTyped(name);
    if (!typed) {
        return name; // no path, but what is wrong with it will be told
    }
    const QString path = QFileInfo(typed->text()).absoluteFilePath();
    return QDir::toNativeSeparators(QDir::cleanPath(path));
}

QString stateOf(const QString &path, DataFileKind kind)
{
    if (const auto ordinary = FilePath::ofOrdinary(path); !ordinary) {
        return ordinary.error().cause;
    }
    const QFileInfo file(path);
    if (!file.absoluteDir().exists()) {
        return u"The folder does not exist."_s;
    }
    if (!fileExists(path)) {
        return u"The file does not exist yet."_s;
    }
    if (file.size() > kMostCounted) {
        return u"Its records are not counted, as it is larger than 16 MB."_s;
    }
    return countOf(path, rowOf(kind).linesPerRecord());
}

} // namespace filefacts

FileFacts::FileFacts(TextBox &box, DataFileKind kind) : QObject(&box), m_box(box), m_kind(kind)
{
    constexpr std::chrono::milliseconds kPause(300);
    m_pause.setSingleShot(true);
    m_pause.setInterval(kPause);
    connect(&m_pause, &QTimer::timeout, this, &FileFacts::look);
    connect(&box, &QLineEdit::textChanged, this, &FileFacts::follow);
    connect(&m_state, &QFutureWatcher<QString>::finished, this, [this] {
        if (!m_pause.isActive()) { // otherwise it was another file
            show(m_state.result());
        }
    });
    show({});
}

void FileFacts::refresh()
{
    m_pause.stop();
    look();
}

void FileFacts::follow()
{
    show({});
    m_pause.start();
}

void FileFacts::look()
{
    auto promise = std::make_shared<QPromise<QString>>();
    m_state.setFuture(promise->future()); // what an earlier look finds is no longer reported
    promise->start();
    QThreadPool::globalInstance()->start(
        [promise, path = filefacts::wholePath(m_box.text()), kind = m_kind] {
            promise->addResult(filefacts::stateOf(path, kind));
            promise->finish();
        });
}

void FileFacts::show(const QString &state)
{
    const QString path = filefacts::wholePath(m_box.text());
    QStringList facts = {path, state};
    facts.removeAll(QString());
    m_box.setNote(facts.join(u'\n'));
    m_box.setAccessibleDescription(facts.join(u". "_s));
}

} // namespace tarvold
