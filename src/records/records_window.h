#pragma once

#include "datafiles/data_file_kind.h"

#include <QByteArray>
#include <QList>
#include <QMainWindow>

#include <memory>
#include <optional>

class QDialog;

namespace tarvold::records {

/// A window that shows all records of one data file, finds, checks and changes them.
///
/// Any number may exist, each with a file of its own. A window is beside all others: it blocks none
/// and takes the focus only when it is opened. It deletes itself when it is closed, and keeps
/// neither settings nor drafts.
class RecordsWindow : public QMainWindow
{
    Q_OBJECT
public:
    /// Shows the window of a file. If the file has one already, that one comes to the front as it
    /// is. A file that cannot be read has a window as well, which says why and can try again.
    /// \param name as the user typed it; a relative one starts at the current folder
    /// \param kind of its records; none: it is guessed from the content, or the user is asked
    /// \return the window, which owns itself
    static RecordsWindow *open(const QString &name, std::optional<DataFileKind> kind = {});

    /// All windows that are open, the oldest first.
    static QList<RecordsWindow *> all();

    /// Brings the windows to the front that wait for an answer, and their dialogs.
    static void showDialogs();

    /// Closes all windows, for the end of the program. Each with changes that are not saved asks
    /// what to do with them. One that waits for an answer already comes to the front instead.
    /// \return `false` if the user keeps one open; the program should not end then
    static bool closeAll();

    /// Use open() instead, unless the file is known to have no window. See there.
    explicit RecordsWindow(const QString &name, std::optional<DataFileKind> kind = {},
                           QWidget *parent = nullptr);
    ~RecordsWindow() override;

    /// The file as the user typed it, or as it was saved last.
    const QString &fileName() const;
    /// Whether the file could be read and its kind is known.
    bool isLoaded() const;
    /// The kind of the records; nothing until it is known.
    std::optional<DataFileKind> kind() const;

    /// Enables "Write A Similar One", see writeSimilarRequested(). Without a call the window does
    /// not show that entry.
    void offerWriteSimilar();

    /// Asks to save the changes, if there are any, before the screens of a record begin. Returns
    /// whether they may: when all changes are in the file.
    bool saveFirst();

signals:
    /// The user wants to write a record like this one. Whoever answers tells the user why not, if
    /// it cannot be done now.
    void writeSimilarRequested(const QByteArray &record, tarvold::DataFileKind kind);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    class Parts;

    void finishStart();

    /// The message or the file dialog that waits for the user; null: none does.
    QDialog *openDialog() const;

    std::unique_ptr<Parts> m_parts;
    bool m_isPainted = false;
};

} // namespace tarvold::records
