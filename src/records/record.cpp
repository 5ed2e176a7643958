#include "records/record.h"

#include "datafiles/code_page.h"
#include "records/edits.h"

namespace tarvold::records {

Record::Record(QByteArray bytes, const Catalog &catalog)
    : m_bytes(std::move(bytes))
    , m_catalog(&catalog)
    , m_lines(linesOf(m_bytes))
    , m_layout(layoutOf(m_lines, catalog))
{
}

std::optional<QByteArrayView> Record::lineBytes(int field) const
{
    const int line = m_layout.lineOfField.at(std::size_t(field));
    return line < 0 ? std::nullopt : std::optional(m_lines.at(std::size_t(line)).text);
}

std::optional<QString> Record::lineText(int field) const
{
    const auto line = lineBytes(field);
    return line ? std::optional(codepage::decode(*line)) : std::nullopt;
}

QString Record::shownText(int field) const
{
    const auto line = lineBytes(field);
    if (!line) {
        return {};
    }
    const Coding coding = m_catalog->fields().at(std::size_t(field)).field->coding;
    const auto text = textOf(coding, *line);
    return text ? *text : codepage::decode(*line);
}

QString Record::shownText(const RecordField &field) const
{
    const int place = m_catalog->placeOf(field);
    return place < 0 ? QString() : shownText(place);
}

int Record::placeFor(int field) const
{
    if (const int line = m_layout.lineOfField.at(std::size_t(field)); line >= 0) {
        return line;
    }
    while (--field >= 0) {
        if (const int line = m_layout.lineOfField.at(std::size_t(field)); line >= 0) {
            return line + 1;
        }
    }
    return 0;
}

qsizetype Record::startOf(int line) const
{
    return std::size_t(line) < m_lines.size()
               ? m_lines.at(std::size_t(line)).text.data() - m_bytes.constData()
               : m_bytes.size();
}

QByteArray Record::withLine(int field, QByteArrayView line) const
{
    const int place = placeFor(field);
    return lineBytes(field) ? edits::withText(*this, place, line)
                            : edits::withInserted(*this, place, {line.toByteArray()});
}

QByteArray Record::withoutLine(int line) const
{
    QByteArray changed = m_bytes;
    const qsizetype start = startOf(line);
    return changed.remove(start, startOf(line + 1) - start);
}

} // namespace tarvold::records
