#include "disk/read.h"
#include "records/records_file.h"
#include "records/window_words.h"
#include "screens/file_choice.h"

#include <algorithm>

namespace tarvold::records {

using namespace Qt::StringLiterals;

/// Whether records of this kind may be added to a file, as far as it tells. Tells or asks the user
/// if not.
bool RecordsFile::mayAddTo(const QString &name)
{
    const Result<QByteArray> there = fileExists(name) ? readFile(name) : QByteArray();
    if (!there || there->isEmpty()) {
        return true; // an error comes again when the file is written
    }
    const KindGuess guess = guessKind(*there, name);
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
    return guess.kind || asks(words::uncertainKind(name, kind));
}

void RecordsFile::copy(const std::vector<int> &records)
{
    if (!m_typing.keep()) {
        return;
    }
    std::vector<int> copied = records;
    std::erase_if(copied, [this](int index) { return m_document.entry(index).isDeleted; });
    if (copied.empty()) {
        emit said(u"Deleted records are not copied."_s);
        return;
    }
    const auto chosen = chosenName(u"Copy To Another File"_s);
    if (!chosen) {
        return;
    }
    const QString name = fileExists(*chosen) ? *chosen : filechoice::withExtension(*chosen);
    if (!mayAddTo(name)) {
        return;
    }
    if (const Result<void> added = m_document.copyTo(name, copied); !added) {
        tell(words::notCopied(name, added.error()));
        return;
    }
    emit said(words::copied(name, int(copied.size())));
}

} // namespace tarvold::records
