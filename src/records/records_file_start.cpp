// How a large file is loaded: its first records before the rest.

#include "controls/busy_cursor.h"
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
    if (!bytes || bytes->size() < kBeginning) {
        show(bytes);
        return;
    }
    const KindGuess guess = guessOf(*bytes);
    const auto end = guess.kind ? endOfRecords(*bytes, Catalog::of(*guess.kind)) : std::nullopt;
    if (!end) {
        show(readFile(name));
        return;
    }
    m_document.takeBeginning(name, bytes->first(*end), *guess.kind);
    tellOfLoad(guess);
}

void RecordsFile::startReadingRest()
{
    if (!m_isLoaded || isAllRead() || std::exchange(m_isReading, true)) {
        return;
    }
    auto promise = std::make_shared<QPromise<Rest>>();
    m_rest.setFuture(promise->future());
    promise->start();
    QThreadPool::globalInstance()->start([promise, name = m_name, kind = m_document.kind()] {
        Result<QByteArray> bytes = readUnlocked(name);
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
    if (m_isLoaded && !isAllRead()) {
        const BusyCursor busy;
        if (m_isReading) {
            takeRest(m_rest.future().takeResult()); // waits for it
        } else {
            load(m_name, m_kind);
        }
    }
    return m_isLoaded;
}

void RecordsFile::takeRest(const Rest &rest)
{
    // An error is told by who reads it again, and waits for others if need be.
    if (!rest.bytes || guessOf(*rest.bytes).kind != m_document.kind()) {
        load(m_name, m_kind);
        return;
    }
    m_rest.setFuture({}); // which keeps the bytes
    m_isReading = false;
    m_document.take(m_name, *rest.bytes, m_document.kind(), rest.starts);
    emit loaded();
    // What was written meanwhile may have been read in part.
    if (std::exchange(m_mustFollow, false)) {
        follow();
    } else {
        m_watch.look();
    }
}

} // namespace tarvold::records
