#include "datafiles/import_merge.h"

#include "datafiles/code_page.h"
#include "datafiles/import_table.h"
#include "datafiles/import_target.h"
#include "disk/append.h"
#include "disk/read.h"

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

using TellDuplicate = std::function<void(const QString &)>;

QString duplicateMessage(QByteArrayView matchType, QByteArrayView stipulation,
                         const QString &target)
{
    return u"The combination of match type: %1 and stipulation: %2 are already in the "
           "file %3 so will not be imported."_s.arg(codepage::decode(matchType),
                                                    codepage::decode(stipulation), target);
}

/// Compares one source stipulation with all of the target's, in their order. The first match
/// empties its match type, and the later ones are compared with that.
void sweep(ImportTable &table, int record, const ImportTarget &target, const QString &targetName,
           const TellDuplicate &tell)
{
    const QByteArray matchType = table.item(0, record).toByteArray();
    const QByteArray stipulation = table.item(1, record).toByteArray();
    const std::vector<int> &matches = target.positions(matchType, stipulation);
    if (matches.empty()) {
        return;
    }
    // The messages are put together first: telling takes time, in which the target may change.
    QStringList messages = {duplicateMessage(matchType, stipulation, targetName)};
    for (const int position : target.positions({}, stipulation)) {
        if (position > matches.front()) {
            messages << duplicateMessage({}, stipulation, targetName);
        }
    }
    table.skip(record);
    for (const QString &message : messages) {
        tell(message);
    }
}

std::optional<FileError> leaveOutDuplicates(ImportTable &table, const QString &targetName,
                                            const TellDuplicate &tell)
{
    ImportTarget target(targetName);
    for (int record = 0; record < table.recordCount(); ++record) {
        if (auto error = target.refresh()) {
            return error;
        }
        sweep(table, record, target, targetName, tell);
        if (target.cutShort()) {
            return target.cutShort();
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<ImportFailure> importRecords(const ImportRequest &request, const TellDuplicate &tell)
{
    Result<QByteArray> source = readFile(request.source);
    if (!source) {
        return ImportFailure{request.source, source.error()};
    }
    ImportTable table;
    if (auto error = table.load(std::move(*source), rowOf(request.kind).linesPerRecord)) {
        return ImportFailure{request.source, *error};
    }
    if (request.kind == DataFileKind::Stipulations) {
        if (auto error = leaveOutDuplicates(table, request.target, tell)) {
            return ImportFailure{request.target, *error};
        }
    }
    if (const auto appended = appendToFile(request.target, table.takeWritten()); !appended) {
        return ImportFailure{request.target, appended.error()};
    }
    return std::nullopt;
}

} // namespace tarvold
