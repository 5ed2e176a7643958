#pragma once

#include "datafiles/record.h"
#include "records/record.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

/// Records for tests: as the screens start, but for some fields.
namespace tarvold::records::samples {

/// A field by its number, from 1, and its line as it stands in the file.
using Lines = std::vector<std::pair<int, QString>>;

inline QByteArray bytes(DataFileKind kind, const Lines &lines = {})
{
    const Catalog &catalog = Catalog::of(kind);
    QStringList all;
    for (const KnownField &field : catalog.fields()) {
        all << field.newText;
    }
    if (catalog.firstCommentary() < catalog.fieldCount()) {
        all[catalog.firstCommentary()] = u"<att1fullname> wins."_s;
    }
    for (const auto &[number, line] : lines) {
        all[number - 1] = line;
    }
    QByteArray made;
    for (const QString &line : all) {
        made += encodeLine(line).bytes + kLineEnd;
    }
    return made;
}

inline Record record(DataFileKind kind, const Lines &lines = {})
{
    return {bytes(kind, lines), Catalog::of(kind)};
}

/// The number of the first line of commentary.
inline int commentary(DataFileKind kind)
{
    return Catalog::of(kind).firstCommentary() + 1;
}

} // namespace tarvold::records::samples
