#pragma once

#include "datafiles/code_page.h"
#include "datafiles/coding.h"
#include "disk/file_error.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace tarvold {

using namespace Qt::StringLiterals;

/// The name of a control and of the screen that bears it, such as Form4, Combo3.
struct ControlRef
{
    const char *screen;
    const char *control;
};

/// One line of a record.
struct RecordField
{
    const char *caption; ///< the field's label on its screen
    ControlRef source;   ///< where its text is read when a record is saved
    Coding coding;
};

/// The lines of a record, in their order in the file.
using RecordLayout = std::vector<RecordField>;

/// Ends every line of a data file.
inline constexpr char kLineEnd[] = "\r\n";

/// Tells why a file's lines are not a whole number of records.
/// \param lines how many lines the file has
/// \param record what the user calls a record
std::optional<FileError> whyNotWhole(QByteArrayView bytes, qsizetype lines, int linesPerRecord,
                                     const QString &record = u"record"_s);

/// A character that no data file can hold, and the field that it was found in.
struct MissingCharacter
{
    QString field;
    char32_t character;
};

/// Encodes what the user put into one field, which is one line: a CR or LF in it, even one alone,
/// is refused. No text box lets one in, but assistive technology may put it there.
codepage::Encoded encodeLine(const QString &text);

/// What composing a record gives: all its bytes, or the character that stopped it.
struct ComposedRecord
{
    QByteArray bytes;
    std::optional<MissingCharacter> missing;
};

/// Composes a new record for its file, each text encoded by encodeLine() and ended by CR LF.
/// \param textOf gives the text that a control shows at this moment
ComposedRecord composeRecord(const RecordLayout &layout,
                             const std::function<QString(ControlRef)> &textOf);

/// The ten commentary lines of a commentary screen, which end every record but a stipulation.
RecordLayout commentaryLayout(const char *screen);

/// The 36 lines of a normal match ending.
const RecordLayout &normalEndingLayout();

/// The 44 lines of a match ending with a run-in.
const RecordLayout &runInEndingLayout();

/// The 33 lines of a match ending with a turn.
const RecordLayout &turnEndingLayout();

/// The 19 lines of an interview segment.
const RecordLayout &interviewLayout();

/// The 19 lines of a talk show segment.
const RecordLayout &talkShowLayout();

} // namespace tarvold
