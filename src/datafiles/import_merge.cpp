#include "datafiles/import_merge.h"

#include "datafiles/code_page.h"
#include "datafiles/import_table.h"
#include "datafiles/line_reader.h"
#include "datafiles/record.h"
#include "datafiles/stipulation_table.h"
#include "disk/append.h"
#include "disk/file_path.h"
#include "disk/read.h"

#include <QHash>

#include <utility>
#include <vector>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

using TellDuplicate = std::function<void(const QString &)>;

/// A line end separates the parts of a key, as no line contains one.
QByteArray keyOf(QByteArrayView matchType, QByteArrayView stipulation)
{
    QByteArray key;
    key.reserve(matchType.size() + stipulation.size() + qsizetype(qstrlen(kLineEnd)));
    return key.append(matchType).append(kLineEnd).append(stipulation);
}

/// The stipulations that the target file already holds, found by their key, which is match type and
/// name. Sees what other programs change in the file.
class ImportTarget
{
public:
    /// \param name as the user typed it
    explicit ImportTarget(QString name) : m_name(std::move(name)) {}

    /// Reads the file again unless it is unchanged since the last call.
    Result<void> refresh()
    {
        const Result<FilePath> path = FilePath::ofTyped(m_name);
        const std::optional<FileState> state = path ? path->state() : std::nullopt;
        if (state && state == m_state) {
            return {};
        }
        const bool isTrusted = state && !mayChangeUnseen(*state);
        const Result<QByteArray> bytes = readFile(m_name);
        if (!bytes) {
            return tl::unexpected(bytes.error());
        }
        m_state = isTrusted ? state : std::nullopt;
        index(*bytes);
        return {};
    }

    /// Where stipulations of this key stand, in the order of the file.
    std::vector<int> positions(QByteArrayView matchType, QByteArrayView stipulation) const
    {
        return m_positions.value(keyOf(matchType, stipulation));
    }

    /// Why the file cannot be read to its end, when it ends inside a stipulation.
    const std::optional<FileError> &cutShort() const { return m_cutShort; }

private:
    void index(QByteArrayView bytes)
    {
        m_positions.clear();
        QByteArrayView matchType;
        int lines = 0;
        for (LineReader reader(bytes); !reader.atEnd(); ++lines) {
            const QByteArrayView line = reader.readLine();
            const int offset = lines % StipulationTable::kLinesPerRecord;
            if (offset == 0) {
                matchType = line;
            } else if (offset == 1) {
                m_positions[keyOf(matchType, line)].push_back(lines);
            }
        }
        m_cutShort = whyNotWhole(bytes, lines, StipulationTable::kLinesPerRecord);
    }

    QString m_name;
    std::optional<FileState> m_state;
    QHash<QByteArray, std::vector<int>> m_positions;
    std::optional<FileError> m_cutShort;
};

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
    const std::vector<int> matches = target.positions(matchType, stipulation);
    if (matches.empty()) {
        return;
    }
    // All messages are composed first: while one is shown, the target may change.
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

Result<void> leaveOutDuplicates(ImportTable &table, const QString &targetName,
                                const TellDuplicate &tell)
{
    ImportTarget target(targetName);
    for (int record = 0; record < table.recordCount(); ++record) {
        if (auto read = target.refresh(); !read) {
            return read;
        }
        sweep(table, record, target, targetName, tell);
        if (target.cutShort()) {
            return tl::unexpected(*target.cutShort());
        }
    }
    return {};
}

Result<void> addToTarget(ImportTable table, const ImportRequest &request, const TellDuplicate &tell)
{
    if (request.kind == DataFileKind::Stipulations) {
        if (auto compared = leaveOutDuplicates(table, request.target, tell); !compared) {
            return compared;
        }
    }
    return appendToFile(request.target, table.takeWritten());
}

} // namespace

tl::expected<void, ImportFailure> importRecords(const ImportRequest &request,
                                                const TellDuplicate &tellDuplicate)
{
    const int linesPerRecord = rowOf(request.kind).linesPerRecord();
    Result<ImportTable> source =
        readFile(request.source).and_then([linesPerRecord](QByteArray bytes) {
            return ImportTable::of(std::move(bytes), linesPerRecord);
        });
    if (!source) {
        return tl::unexpected(ImportFailure{request.source, source.error()});
    }
    const Result<void> added = addToTarget(std::move(*source), request, tellDuplicate);
    if (!added) {
        return tl::unexpected(ImportFailure{request.target, added.error()});
    }
    return {};
}

} // namespace tarvold
