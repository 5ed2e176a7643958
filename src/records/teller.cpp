#include "records/teller.h"

#include "records/names.h"

#include <algorithm>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

/// Whether a word leaves open what its field is about. "None" does not.
bool isOpen(const QString &text)
{
    return text.isEmpty() || text == "Any"_L1 || text == "N/A"_L1;
}

} // namespace

Teller::Teller(const Record &record)
    : m_record(record)
    , m_isTold(std::size_t(record.catalog().fieldCount()), false)
{
}

void Teller::markTold(const RecordField &field)
{
    if (const int place = m_record.catalog().placeOf(field); place >= 0) {
        m_isTold.at(std::size_t(place)) = true;
    }
}

QString Teller::tell(const RecordField &field, std::span<const Phrase> table)
{
    const QString word = text(field);
    const auto found = std::find_if(table.begin(), table.end(), [&](const Phrase &phrase) {
        return phrase.field == &field && word == QLatin1StringView(phrase.word);
    });
    if (found == table.end()) {
        return {};
    }
    markTold(field);
    return QString::fromLatin1(found->text);
}

QStringList Teller::tellAll(std::span<const Phrase> table)
{
    QStringList told;
    for (const Phrase &phrase : table) {
        if (text(*phrase.field) != QLatin1StringView(phrase.word)) {
            continue;
        }
        markTold(*phrase.field);
        if (*phrase.text != '\0') {
            told << QString::fromLatin1(phrase.text);
        }
    }
    return told;
}

QString Teller::tellName(const RecordField &field)
{
    QString name = text(field);
    if (names::isNoName(name)) {
        return {};
    }
    markTold(field);
    return name;
}

QStringList Teller::tellNames(const RecordField &field)
{
    QStringList all =
        names::mayBeSeveral(field) ? names::in(text(field)) : names::only(text(field));
    const auto isName = [](const QString &name) { return !name.isEmpty(); };
    if (std::none_of(all.begin(), all.end(), isName)) {
        return {};
    }
    markTold(field);
    std::replace(all.begin(), all.end(), QString(), u"anyone"_s);
    return all;
}

QString Teller::tellNumber(const RecordField &field)
{
    QString digits = text(field);
    const bool isNumber =
        !digits.isEmpty() && std::all_of(digits.begin(), digits.end(), [](QChar character) {
            return character >= u'0' && character <= u'9';
        });
    if (!isNumber) {
        return {};
    }
    markTold(field);
    return digits;
}

QStringList Teller::rest() const
{
    QStringList sentences;
    const Catalog &catalog = m_record.catalog();
    for (int field = 0; field < catalog.firstCommentary(); ++field) {
        const QString said = m_record.shownText(field);
        if (!m_isTold.at(std::size_t(field)) && !isOpen(said)) {
            sentences << u"%1: \"%2\"."_s.arg(catalog.fields().at(std::size_t(field)).caption,
                                              said);
        }
    }
    return sentences;
}

} // namespace tarvold::records
