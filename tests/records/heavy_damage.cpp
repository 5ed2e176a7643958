#include "records/heavy_damage.h"

#include "records/line_sort.h"
#include "records/problems.h"

#include <algorithm>
#include <cstdio>

namespace tarvold::records {

unsigned heavySeed()
{
    bool isNumber = false;
    const unsigned given = qEnvironmentVariable("TARVOLD_SEED").toUInt(&isNumber);
    return isNumber ? given : 20261123U;
}

void showHeadings(const char *restored)
{
    if (qEnvironmentVariableIsSet("TARVOLD_SHOW_TABLES")) {
        std::printf("| Damage | Files | Named rightly | All other records whole | %s | A text lost "
                    "by all repairs |\n|---|---|---|---|---|---|\n",
                    restored);
    }
}

void show(const QByteArray &name, const Score &score)
{
    if (qEnvironmentVariableIsSet("TARVOLD_SHOW_TABLES")) {
        std::printf("| %s | %d | %.1f %% | %.1f %% | %.1f %% | %d |\n", name.constData(),
                    score.files, score.percentOf(score.named), score.percentOf(score.kept),
                    score.percentOf(score.restored), score.lost);
    }
}

QByteArray repaired(const QByteArray &file, const Catalog &catalog)
{
    QByteArray bytes;
    const std::vector<Record> found = recordsOf(file, catalog);
    for (const Record &record : found) {
        bytes += repairAll(record, &record == &found.back());
    }
    return bytes;
}

bool isTextLost(const QByteArray &before, const QByteArray &after)
{
    const std::vector<Line> lines = linesOf(before);
    return std::any_of(lines.begin(), lines.end(), [&after](const Line &line) {
        const Sort sort = sortOf(line.text);
        const bool isText = sort == Sort::Name || sort == Sort::Sentence || sort == Sort::Tagged;
        return isText && !after.contains(line.text.toByteArray());
    });
}

bool areOthersWhole(const std::vector<Record> &found, const std::vector<RecordLines> &records,
                    std::size_t but)
{
    if (found.size() != records.size()) {
        return false;
    }
    for (std::size_t index = 0; index < found.size(); ++index) {
        if (index != but &&
            (found[index].bytes() != bytesOf(records[index]) || !found[index].layout().isWhole())) {
            return false;
        }
    }
    return true;
}

} // namespace tarvold::records
