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

QString showsRecords()
{
    return u"Ctrl+O shows them."_s;
}

filefacts::State tooLarge()
{
    return {u"Its records are not counted, as it is larger than 16 MB."_s, showsRecords()};
}

/// Reads a file, or a little more than `kMostCounted` bytes of it. Takes no lock: a save must never
/// wait for a tooltip.
Result<QByteArray> readSome(const FilePath &path)
{
    const Result<File> file = File::openOrdinary(path, File::Access::Read);
    if (!file) {
        return failure(withPath(file.error(), path, FileUse::Read));
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

filefacts::State countOf(const QByteArray &bytes, int linesPerRecord)
{
    if (bytes.size() > kMostCounted) {
        return tooLarge();
    }
    qsizetype lines = 0;
    for (LineReader reader(bytes); !reader.atEnd(); reader.readLine()) {
        ++lines;
    }
    if (const auto error = whyNotWhole(bytes, lines, linesPerRecord)) {
        return {u"Not a whole number of records. "_s + error->cause,
                u"Ctrl+O shows what to repair."_s};
    }
    return {u"Records: %1"_s.arg(lines / linesPerRecord), lines > 0 ? showsRecords() : QString()};
}

/// What to tell of a file that could not be read.
QString stateWithout(const QString &path, const FileError &error)
{
    const bool isHidden = error.reason == FileError::Reason::Denied; // perhaps it is there
    if (!isHidden && !QFileInfo(path).dir().exists()) {
        return u"The folder does not exist."_s;
    }
    return error.reason == FileError::Reason::Missing ? u"The file does not exist yet."_s
                                                      : error.cause;
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

QString State::text() const
{
    if (keys.isEmpty()) {
        return words;
    }
    return words + (words.endsWith(u'.') ? u" "_s : u". "_s) + keys;
}

State stateOf(const QString &path, DataFileKind kind)
{
    const Result<FilePath> ordinary = FilePath::ofOrdinary(path);
    if (!ordinary) {
        return {ordinary.error().cause, {}};
    }
    if (QFileInfo(path).size() > kMostCounted) {
        return tooLarge();
    }
    const Result<QByteArray> bytes = readSome(*ordinary);
    return bytes ? countOf(*bytes, rowOf(kind).linesPerRecord())
                 : State{stateWithout(path, bytes.error()), {}};
}

} // namespace filefacts

FileFacts::FileFacts(TextBox &box, DataFileKind kind) : QObject(&box), m_box(box), m_kind(kind)
{
    constexpr std::chrono::milliseconds kPause(300);
    m_pause.setSingleShot(true);
    m_pause.setInterval(kPause);
    connect(&m_pause, &QTimer::timeout, this, &FileFacts::look);
    connect(&box, &QLineEdit::textChanged, this, &FileFacts::follow);
    connect(&box, &TextBox::left, this, [this] {
        if (m_tellsKeys && !m_state.keys.isEmpty()) {
            emit keysTold();
        }
    });
    connect(&m_found, &QFutureWatcher<filefacts::State>::finished, this, [this] {
        if (!m_pause.isActive()) { // otherwise it was another file
            show(m_found.result());
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
    m_state = {};
    describe({});
    m_pause.start();
}

void FileFacts::look()
{
    auto promise = std::make_shared<QPromise<filefacts::State>>();
    m_found.setFuture(promise->future()); // what an earlier look finds is no longer reported
    promise->start();
    // Detached: a file on a network that does not answer must not keep the program from ending.
    std::thread([promise, path = filefacts::wholePath(m_box.text()), kind = m_kind] {
        promise->addResult(filefacts::stateOf(path, kind));
        promise->finish();
    }).detach();
}

void FileFacts::show(const filefacts::State &state)
{
    m_state = state;
    const QString path = filefacts::wholePath(m_box.text());
    const auto facts = [&path](const QString &told, const QString &separator) {
        QStringList all = {path, told};
        all.removeAll(QString());
        return all.join(separator);
    };
    m_box.setNote(facts(state.text(), u"\n"_s));
    describe(facts(m_tellsKeys ? state.text() : state.words, u". "_s));
}

void FileFacts::endKeys()
{
    m_tellsKeys = false;
    show(m_state);
}

void FileFacts::describe(const QString &facts)
{
    if (m_box.accessibleDescription() != facts) { // screen readers read out each change
        m_box.setAccessibleDescription(facts);
    }
}

} // namespace tarvold
