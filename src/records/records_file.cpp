#include "records/records_file.h"

#include "controls/busy_cursor.h"
#include "controls/message_box.h"
#include "disk/read.h"
#include "records/to_front.h"
#include "records/window_words.h"
#include "screens/failures.h"
#include "screens/file_choice.h"

#include <algorithm>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

QString title()
{
    return QLatin1StringView(messagebox::kTitle);
}

QString cannotReadAgain(const FileError &error)
{
    return u"The file can't be read again: "_s + error.cause;
}

} // namespace

/// While it lives, a question waits for the user's answer. What happened to the file meanwhile is
/// looked at afterwards.
class RecordsFile::Asking
{
public:
    explicit Asking(RecordsFile &file) : m_file(file) { ++m_file.m_asking; }
    ~Asking()
    {
        --m_file.m_asking;
        QMetaObject::invokeMethod(&m_file, &RecordsFile::follow, Qt::QueuedConnection);
    }
    Asking(const Asking &) = delete;
    Asking &operator=(const Asking &) = delete;
    Asking(Asking &&) = delete;
    Asking &operator=(Asking &&) = delete;

private:
    RecordsFile &m_file;
};

RecordsFile::RecordsFile(Document &document, QWidget &asking, Typing typing)
    : QObject(&asking)
    , m_document(document)
    , m_window(asking)
    , m_typing(std::move(typing))
{
    connect(&m_watch, &FileWatch::changed, this, &RecordsFile::follow);
}

void RecordsFile::load(const QString &name, std::optional<DataFileKind> kind)
{
    m_name = name;
    m_kind = kind;
    m_watch.follow(name); // before it is read, or a change in between would go unseen
    const Result<QByteArray> bytes = readFile(name);
    if (!bytes) {
        fail(bytes.error());
        return;
    }
    const KindGuess guess = kind ? KindGuess{kind, {*kind}} : guessKind(*bytes, name);
    if (guess.kind) {
        take(*bytes, *guess.kind);
        return;
    }
    m_isLoaded = false;
    emit noticed(u"Choose the kind of this file above."_s, false);
    emit kindWanted(words::tossUp(guess.likely));
}

void RecordsFile::take(const QByteArray &bytes, DataFileKind kind)
{
    const BusyCursor busy;
    if (const Result<void> taken = m_document.take(m_name, bytes, kind); !taken) {
        fail(taken.error());
        return;
    }
    m_isLoaded = true;
    emit noticed({}, false);
    emit loaded();
    compareName();
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
    if (!m_isLoaded) {
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
    // What can be undone or done again is worth as much as changes.
    const bool isUsed = hasChanges() || m_document.undoStack().count() > 0;
    if (const int more = isUsed ? m_document.takeGrowth() : 0; more > 0) {
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

bool RecordsFile::asks(const QString &text)
{
    const Asking asking(*this);
    return messagebox::question(&m_window, title(), text, messagebox::EnterMeans::No,
                                messagebox::Blocks::Window);
}

bool RecordsFile::save()
{
    if (!m_typing.keep()) {
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

void RecordsFile::tell(const QString &text)
{
    const Asking asking(*this);
    messagebox::notice(&m_window, title(), text, messagebox::Blocks::Window);
}

bool RecordsFile::saveElsewhere(const FileError &error)
{
    const QString text = failures::notRewritten(m_name, error, words::kept());
    const bool isWanted = [&] {
        const Asking asking(*this);
        return messagebox::offer(&m_window, title(), text, u"&Save To Another File..."_s,
                                 messagebox::Blocks::Window);
    }();
    emit said(words::notSaved());
    return isWanted && saveAs();
}

std::optional<QString> RecordsFile::chosenName(const QString &title, bool proposesOwn)
{
    const Asking asking(*this);
    const auto path = filechoice::chosenPath(
        {&m_window, title, m_name, QLatin1StringView(rowOf(m_document.kind()).defaultName),
         messagebox::Blocks::Window, proposesOwn});
    if (!path) {
        return std::nullopt;
    }
    // A file that is there may have its extension in capital letters.
    const QString name = filechoice::nameOf(*path);
    return fileExists(name) ? name : filechoice::withExtension(name);
}

bool RecordsFile::saveAs()
{
    const auto chosen = m_typing.keep() ? chosenName(u"Save As"_s, true) : std::nullopt;
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

bool RecordsFile::saveFirst()
{
    if (!hasChanges()) {
        return true;
    }
    const bool isWanted = [&] {
        const Asking asking(*this);
        return messagebox::askSave(&m_window, title(), words::unsavedBeforeSimilar(m_name));
    }();
    return isWanted && save();
}

bool RecordsFile::mayClose()
{
    if (!hasChanges()) {
        return true;
    }
    bringToFront(m_window); // it may be minimised, and the question with it
    const messagebox::Unsaved answer = [&] {
        const Asking asking(*this);
        return messagebox::askUnsaved(&m_window, title(), words::unsaved(m_name));
    }();
    return answer == messagebox::Unsaved::Discard ||
           (answer == messagebox::Unsaved::Save && save());
}

} // namespace tarvold::records
