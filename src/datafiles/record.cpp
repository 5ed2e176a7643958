#include "datafiles/record.h"

namespace tarvold {

using namespace Qt::StringLiterals;

std::optional<FileError> whyNotWhole(QByteArrayView bytes, qsizetype lines, int linesPerRecord,
                                     const QString &record)
{
    if (lines % linesPerRecord == 0) {
        return std::nullopt;
    }
    const auto odd = [](const QString &cause) {
        return FileError{.cause = cause, .reason = FileError::Reason::OddLines};
    };
    if (bytes.contains('\r') && !bytes.contains('\n')) {
        return odd(u"Its lines end with CR alone, not with CR LF."_s);
    }
    if (bytes.contains('\n') && !bytes.contains(kLineEnd)) {
        return odd(u"Its lines do not end with CR LF."_s);
    }
    return odd(u"It breaks off at line %1, inside %2 %3: each %2 takes %4 "
               "lines (lines found: %1)."_s.arg(QString::number(lines), record,
                                                QString::number(lines / linesPerRecord + 1),
                                                QString::number(linesPerRecord)));
}

codepage::Encoded encodeLine(const QString &text)
{
    for (const QChar character : text) {
        if (character == u'\r' || character == u'\n') {
            return {{}, character.unicode()};
        }
    }
    return codepage::encode(text);
}

ComposedRecord composeRecord(RecordFormat format,
                             const std::function<QString(const RecordField &)> &textOf)
{
    ComposedRecord record;
    for (const RecordField *field : format) {
        const std::optional<QString> line = lineOf(field->coding, textOf(*field));
        if (!line) {
            continue;
        }
        const codepage::Encoded encoded = encodeLine(*line);
        if (encoded.missing) {
            return {{}, MissingCharacter{QLatin1StringView(field->name), *encoded.missing}};
        }
        record.bytes += encoded.bytes + kLineEnd;
    }
    return record;
}

} // namespace tarvold
