#include "records/problem_scan.h"

#include "records/document.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

namespace tarvold::records {
namespace {

constexpr qint64 kCheckSlice = 10; // milliseconds until the next event
constexpr qint64 kAtOnce = 20;     // milliseconds for records that were changed together

} // namespace

ProblemScan::ProblemScan(const Document &document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
    m_timer.setInterval(0);
    m_soon.setInterval(0);
    m_soon.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ProblemScan::work);
    connect(&m_soon, &QTimer::timeout, this, [this] {
        m_busy.invalidate();
        tell();
    });
    connect(&document, &Document::reset, this, &ProblemScan::restart);
    connect(&document, &Document::changed, this, &ProblemScan::recheck);
    connect(&document, &Document::inserted, this, &ProblemScan::insert);
    connect(&document, &Document::aboutToRemove, this, &ProblemScan::forget);
    connect(&document, &Document::removed, this, &ProblemScan::remove);
    restart();
}

void ProblemScan::restart()
{
    // Marks for the first records alone would come, go and come again.
    m_isWanted = !m_document.isBeginning();
    m_timer.stop();
    m_own.clear();
    m_compared.clear();
    m_checked = 0;
    m_total = 0;
    m_last = m_document.last();
    compareAnew();
}

void ProblemScan::start()
{
    m_isWanted = true;
    m_timer.start();
}

void ProblemScan::stop()
{
    m_isWanted = false;
    m_timer.stop();
}

bool ProblemScan::isFinished() const
{
    return m_next >= m_document.count() && !isRunning();
}

/// Compares all records again, as any of them may have been the first of several equal ones.
void ProblemScan::compareAnew()
{
    m_next = 0;
    m_comparison.emplace(m_document.catalog());
    if (m_isWanted) {
        m_timer.start();
    } else {
        forgetCompared(); // which records are equal, and their numbers, may be others now
    }
}

int ProblemScan::countAt(int index) const
{
    return countOf(m_document.entry(index).id);
}

bool ProblemScan::isSound(int index) const
{
    const int id = m_document.entry(index).id;
    return ownOf(id) == 0 && countOf(id) == 0;
}

int ProblemScan::countOf(int id) const
{
    const int own = std::max(ownOf(id), 0);
    const auto found = m_compared.constFind(id);
    return found == m_compared.cend() ? own : own + int(found->size());
}

int ProblemScan::ownOf(int id) const
{
    return std::size_t(id) < m_own.size() ? m_own[std::size_t(id)] : -1;
}

std::vector<Problem> ProblemScan::problemsAt(int index) const
{
    const Entry &entry = m_document.entry(index);
    if (entry.isDeleted) {
        return {};
    }
    const Record record(entry.bytes, m_document.catalog());
    std::vector<Problem> all = problemsOf(record, index + 1, index == m_document.last());
    const std::vector<Problem> compared = m_compared.value(entry.id);
    all.insert(all.end(), compared.begin(), compared.end());
    std::stable_sort(all.begin(), all.end(), [](const Problem &one, const Problem &other) {
        return one.line < other.line;
    });
    return all;
}

void ProblemScan::work()
{
    m_busy.start();
    while (m_next < m_document.count() && m_busy.elapsed() < kCheckSlice) {
        step(m_next++);
    }
    m_busy.invalidate();
    const bool isLast = m_next >= m_document.count();
    if (isLast) {
        m_timer.stop();
    }
    tell();
    emit progress(m_checked, m_document.count());
    if (isLast) {
        emit finished();
    }
}

void ProblemScan::step(int index)
{
    const Entry &entry = m_document.entry(index);
    if (entry.isDeleted) {
        setOwn(index, 0);
        setCompared(index, {});
        return;
    }
    const Record record(entry.bytes, m_document.catalog());
    if (ownOf(entry.id) < 0) {
        check(index, record);
    }
    setCompared(index, m_comparison->add(record, index + 1));
}

void ProblemScan::check(int index, const Record &record)
{
    setOwn(index, int(problemsOf(record, index + 1, index == m_last).size()));
}

void ProblemScan::recheck(const std::vector<int> &indexes)
{
    checkAtOnce(indexes);
    compareAnew();
    tell();
}

void ProblemScan::checkAtOnce(const std::vector<int> &indexes)
{
    if (!m_busy.isValid()) {
        m_busy.start();
        m_soon.start(); // ends it
    }
    for (const int index : indexes) {
        const Entry &entry = m_document.entry(index);
        setCompared(index, {});
        if (entry.isDeleted) {
            setOwn(index, 0);
        } else if (m_busy.elapsed() < kAtOnce) {
            check(index, Record(entry.bytes, m_document.catalog()));
        } else {
            setOwn(index, -1);
        }
    }
    checkLast();
}

void ProblemScan::checkLast()
{
    const int last = m_document.last();
    if (last == m_last) {
        return;
    }
    for (const int index : {std::exchange(m_last, last), last}) {
        if (index >= 0 && index < m_document.count() && !m_document.entry(index).isDeleted) {
            check(index, Record(m_document.entry(index).bytes, m_document.catalog()));
        }
    }
}

void ProblemScan::insert(int first, int last)
{
    const int count = last - first + 1;
    m_last += m_last >= first ? count : 0;
    m_lastFound += m_firstFound >= 0 ? count : 0;
    std::vector<int> inserted(static_cast<std::size_t>(count));
    std::iota(inserted.begin(), inserted.end(), first);
    checkAtOnce(inserted);
    compareAnew();
    m_soon.start(); // others may not have heard yet that records came or went
}

void ProblemScan::forget(int first, int last)
{
    for (int index = first; index <= last; ++index) {
        setCompared(index, {});
        setOwn(index, -1);
    }
}

void ProblemScan::remove(int first, int last)
{
    const int count = last - first + 1;
    m_last = m_last > last ? m_last - count : m_last >= first ? -1 : m_last;
    checkLast();
    compareAnew();
    m_soon.start(); // others may not have heard yet that records came or went
}

void ProblemScan::setOwn(int index, int count)
{
    constexpr int kMost = std::numeric_limits<qint16>::max();
    const int id = m_document.entry(index).id;
    const int own = ownOf(id);
    if (count == own) {
        return;
    }
    if (m_own.size() <= std::size_t(id)) {
        m_own.resize(std::size_t(std::max(id + 1, m_document.count())), -1);
    }
    m_total -= countOf(id) > 0 ? 1 : 0;
    m_checked += (count >= 0 ? 1 : 0) - (own >= 0 ? 1 : 0);
    m_own[std::size_t(id)] = qint16(std::min(count, kMost));
    m_total += countOf(id) > 0 ? 1 : 0;
    note(index);
}

void ProblemScan::setCompared(int index, const std::vector<Problem> &problems)
{
    const int id = m_document.entry(index).id;
    if (problems.empty() && !m_compared.contains(id)) {
        return;
    }
    m_total -= countOf(id) > 0 ? 1 : 0;
    if (problems.empty()) {
        m_compared.remove(id);
    } else {
        m_compared.insert(id, problems);
    }
    m_total += countOf(id) > 0 ? 1 : 0;
    note(index);
}

void ProblemScan::forgetCompared()
{
    if (m_compared.isEmpty()) {
        return;
    }
    for (auto one = m_compared.keyBegin(); one != m_compared.keyEnd(); ++one) {
        m_total -= ownOf(*one) > 0 ? 0 : 1;
    }
    m_compared.clear();
    note(0);
    note(m_document.count() - 1);
}

void ProblemScan::note(int index)
{
    m_lastFound = m_firstFound < 0 ? index : std::max(m_lastFound, index);
    m_firstFound = m_firstFound < 0 ? index : std::min(m_firstFound, index);
}

void ProblemScan::tell()
{
    const int first = std::exchange(m_firstFound, -1);
    const int last = std::min(m_lastFound, m_document.count() - 1);
    if (first >= 0 && first <= last) {
        emit found(first, last);
    }
}

} // namespace tarvold::records
