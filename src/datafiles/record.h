#pragma once

#include "datafiles/code_page.h"
#include "datafiles/coding.h"
#include "disk/file_error.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>
#include <span>

namespace tarvold {

using namespace Qt::StringLiterals;

/// One line of a record. Known by its address: a field that several kinds of record have is one
/// object, which their formats share.
struct RecordField
{
    const char *name; ///< what the user knows it by: its caption on a screen
    Coding coding;
};

/// The lines of a record, in their order in the file: line 1 is the first.
using RecordFormat = std::span<const RecordField *const>;

/// Ends every line of a data file.
inline constexpr char kLineEnd[] = "\r\n";

/// Says why a file's lines are not a whole number of records; nothing if they are.
/// \param lines how many lines the file has
/// \param record what the user calls a record
std::optional<FileError> whyNotWhole(QByteArrayView bytes, qsizetype lines, int linesPerRecord,
                                     const QString &record = u"record"_s);

/// A character that no data file can hold, and the field it was found in.
struct MissingCharacter
{
    QString field;
    char32_t character;
};

/// Encodes what the user put into one field, which is one line: any CR or LF in it is refused. No
/// text box accepts one, but assistive technology may put it there.
codepage::Encoded encodeLine(const QString &text);

/// The result of composing a record: all its bytes, or the character that stopped it.
struct ComposedRecord
{
    QByteArray bytes;
    std::optional<MissingCharacter> missing;
};

/// Composes a new record for its file, each text encoded by encodeLine() and ended by CR LF.
/// \param textOf gives what the user put into a field
ComposedRecord composeRecord(RecordFormat format,
                             const std::function<QString(const RecordField &)> &textOf);

} // namespace tarvold
