#include "records/records_file.h"

#include "controls/busy_cursor.h"
#include "disk/read.h"
#include "records/window_words.h"
#include "screens/failures.h"
#include "screens/file_choice.h"

#include <utility>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

QString cannotReadAgain(const FileError &error)
{
    return u"The file can't be read again: "_s + error.cause;
}

} // namespace

RecordsFile::RecordsFile(Document &document, QWidget &asking, Typing typing)
    : QObject(&asking)
    , m_document(document)
    , m_window(asking)
    , m_typing(std::move(typing))
{
    connect(&m_watch, &FileWatch::changed, this, &RecordsFile::follow);
    connect(&m_rest, &QFutureWatcher<Rest>::finished, this, [this] {
        if (m_isReading) { // else somebody has waited for it
            readRest();
        }
    });
}

void RecordsFile::load(const QString &name, std::optional<DataFileKind> kind)
{
    m_name = name;
    m_kind = kind;
    m_isLoaded = m_isLoaded && isAllRead(); // a beginning that stays alone is not shown
    m_rest.setFuture({});
    m_isReading = false;
    m_watch.follow(name); // before it is read, or a change in between would go unseen
    const BusyCursor busy;
    show(readFile(name));
}

KindGuess RecordsFile::guessOf(const QByteArray &bytes) const
{
    return m_kind ? KindGuess{m_kind, {*m_kind}} : guessKind(bytes, m_name);
}

void RecordsFile::show(const Result<QByteArray> &bytes)
{
    if (!bytes) {
        fail(bytes.error());
        return;
    }
    const KindGuess guess = guessOf(*bytes);
    if (guess.kind) {
        take(*bytes, guess);
        return;
    }
    m_isLoaded = false;
    emit noticed(u"Choose the kind of this file above."_s, false);
    emit kindWanted(words::tossUp(guess.likely));
}

void RecordsFile::take(const QByteArray &bytes, const KindGuess &guess)
{
    const BusyCursor busy;
    if (const Result<void> taken = m_document.take(m_name, bytes, *guess.kind); !taken) {
        fail(taken.error());
        return;
    }
    tellOfLoad(guess);
}

void RecordsFile::tellOfLoad(const KindGuess &guess)
{
    m_isLoaded = true;
    emit noticed({}, false);
    emit loaded();
    tellOfKind(guess);
}

void RecordsFile::fail(const FileError &error)
{
    if (m_isLoaded) { // what is shown may be the only copy
        emit noticed(cannotReadAgain(error), true);
        emit loaded(); // the box shows the kind that it has
        return;
    }
    const QString text = words::notRead(m_name, error);
    emit noticed(text.section(u'\n', 2, 2), true); // the cause
    emit failed(text);
}

void RecordsFile::reload()
{
    if (!m_isLoaded || !isAllRead()) {
        load(m_name, m_kind);
    } else if (!hasChanges() || asks(words::forgetByReload(m_name))) {
        readAgain();
    }
}

void RecordsFile::readAgain()
{
    m_watch.follow(m_name);
    const Result<void> read = [&] {
        const BusyCursor busy;
        return m_document.reload();
    }();
    if (!read) {
        emit noticed(cannotReadAgain(read.error()), true);
        return;
    }
    emit noticed({}, false);
    compareName();
    emit said(words::readAgain(m_document.count()));
}

void RecordsFile::follow()
{
    if (isAsking()) {
        return;
    }
    if (!m_isLoaded) {
        load(m_name, m_kind);
        return;
    }
    if (!isAllRead()) {
        m_mustFollow = true; // when it is
        return;
    }
    if (!fileExists(m_name)) {
        emit noticed(u"The file is gone from the disk. Its records are still here; Save writes "
                     "them again."_s,
                     false);
        return;
    }
    if (m_document.isFileUnchanged()) {
        emit noticed({}, false);
        return;
    }
    // A file that is written in place is empty before it grows. Its records come with their places.
    const bool mayGrow = m_document.count() > 0 || m_document.undoStack().count() > 0;
    if (const int more = mayGrow ? m_document.takeGrowth() : 0; more > 0) {
        emit noticed({}, false);
        emit said(hasChanges() ? words::grown(more) : words::readAgain(m_document.count()));
    } else if (!hasChanges()) {
        readAgain();
    } else {
        emit noticed(u"The file changed on the disk. Reload shows it as it is now and forgets "
                     "your changes."_s,
                     true);
    }
}

bool RecordsFile::hasChanges() const
{
    return m_isLoaded && (m_document.isChanged() || m_typing.isPending());
}

bool RecordsFile::save()
{
    if (!readRest() || !m_typing.keep()) {
        return false;
    }
    bool isRefused = false;
    const Result<void> saved = m_document.save([&] {
        isRefused = !asks(words::outdated(m_name));
        return !isRefused;
    });
    if (isRefused) {
        emit said(words::notSaved());
        return false;
    }
    if (!Document::isInFile(saved)) {
        return saveElsewhere(saved.error());
    }
    finishSave(saved);
    return true;
}

void RecordsFile::finishSave(const Result<void> &saved)
{
    m_watch.follow(m_name);
    emit noticed({}, false);
    compareName();
    if (!saved) {
        tell(failures::notRewritten(m_name, saved.error(), {})); // the disk did not confirm it
        emit said({});
        return;
    }
    emit said(words::saved(m_name, m_document.count()));
}

bool RecordsFile::saveAs()
{
    const bool isReady = readRest() && m_typing.keep();
    const auto chosen = isReady ? chosenName(u"Save As"_s, true) : std::nullopt;
    if (!chosen) {
        return false;
    }
    const QString &name = *chosen;
    if (filechoice::areSame(name, m_name)) {
        return save();
    }
    if (fileExists(name) && !asks(words::inTheWay(name))) {
        emit said(words::notSaved());
        return false;
    }
    const Result<void> saved = m_document.saveAs(name);
    if (!Document::isInFile(saved)) {
        tell(failures::notRewritten(name, saved.error(), words::kept()));
        emit said(words::notSaved());
        return false;
    }
    m_name = name;
    emit renamed();
    finishSave(saved);
    return true;
}

} // namespace tarvold::records
