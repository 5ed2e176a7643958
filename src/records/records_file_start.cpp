// How a large file is loaded: its first records before the rest.

#include "disk/read.h"
#include "records/records_file.h"

#include <QPromise>
#include <QThreadPool>

#include <memory>
#include <utility>

namespace tarvold::records {

void RecordsFile::open(const QString &name, std::optional<DataFileKind> kind)
{
    constexpr qsizetype kBeginning = 1 << 20;
    m_name = name;
    m_kind = kind;
    m_watch.follow(name); // before it is read, or a change in between would go unseen
    const Result<QByteArray> bytes = readBeginning(name, kBeginning);
    if (bytes && bytes->size() == kBeginning) {
        const KindGuess guess = guessOf(*bytes);
        const auto end = guess.kind ? endOfRecords(*bytes, Catalog::of(*guess.kind)) : std::nullopt;
        if (end) {
            m_isRestDue = true;
            take(bytes->first(*end), guess, Part::Beginning);
            return;
        }
    }
    show(bytes && bytes->size() < kBeginning ? bytes : readFile(name));
}

void RecordsFile::startReadingRest()
{
    if (!m_isRestDue || m_isReading) {
        return;
    }
    m_isReading = true;
    auto promise = std::make_shared<QPromise<Rest>>();
    m_rest.setFuture(promise->future());
    promise->start();
    QThreadPool::globalInstance()->start([promise, name = m_name, kind = m_document.kind()] {
        Result<QByteArray> bytes = readFile(name);
        std::vector<qsizetype> starts;
        if (bytes) {
            starts = splitIntoRecords(*bytes, Catalog::of(kind)).value(); // nothing stops it
        }
        promise->addResult(Rest{std::move(bytes), std::move(starts)});
        promise->finish();
    });
}

bool RecordsFile::readRest()
{
    const bool isRead = std::exchange(m_isRestDue, false) && m_isReading;
    if (isRead && !isUsed() && !isAsking()) {
        takeRest(m_rest.future().takeResult()); // waits for it
    } else if (!m_isAllRead) {
        follow();
    }
    m_rest.setFuture({}); // keeps no bytes
    return m_isAllRead;
}

void RecordsFile::finishReading()
{
    if (m_isRestDue) { // else somebody has waited for it
        readRest();
    }
}

void RecordsFile::takeRest(const Rest &rest)
{
    m_isLoaded = false; // if it could not be read, its beginning must not pass for the file
    const bool isSameKind = rest.bytes && guessOf(*rest.bytes).kind == m_document.kind();
    if (!isSameKind) {
        show(rest.bytes);
        return;
    }
    m_isAllRead = true; // whoever is told of the records asks for it
    m_isLoaded = true;
    m_document.take(m_name, *rest.bytes, m_document.kind(), rest.starts);
    emit loaded();
}

} // namespace tarvold::records
