#include "docs/document_tables.h"

#include "docs/markdown.h"

#include <gtest/gtest.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

DocumentRow rowIn(const QStringList &cells)
{
    if (cells.size() != 4) {
        ADD_FAILURE() << "not four cells: " << cells.join(u'|').toStdString();
        return {};
    }
    return {cells[0], cells[1], cells[2], cells[3].section(u';', 0, 0).trimmed()};
}

} // namespace

QString valueWord(Coding coding)
{
    switch (coding) {
    case Coding::FinisherType:
        return u"finisher code"_s;
    case Coding::BlankIfEmpty:
        return u"`-BLANK-` if empty"_s;
    case Coding::Number:
        return u"the digits"_s;
    case Coding::QualityWord:
        return u"quality word"_s;
    case Coding::NoOrText:
        return u"`No` or the initials"_s;
    case Coding::AlwaysNo:
        return u"always `No`"_s;
    case Coding::AsShown:
        break;
    }
    return u"as shown"_s;
}

void PrintTo(const DocumentRow &row, std::ostream *out)
{
    const QString cells = QStringList{row.line, row.field, row.source, row.value}.join(u" | ");
    *out << cells.toStdString();
}

std::vector<DocumentSection> documentSections()
{
    const QStringList head = {u"Line"_s, u"Field"_s, u"Screen, control"_s, u"Value"_s};
    std::vector<DocumentSection> sections;
    for (const MarkdownTable &table : markdownTables(QStringLiteral(TARVOLD_FILE_FORMATS))) {
        if (table.head != head) {
            continue;
        }
        const QString file = table.text.section(u"Default file `"_s, 1, 1);
        sections.push_back({table.heading, file.section(u'`', 0, 0), {}});
        for (const QStringList &cells : table.rows) {
            sections.back().rows.push_back(rowIn(cells));
        }
    }
    return sections;
}

} // namespace tarvold::testing
