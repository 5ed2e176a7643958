#pragma once

#include "records/document.h"
#include "records/file_watch.h"
#include "records/reading.h"
#include "records/typing.h"

#include <QFutureWatcher>
#include <QObject>
#include <QWidget>

#include <optional>
#include <vector>

namespace tarvold::records {

/// The file of a records window: loads and saves its document, follows what others do to the file,
/// and asks and tells the user what that takes.
class RecordsFile : public QObject
{
    Q_OBJECT
public:
    /// \param asking the window of all questions, which they block
    RecordsFile(Document &document, QWidget &asking, Typing typing);

    /// Loads a file. Of a large one only the beginning is loaded at once, so that its first records
    /// can be looked at; then call startReadingRest().
    /// \param kind of its records; nothing: it is guessed, or asked for
    void open(const QString &name, std::optional<DataFileKind> kind);
    /// Reads what open() left in another thread, and loads it then.
    void startReadingRest();
    /// Loads what open() left, and waits for that.
    /// \return whether the file is loaded; if not, the user was told why
    bool readRest();
    /// Whether the document holds all of the file.
    bool isAllRead() const { return !m_document.isBeginning(); }

    const QString &name() const { return m_name; }
    /// Whether the document holds the file.
    bool isLoaded() const { return m_isLoaded; }
    /// Whether a question waits for the user's answer.
    bool isAsking() const { return m_asking > 0; }

    /// Reads the same file as another kind of records. Asks first if changes would be lost.
    void chooseKind(DataFileKind kind);
    /// Reads the file again. Asks first if changes would be lost.
    void reload();
    /// Returns `true` when all changes are in the file.
    bool save();
    bool saveAs();
    /// Appends records, without those that are deleted, to another file that the user chooses.
    void copy(const std::vector<int> &records);
    /// Before a record is written that is similar to one: asks to save changes, if there are any.
    /// Returns `true` when all changes are in the file.
    bool saveFirst();
    /// Asks what should become of changes that are not saved. Returns `false` if they stay.
    bool mayClose();
    /// Looks whether the file changed on the disk.
    void look() { m_watch.look(); }
    /// Shows the file as it is on the disk now, or tells the user why that cannot be.
    void follow();

signals:
    void loaded();
    /// The file could not be loaded; there is nothing to show but this.
    void failed(const QString &text);
    /// The kind has to be chosen before anything can be shown.
    void kindWanted(const QString &question);
    /// Something was done; to be told in passing.
    void said(const QString &text);
    /// What the user should know of the file from now on; empty: nothing.
    void noticed(const QString &text, bool offersReload);
    /// What there is to say of the kind of the records and the name of the file; empty: nothing.
    void kindDoubted(const QString &text);
    /// The file has another name.
    void renamed();

private:
    class Asking;
    /// A file that was read in another thread.
    struct Rest
    {
        Result<QByteArray> bytes;
        std::vector<qsizetype> starts; ///< of its records
    };

    void load(const QString &name, std::optional<DataFileKind> kind);
    KindGuess guessOf(const QByteArray &bytes) const;
    void show(const Result<QByteArray> &bytes);
    void take(const QByteArray &bytes, const KindGuess &guess);
    void tellOfLoad(const KindGuess &guess);
    void takeRest(const Rest &rest);
    void compareName();
    void tellOfKind(const KindGuess &guess);
    void fail(const FileError &error);
    void readAgain();
    bool hasChanges() const;
    bool asks(const QString &text);
    void tell(const QString &text);
    void finishSave(const Result<void> &saved);
    bool saveElsewhere(const FileError &error);
    bool mayAddTo(const QString &name, const QByteArray &there);
    bool mayCopy(const std::vector<int> &records);
    std::optional<QString> chosenName(const QString &title, bool proposesOwn);

    Document &m_document;
    QWidget &m_window;
    Typing m_typing;
    FileWatch m_watch;
    QString m_name;
    std::optional<DataFileKind> m_kind; ///< that was asked for or chosen
    bool m_isLoaded = false;
    bool m_isReading = false;  ///< in another thread
    bool m_mustFollow = false; ///< the file changed meanwhile
    QFutureWatcher<Rest> m_rest;
    int m_asking = 0;
};

} // namespace tarvold::records
