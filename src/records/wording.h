#pragma once

#include "records/catalog.h"

#include <QByteArrayView>
#include <QString>

/// How problems name things.
namespace tarvold::records::wording {

/// What a user calls a record: "ending", "interview", "talk show" or "stipulation".
QString recordOf(DataFileKind kind);
/// The same at the beginning of a sentence.
QString atStart(const QString &text);
/// A record of a kind among those of others, such as "an ending with a run-in".
QString oneOf(DataFileKind kind);

/// A field, such as "Title On The Line".
QString captionOf(const KnownField &known);

/// A text in quotation marks. A long one is cut, and what cannot be printed is replaced.
QString quoted(const QString &text);
QString quoted(QByteArrayView line);
/// The same, but of a long text the part around a place.
QString quotedAround(const QString &text, qsizetype place);

/// Lines by their numbers from 1, such as "line 3" or "lines 3 to 7".
/// \param first, last from 0
QString linesOf(int first, int last);

} // namespace tarvold::records::wording
