#pragma once

#include "datafiles/data_file_kind.h"

#include <QByteArrayList>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>

namespace tarvold::testing {

/// Everything in a folder and below: files as their bytes, by their paths from the folder.
using Content = std::map<QString, QByteArray>;

/// What the walk knows of the folder, and so what each save must have made of it.
///
/// All checks give what is wrong, in words, or an empty text; then what was found is what is known.
class Ledger
{
public:
    /// \param folder holds everything that the program may write to
    explicit Ledger(const QString &folder);

    /// Takes what is there now for right: the walk itself has changed it.
    void accept();

    /// Nothing may have changed.
    QString checkUnchanged();

    /// One record must have come to the end of a file.
    /// \param lines how many lines it has
    /// \param commentary its last ten lines, as texts
    QString checkAdded(const QString &name, int lines, const QStringList &commentary);

    /// The records of one file must have come to the end of another, except for those that may be
    /// left out.
    QString checkImported(const QString &source, const QString &target, DataFileKind kind);

    /// The stipulations were read from a file, which was made if it was missing.
    QString checkLoaded(const QString &name);

    /// The file must be the stipulations that were read, with one more, or with another one in
    /// place of the one that starts at a line.
    /// \param lines how many lines the record sets
    QString checkStored(const QString &name, std::optional<int> line, int lines,
                        const QStringList &firstTwo);

    /// The file must be the stipulations that were read, without the one that starts at a line.
    QString checkDeleted(const QString &name, int line);

    /// How many bytes there are in the folder.
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
