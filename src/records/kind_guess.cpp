#include "records/alignment.h"
#include "records/reading.h"

#include <QFileInfo>

namespace tarvold::records {

KindGuess guessKind(QByteArrayView file, const QString &fileName)
{
    // Which records of which kind the beginning of the file suits best comes with the alignment.
    Q_UNUSED(file)
    const QString name = QFileInfo(fileName).fileName();
    for (const DataFileKindRow &row : kDataFileKinds) {
        if (name.compare(QLatin1StringView(row.defaultName), Qt::CaseInsensitive) == 0) {
            return {.kind = row.kind, .likely = {row.kind}};
        }
    }
    KindGuess guess;
    for (const DataFileKindRow &row : kDataFileKinds) {
        guess.likely.push_back(row.kind);
    }
    return guess;
}

std::optional<DataFileKind> looksLike(const std::vector<Line> & /*record*/, DataFileKind /*kind*/)
{
    return std::nullopt;
}

} // namespace tarvold::records
