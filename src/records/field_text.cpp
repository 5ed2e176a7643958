#include "records/field_text.h"

namespace tarvold::records::fieldtext {

using namespace Qt::StringLiterals;

namespace {

bool isBlankIfEmpty(const KnownField &field)
{
    return field.field->coding == Coding::BlankIfEmpty;
}

} // namespace

QString shown(const KnownField &field, const QString &line)
{
    if (isBlankIfEmpty(field) && line == QLatin1StringView(kBlankLine)) {
        return {};
    }
    const qsizetype known = field.words.indexOf(line);
    return field.items.value(known, line);
}

QString lineFor(const KnownField &field, const QString &text)
{
    if (isBlankIfEmpty(field) && text.isEmpty()) {
        return QLatin1StringView(kBlankLine);
    }
    const qsizetype known = field.items.indexOf(text);
    return known < 0 ? text : field.words.at(known);
}

QString emptyMark(const KnownField &field, const QString &line)
{
    if (isBlankIfEmpty(field) && line == QLatin1StringView(kBlankLine)) {
        return QLatin1StringView(kBlankLine);
    }
    return line.isEmpty() ? u"(empty line)"_s : QString();
}

} // namespace tarvold::records::fieldtext
