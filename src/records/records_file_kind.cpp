// The kind of a file's records: as the user chooses it, and against the file's name.

#include "records/records_file.h"
#include "records/window_words.h"

namespace tarvold::records {

void RecordsFile::chooseKind(DataFileKind kind)
{
    if (!m_isLoaded) {
        load(m_name, kind);
        return;
    }
    if (kind == m_document.kind() || (hasChanges() && !asks(words::forgetByKind(m_name, kind)))) {
        emit loaded(); // the box shows the kind that the file has
        return;
    }
    load(m_name, kind);
}

/// Whether the records are what the game takes them for. A kind that the user chose is no guess.
void RecordsFile::compareName()
{
    tellOfKind(guessOf(m_document.file()));
}

void RecordsFile::tellOfKind(const KindGuess &guess)
{
    const bool isOther = guess.named && guess.kind == m_document.kind();
    emit kindDoubted(isOther ? words::misnamed(*guess.named, *guess.kind) : QString());
}

} // namespace tarvold::records
