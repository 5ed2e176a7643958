#pragma once

#include "datafiles/data_file_kind.h"

#include <QByteArrayList>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>

namespace tarvold::testing {

/// Everything below a folder: the bytes of each file, by relative path.
using Content = std::map<QString, QByteArray>;

/// Tracks the expected content of the folder, and checks what each save has changed.
///
/// Each check returns an error message, or an empty text; in that case the new content becomes the
/// expected one.
class Ledger
{
public:
    /// \param folder contains everything that the program may write to
    explicit Ledger(const QString &folder);

    /// Makes the current content the expected one, after a change by the walk itself.
    void accept();

    /// Expects no changes.
    QString checkUnchanged();

    /// Expects one record to have been appended to a file.
    /// \param lines its length
    /// \param commentary its last ten lines, decoded
    QString checkAdded(const QString &name, int lines, const QStringList &commentary);

    /// Expects the records of one file to have been appended to another, except duplicate
    /// stipulations.
    QString checkImported(const QString &source, const QString &target, DataFileKind kind);

    /// Expects that the stipulations were loaded from a file, which was created if missing.
    QString checkLoaded(const QString &name);

    /// Expects the loaded stipulations with one more, or with one replaced.
    /// \param line the first line of the replaced stipulation; empty for a new one
    /// \param lines how many lines the record sets
    /// \param firstTwo its first two lines, decoded
    QString checkStored(const QString &name, std::optional<int> line, int lines,
                        const QStringList &firstTwo);

    /// Expects the loaded stipulations without the one that starts at `line`.
    QString checkDeleted(const QString &name, int line);

    /// Expects that one file, and nothing else, was written anew.
    QString checkReplaced(const QString &name, const QByteArray &bytes);

    /// Expects that something was added to the end of one file at most.
    QString checkGrown();

    /// The number of bytes in the folder.
    qsizetype size() const;

private:
    QString checkOnlyChanged(const QString &key);
    QString keyOf(const QString &name) const;

    QString m_folder;
    Content m_known;
    Content m_found;
    QByteArrayList m_stipulations; ///< line by line
};

} // namespace tarvold::testing
