// Lines that were saved as UTF-8, where the game reads its code page.

#include "datafiles/code_page.h"
#include "records/checks.h"
#include "records/edits.h"
#include "records/utf8_evidence.h"
#include "records/wording.h"

#include <QStringDecoder>

#include <algorithm>

namespace tarvold::records::checks {

using namespace Qt::StringLiterals;
using namespace wording;

namespace {

bool isAboveAscii(char byte)
{
    return (static_cast<unsigned char>(byte) & 0x80U) != 0;
}

/// The text of a line as UTF-8, without a mark at its beginning (a byte order mark); nothing if it
/// is plain ASCII or no UTF-8, or may as well be of the code page.
std::optional<QString> readAsUtf8(QByteArrayView line)
{
    if (std::none_of(line.begin(), line.end(), isAboveAscii)) {
        return std::nullopt;
    }
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder.decode(line);
    return decoder.hasError() || !isSurelyUtf8(line) ? std::nullopt : std::optional(text);
}

/// What a line says when it is read as UTF-8, as often as it was saved as that.
struct Reading
{
    QString text;
    codepage::Encoded encoded;
};

std::optional<Reading> readingOf(QByteArrayView line)
{
    std::optional<Reading> reading;
    QByteArray bytes = line.toByteArray();
    for (std::optional<QString> text = readAsUtf8(bytes); text; text = readAsUtf8(bytes)) {
        reading = Reading{*text, codepage::encode(*text)};
        // A code page that is UTF-8 itself reads the same text, and writes the same bytes.
        if (reading->encoded.missing || reading->encoded.bytes == bytes) {
            break;
        }
        bytes = reading->encoded.bytes;
    }
    return reading;
}

/// The first place where two texts differ.
qsizetype firstDifference(const QString &one, const QString &other)
{
    return std::mismatch(one.begin(), one.end(), other.begin(), other.end()).first - one.begin();
}

bool isAscii(const QByteArray &bytes)
{
    unsigned char all = 0;
    for (const char byte : bytes) { // without a way out, so that it is done in large steps
        all |= static_cast<unsigned char>(byte);
    }
    return (all & 0x80U) == 0;
}

/// A line, and the field that it holds; -1: none.
struct Place
{
    int line;
    int field;
};

void checkLine(const Examined &examined, const Place &place, Problems &problems)
{
    const QByteArrayView line = examined.line(place.line).text;
    const std::optional<Reading> reading = readingOf(line);
    if (!reading || reading->encoded.bytes == line) {
        return;
    }
    const QString name = place.field < 0 ? atStart(linesOf(place.line, place.line))
                                         : captionOf(examined.known(place.field));
    const QString shown = codepage::decode(line);
    const qsizetype difference = firstDifference(shown, reading->text);
    Problem problem = {
        .type = Problem::Type::Utf8,
        .field = place.field,
        .line = place.line,
        .text = u"%1 was saved as UTF-8: the game reads %2 where %3 was meant."_s.arg(
            name, quotedAround(shown, difference), quotedAround(reading->text, difference))};
    if (const std::optional<char32_t> missing = reading->encoded.missing) {
        problem.text += u" The game has no character %1."_s.arg(QChar::fromUcs4(*missing));
    } else {
        problem.repair = u"Put %1 there"_s.arg(quotedAround(reading->text, difference));
        problem.repaired = edits::withText(examined.record, place.line, reading->encoded.bytes);
    }
    problems.push_back(problem);
}

} // namespace

void checkEncoding(const Examined &examined, Problems &problems)
{
    if (isAscii(examined.record.bytes())) {
        return;
    }
    for (int field = 0; field < examined.record.catalog().fieldCount(); ++field) {
        if (const int line = examined.lineOf(field); line >= 0) {
            checkLine(examined, {line, field}, problems);
        }
    }
    for (const int line : examined.record.layout().surplus) {
        checkLine(examined, {line, -1}, problems);
    }
}

} // namespace tarvold::records::checks
