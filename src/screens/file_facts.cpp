#include "screens/file_facts.h"

#include "controls/text_box.h"
#include "datafiles/data_file_kind.h"
#include "datafiles/line_reader.h"
#include "disk/file.h"
#include "disk/file_path.h"
#include "disk/read.h"

#include <QDir>
#include <QFileInfo>
#include <QPromise>

#include <array>
#include <chrono>
#include <memory>
#include <thread>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

/// Larger files are not read just for a tooltip.
constexpr qint64 kMostCounted = qint64(16) * 1024 * 1024;

QString tooLarge()
{
    return u"Its records are not counted, as it is larger than 16 MB."_s;
}

/// Reads a file, or a little more than `kMostCounted` bytes of it. Takes no lock: a save must never
/// wait for a tooltip.
Result<QByteArray> readSome(const FilePath &path)
{
    const Result<File> file = File::openOrdinary(path, File::Access::Read);
    if (!file) {
        return failure(file.error());
    }
    constexpr std::size_t kBlock = 65536;
    std::array<char, kBlock> block{};
    QByteArray bytes;
    while (bytes.size() <= kMostCounted) {
        const Result<qint64> count = file->readAt(bytes.size(), block);
        if (!count) {
            return failure(count.error());
        }
        if (*count == 0) {
            break;
        }
        bytes.append(block.data(), *count);
    }
    return bytes;
}

QString countOf(const FilePath &path, int linesPerRecord)
{
    const Result<QByteArray> bytes = readSome(path);
    if (!bytes) {
        return bytes.error().cause;
    }
    if (bytes->size() > kMostCounted) {
        return tooLarge();
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
    return QDir::toNativeSeparators(typed->absolute());
}

QString purpose(const QString &verb, const QString &name)
{
    return name.isEmpty() ? u"The file name is empty."_s : QString(verb + wholePath(name));
}

QString stateOf(const QString &path, DataFileKind kind)
{
    const Result<FilePath> ordinary = FilePath::ofOrdinary(path);
    if (!ordinary) {
        return ordinary.error().cause;
    }
    const QFileInfo file(path);
    if (!file.dir().exists()) {
        return u"The folder does not exist."_s;
    }
    if (!fileExists(path)) {
        return u"The file does not exist yet."_s;
    }
    if (file.size() > kMostCounted) {
        return tooLarge();
    }
    return countOf(*ordinary, rowOf(kind).linesPerRecord());
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
    const QString path = filefacts::wholePath(m_box.text());
    m_box.setNote(path);
    const QString described = m_box.accessibleDescription();
    if (described != path && !described.startsWith(path + u". "_s)) {
        describe(path); // of another file
    }
    look();
}

void FileFacts::follow()
{
    m_box.setNote(filefacts::wholePath(m_box.text()));
    describe({});
    m_pause.start();
}

void FileFacts::look()
{
    auto promise = std::make_shared<QPromise<QString>>();
    m_state.setFuture(promise->future()); // what an earlier look finds is no longer reported
    promise->start();
    // Detached: a file on a network that does not answer must not keep the program from ending.
    std::thread([promise, path = filefacts::wholePath(m_box.text()), kind = m_kind] {
        promise->addResult(filefacts::stateOf(path, kind));
        promise->finish();
    }).detach();
}

void FileFacts::show(const QString &state)
{
    const QString path = filefacts::wholePath(m_box.text());
    QStringList facts = {path, state};
    facts.removeAll(QString());
    m_box.setNote(facts.join(u'\n'));
    describe(facts.join(u". "_s));
}

void FileFacts::describe(const QString &facts)
{
    if (m_box.accessibleDescription() != facts) { // screen readers read out each change
        m_box.setAccessibleDescription(facts);
    }
}

} // namespace tarvold
