#include "records/records_repair.h"

#include "records/document.h"
#include "records/problem_scan.h"
#include "records/window_words.h"

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kRepairSlice = 10; // milliseconds until the next event
constexpr int kUntilNextLook = 100; // milliseconds while it must wait

} // namespace

RecordsRepair::RecordsRepair(Document &document, const ProblemScan &scan, Typing typing)
    : m_document(document)
    , m_scan(scan)
    , m_typing(std::move(typing))
{
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &RecordsRepair::work);
    connect(&document, &Document::inserted, this, &RecordsRepair::follow);
    connect(&document, &Document::removed, this, &RecordsRepair::follow);
    connect(&document, &Document::reset, this, [this] {
        if (m_isRunning) { // the ids may be those of other records now
            end(u"The file is shown anew. Nothing was repaired."_s);
        }
    });
}

void RecordsRepair::start(const std::vector<int> &records, const QString &what)
{
    if (m_isRunning || !m_typing.keep()) {
        return;
    }
    m_isRunning = true;
    m_what = what;
    m_indexes = records;
    m_ids.clear();
    for (const int index : records) {
        m_ids.push_back(m_document.entry(index).id);
    }
    m_next = 0;
    m_repaired.clear();
    m_left = 0;
    m_timer.start();
    work();
}

void RecordsRepair::stop()
{
    if (m_isRunning) {
        end(u"Stopped. Nothing was repaired."_s);
    }
}

void RecordsRepair::end(const QString &text)
{
    m_timer.stop();
    m_isRunning = false;
    const int count = int(m_ids.size());
    m_ids = {};
    m_indexes = {};
    m_repaired = {};
    emit progress(count, count);
    emit said(text);
}

void RecordsRepair::work()
{
    const bool mustWait = m_mustWait && m_mustWait();
    m_timer.setInterval(mustWait ? kUntilNextLook : 0);
    if (mustWait) {
        return;
    }
    m_last = m_document.last();
    QElapsedTimer timer;
    timer.start();
    while (m_next < m_ids.size() && timer.elapsed() < kRepairSlice) {
        repair(m_indexes[m_next++]);
    }
    if (m_next < m_ids.size()) {
        emit progress(int(m_next), int(m_ids.size()));
    } else {
        finish();
    }
}

/// \param index -1: the record is gone
void RecordsRepair::repair(int index)
{
    if (index < 0 || m_document.entry(index).isDeleted || m_scan.isSound(index)) {
        return;
    }
    const Entry &entry = m_document.entry(index);
    QByteArray bytes = repairedAt(index);
    if (bytes != entry.bytes) {
        m_repaired.push_back({entry.id, entry.bytes, std::move(bytes)});
    } else if (!m_scan.problemsAt(index).empty()) {
        ++m_left;
    }
}

QByteArray RecordsRepair::repairedAt(int index) const
{
    return repairAll(Record(m_document.entry(index).bytes, m_document.catalog()), index == m_last);
}

/// Finds the records again after some came or went.
void RecordsRepair::follow()
{
    if (!m_isRunning) {
        return;
    }
    const std::vector<int> indexes = m_document.indexesById();
    std::transform(m_ids.begin(), m_ids.end(), m_indexes.begin(),
                   [&indexes](int id) { return indexes[std::size_t(id)]; });
}

void RecordsRepair::finish()
{
    m_timer.stop();
    if (!m_typing.keep()) {
        end(u"A text can't be kept as it is. Nothing was repaired."_s);
        return;
    }
    m_last = m_document.last();
    const std::vector<int> indexes = m_document.indexesById();
    std::vector<std::pair<int, QByteArray>> all;
    all.reserve(m_repaired.size());
    for (Repaired &one : m_repaired) {
        const int index = indexes[std::size_t(one.id)];
        if (index >= 0 && !m_document.entry(index).isDeleted) {
            const bool isSame = m_document.entry(index).bytes == one.before;
            all.emplace_back(index, isSame ? std::move(one.after) : repairedAt(index));
        }
    }
    const int left = m_left;
    const QString what = m_what;
    m_isRunning = false; // what follows is its own change
    if (!all.empty()) {
        m_document.replace(all, what);
    }
    end(words::repaired(int(all.size()), left));
}

} // namespace tarvold::records
