#include "records/kind_names.h"

#include <QStringList>

#include <algorithm>

namespace tarvold::records::kindnames {

namespace {

struct KindName
{
    const char *name;
    DataFileKind kind;
};

constexpr KindName kKindNames[] = {
    {"normal", DataFileKind::NormalEndings}, {"feuds", DataFileKind::RunInEndings},
    {"turns", DataFileKind::TurnEndings},    {"interview", DataFileKind::Interviews},
    {"talkshow", DataFileKind::TalkShows},   {"stipulations", DataFileKind::Stipulations},
};

} // namespace

std::optional<DataFileKind> kindOf(const QString &name)
{
    for (const KindName &row : kKindNames) {
        if (name == QLatin1StringView(row.name)) {
            return row.kind;
        }
    }
    return std::nullopt;
}

QString nameOf(DataFileKind kind)
{
    const auto *row = std::find_if(std::begin(kKindNames), std::end(kKindNames),
                                   [kind](const KindName &each) { return each.kind == kind; });
    return QLatin1StringView(row->name);
}

QString all(const QString &separator)
{
    QStringList names;
    for (const KindName &row : kKindNames) {
        names << QLatin1StringView(row.name);
    }
    return names.join(separator);
}

} // namespace tarvold::records::kindnames
