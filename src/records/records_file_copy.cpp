#include "disk/read.h"
#include "records/lines.h"
#include "records/record.h"
#include "records/records_file.h"
#include "records/window_words.h"
#include "screens/file_choice.h"

#include <algorithm>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

/// Whether a file ends where a record ends, so that the game reads what is added to it rightly.
bool isWhole(QByteArrayView file, const Catalog &catalog)
{
    qsizetype lines = 0;
    for (AnyLineReader reader(file); !reader.atEnd(); ++lines) {
        (void)reader.readLine();
    }
    return lines % catalog.fieldCount() == 0;
}

} // namespace

/// Whether records of this kind may be added to a file, as far as it tells. Tells or asks the user
/// if not.
bool RecordsFile::mayAddTo(const QString &name, const QByteArray &there)
{
    const KindGuess guess = guessKind(there, name);
    const DataFileKind kind = m_document.kind();
    const std::vector<DataFileKind> &likely = guess.likely;
    if (std::find(likely.begin(), likely.end(), kind) == likely.end()) {
        tell(words::otherKind(name, likely.front(), kind));
        return false;
    }
    if (guess.kind && *guess.kind != kind) {
        tell(words::otherKind(name, *guess.kind, kind)); // as its name says
        return false;
    }
    if (!guess.kind) {
        return asks(words::uncertainKind(name, kind));
    }
    return isWhole(there, m_document.catalog()) || asks(words::outOfStep(name));
}

/// Asks before a record is copied whose lines the game reads wrongly.
bool RecordsFile::mayCopy(const std::vector<int> &records)
{
    const auto damaged = std::find_if(records.begin(), records.end(), [this](int index) {
        const Record record(m_document.entry(index).bytes, m_document.catalog());
        return !record.layout().isWhole();
    });
    return damaged == records.end() || asks(words::notWhole(m_document.kind(), *damaged + 1));
}

void RecordsFile::copy(const std::vector<int> &records)
{
    if (!m_typing.keep()) {
        return;
    }
    if (records.empty()) {
        emit said(u"Select the records to copy."_s);
        return;
    }
    std::vector<int> copied = records;
    std::erase_if(copied, [this](int index) { return m_document.entry(index).isDeleted; });
    if (copied.empty()) {
        emit said(u"Deleted records are not copied."_s);
        return;
    }
    const auto name = mayCopy(copied) ? chosenName(u"Copy To Another File"_s, false) : std::nullopt;
    if (!name) {
        return;
    }
    if (filechoice::areSame(*name, m_name)) {
        tell(words::sameFile(*name));
        return;
    }
    const Result<QByteArray> there = fileExists(*name) ? readFile(*name) : QByteArray();
    // An error comes again when the file is written.
    if (there && !there->isEmpty() && !mayAddTo(*name, *there)) {
        return;
    }
    if (const Result<void> added = m_document.copyTo(*name, copied); !added) {
        tell(words::notCopied(*name, added.error()));
        return;
    }
    emit said(words::copied(*name, int(copied.size())));
}

} // namespace tarvold::records
