#include "docs/document_tables.h"

#include "support/print.h"

#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>

namespace tarvold::testing {
namespace {

QStringList documentLines()
{
    QFile document(QStringLiteral(TARVOLD_FILE_FORMATS));
    EXPECT_TRUE(document.open(QIODevice::ReadOnly)) << document.errorString().toStdString();
    return QString::fromUtf8(document.readAll()).split(u'\n');
}

DocumentRow rowIn(const QString &line)
{
    const QStringList cells = line.split(u'|');
    if (cells.size() != 6) {
        ADD_FAILURE() << "not four cells: " << line.toStdString();
        return {};
    }
    return {cells[1].trimmed(), cells[2].trimmed(), cells[3].trimmed(),
            cells[4].section(u';', 0, 0).trimmed()};
}

/// Reads a table, from the line under its ruler on; leaves `line` behind it.
std::vector<DocumentRow> rowsFrom(const QStringList &lines, qsizetype &line)
{
    std::vector<DocumentRow> rows;
    for (; line < lines.size() && lines[line].startsWith(u'|'); ++line) {
        rows.push_back(rowIn(lines[line]));
    }
    return rows;
}

} // namespace

void PrintTo(const DocumentRow &row, std::ostream *out)
{
    const QString cells = QStringList{row.line, row.field, row.source, row.value}.join(u" | ");
    *out << cells.toStdString();
}

std::vector<DocumentSection> documentSections()
{
    const QString head = QStringLiteral("| Line | Field | Screen, control | Value |");
    const QString fileMark = QStringLiteral("Default file `");
    const QStringList lines = documentLines();
    std::vector<DocumentSection> sections;
    QString heading;
    QString defaultFile;
    for (qsizetype line = 0; line < lines.size(); ++line) {
        if (lines[line].startsWith(QStringLiteral("## "))) {
            heading = lines[line].mid(3);
            defaultFile.clear();
        } else if (lines[line].startsWith(fileMark)) {
            defaultFile = lines[line].mid(fileMark.size()).section(u'`', 0, 0);
        } else if (lines[line] == head) {
            line += 2; // the head and the ruler under it
            sections.push_back({heading, defaultFile, rowsFrom(lines, line)});
        }
    }
    return sections;
}

} // namespace tarvold::testing
