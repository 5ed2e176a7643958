#include "datafiles/record.h"

#include <array>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

struct FinisherCode
{
    QLatin1StringView word;
    QLatin1StringView code;
};

constexpr std::array<FinisherCode, 4> kFinisherCodes = {{
    {"Any"_L1, "Any"_L1},
    {"Pin"_L1, "p"_L1},
    {"Submission"_L1, "s"_L1},
    {"Top Rope"_L1, "t"_L1},
}};

/// Deliberate: a word outside the list gives no line, the record is one line short, and no default
/// is made up for it.
std::optional<QString> codedFinisher(const QString &text)
{
    for (const FinisherCode &row : kFinisherCodes) {
        if (text == row.word) {
            return row.code;
        }
    }
    return std::nullopt;
}

std::optional<QString> lineOf(Coding coding, const QString &text)
{
    switch (coding) {
    case Coding::FinisherType:
        return codedFinisher(text);
    case Coding::BlankIfEmpty:
        return text.isEmpty() ? QLatin1StringView(kBlankLine) : text;
    case Coding::AsShown:
        break;
    }
    return text;
}

} // namespace

std::optional<FileError> whyNotWhole(QByteArrayView bytes, qsizetype lines, int linesPerRecord,
                                     const QString &record)
{
    if (lines % linesPerRecord == 0) {
        return std::nullopt;
    }
    if (bytes.contains('\r') && !bytes.contains('\n')) {
        return FileError{u"Its lines end with CR alone, not with CR LF."_s};
    }
    if (bytes.contains('\n') && !bytes.contains(kLineEnd)) {
        return FileError{u"Its lines do not end with CR LF."_s};
    }
    return FileError{u"It breaks off at line %1, inside %2 %3: each %2 takes %4 "
                     "lines (lines found: %1)."_s.arg(QString::number(lines), record,
                                                      QString::number(lines / linesPerRecord + 1),
                                                      QString::number(linesPerRecord))};
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

ComposedRecord composeRecord(const RecordLayout &layout,
                             const std::function<QString(ControlRef)> &textOf)
{
    ComposedRecord record;
    for (const RecordField &field : layout) {
        const std::optional<QString> line = lineOf(field.coding, textOf(field.source));
        if (!line) {
            continue;
        }
        const codepage::Encoded encoded = encodeLine(*line);
        if (encoded.missing) {
            return {{}, MissingCharacter{QLatin1StringView(field.caption), *encoded.missing}};
        }
        record.bytes += encoded.bytes + kLineEnd;
    }
    return record;
}

} // namespace tarvold
