#pragma once

#include "records/record.h"

#include <QByteArray>

#include <vector>

/// Repaired copies of a record. What an edit does not name stays, byte for byte.
namespace tarvold::records::edits {

/// The bytes that end a line of a record.
QByteArrayView endOf(const Record &record, int line);

/// Another text for one line, which keeps its end; an empty last line gets one.
QByteArray withText(const Record &record, int line, QByteArrayView text);

/// New lines, ended by CR LF, before a line; the number of lines puts them at the end.
QByteArray withInserted(const Record &record, int line, const std::vector<QByteArray> &texts);

QByteArray withoutLines(const Record &record, int first, int last);

/// The text of several lines in one. A blank goes between two that do not have one there.
QByteArray joinedText(const Record &record, int first, int last);

/// Makes one line of several, with the end of the last.
QByteArray withJoined(const Record &record, int first, int last);

/// Ends lines with CR LF.
QByteArray withCrLf(const Record &record, const std::vector<int> &lines);

} // namespace tarvold::records::edits
