// What the user is asked about a file, and told.

#include "controls/message_box.h"
#include "disk/read.h"
#include "records/records_file.h"
#include "records/to_front.h"
#include "records/window_words.h"
#include "screens/failures.h"
#include "screens/file_choice.h"

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

QString title()
{
    return QLatin1StringView(messagebox::kTitle);
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

bool RecordsFile::asks(const QString &text)
{
    const Asking asking(*this);
    return messagebox::question(&m_window, title(), text, messagebox::EnterMeans::No,
                                messagebox::Blocks::Window);
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
