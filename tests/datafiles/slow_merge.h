#pragma once

#include "datafiles/data_file_kind.h"

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace tarvold::testing {

/// What an import did or would do.
struct MergeOutcome
{
    bool succeeded = true;
    QStringList messages;
    std::optional<QByteArray> target; ///< its bytes afterwards; none when there is no such file

    bool operator==(const MergeOutcome &) const = default;
};

/// Imports step by step, as plainly and slowly as the rules are worded: one list per line of a
/// record, and the whole target read again for each record of the source. Writes nothing: it only
/// says what would result.
MergeOutcome mergeSlowly(const QString &source, const QString &target, DataFileKind kind);

/// The bytes of a file, or none when it is not there.
std::optional<QByteArray> bytesIfThere(const QString &file);

} // namespace tarvold::testing
