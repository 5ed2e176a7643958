#pragma once

#include "records/problems.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

/// Checks data files without a window.
namespace tarvold::records::check {

/// What is wrong at a line of a file.
struct Finding
{
    qsizetype line; ///< from 1: where a missing line belongs, else where the doubtful value stands
    QString text;
};

/// All problems of a file, in the order of its lines.
/// \param file its bytes, kept by the caller until this returns
std::vector<Finding> findingsIn(QByteArrayView file, const Catalog &catalog);

/// The kind of a file's records, or why it can't be told.
struct KindAnswer
{
    std::optional<DataFileKind> kind;
    QString doubt;    ///< a sentence, if there is no kind
    QString misnamed; ///< a sentence, if the file has the usual name of another kind
};
KindAnswer kindOf(QByteArrayView file, const QString &name);

/// How a check ends; the exit status of the program.
enum class Outcome { Clean = 0, Problems = 1, NotChecked = 2 };

/// Where the results go, a line each.
struct Sinks
{
    std::function<bool(const QString &)> result; ///< returns whether the line was written
    std::function<void(const QString &)> error;  ///< about files that could not be checked
};

/// Checks files one after the other. One that cannot be read keeps no other from being checked.
/// \param kind of all files; none: it is guessed for each
/// \return the worst outcome
Outcome run(const QStringList &files, std::optional<DataFileKind> kind, const Sinks &sinks);

} // namespace tarvold::records::check
