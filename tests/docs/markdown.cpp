#include "docs/markdown.h"

#include <QFile>

#include <gtest/gtest.h>

namespace tarvold::testing {
namespace {

QStringList linesOf(const QString &path)
{
    QFile document(path);
    EXPECT_TRUE(document.open(QIODevice::ReadOnly)) << document.errorString().toStdString();
    return QString::fromUtf8(document.readAll()).split(u'\n');
}

QStringList cellsOf(const QString &line)
{
    QStringList cells = line.split(u'|').mid(1);
    cells.removeLast(); // what is behind the last bar
    for (QString &cell : cells) {
        cell = cell.trimmed();
    }
    return cells;
}

MarkdownTable under(const QString &heading)
{
    MarkdownTable table;
    table.heading = heading;
    return table;
}

/// Reads a table from its head on; sets `line` to its last line.
void readTable(const QStringList &lines, qsizetype &line, MarkdownTable &table)
{
    table.head = cellsOf(lines[line]);
    ++line; // the ruler under the head
    while (line + 1 < lines.size() && lines[line + 1].startsWith(u'|')) {
        table.rows.push_back(cellsOf(lines[++line]));
        EXPECT_EQ(table.rows.back().size(), table.head.size()) << lines[line].toStdString();
    }
}

} // namespace

std::vector<MarkdownTable> markdownTables(const QString &path)
{
    const QStringList lines = linesOf(path);
    std::vector<MarkdownTable> tables;
    MarkdownTable next;
    for (qsizetype line = 0; line < lines.size(); ++line) {
        if (lines[line].startsWith(u'#')) {
            next = under(lines[line].section(u' ', 1));
        } else if (lines[line].startsWith(u'|')) {
            readTable(lines, line, next);
            tables.push_back(next);
            next = under(next.heading);
        } else {
            next.text += lines[line] + u'\n';
        }
    }
    return tables;
}

} // namespace tarvold::testing
