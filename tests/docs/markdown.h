#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace tarvold::testing {

/// A table of a Markdown document.
struct MarkdownTable
{
    QString heading; ///< the one that it stands under, of whatever level
    QString text;    ///< what stands between that and the table
    QStringList head;
    std::vector<QStringList> rows; ///< each with as many cells as the head, or the test fails
};

/// The tables of a document, in order. Cells have no blanks around them.
/// \param path of the document; fails the test if it cannot be read
std::vector<MarkdownTable> markdownTables(const QString &path);

} // namespace tarvold::testing
