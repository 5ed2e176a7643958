#include "records/splitter.h"

#include <algorithm>

namespace tarvold::records {
namespace {

/// How many records before a doubtful one are aligned with it, and how many must be likely behind
/// it for the file to be in step again.
constexpr int kRecordsBefore = 2;
constexpr int kRecordsBehind = 2;

/// How many records' lines of those aligned at most are left to be aligned with what follows.
constexpr int kRecordsOpen = 8;

/// Lines that on average cost more than this are no records of this kind.
constexpr int kHopeless = 6 * LineCosts::kBit;

/// How many bytes are read between two calls of `progress`.
constexpr qsizetype kAskAfter = 1 << 19;

/// How many lines may be forgotten at once.
constexpr qsizetype kForgetAfter = 8192;

} // namespace

Splitter::Splitter(QByteArrayView file, const Catalog &catalog, const Progress &progress)
    : m_file(file)
    , m_reader(file)
    , m_rules(Rules::of(catalog))
    , m_costs(LineCosts::of(catalog.kind()))
    , m_progress(progress)
    , m_length(catalog.fieldCount())
    , m_alignment(m_costs, Alignment::Records::Many)
{
}

std::optional<qsizetype> Splitter::middle(QByteArrayView file, const Catalog &catalog)
{
    const qsizetype end = file.indexOf('\n', file.size() / 2);
    if (end < 0) {
        return std::nullopt;
    }
    const Progress none;
    Splitter behind(file.sliced(end + 1), catalog, none);
    for (qsizetype line = 0; line < qsizetype(2) * behind.m_length; ++line) {
        bool isInStep = true;
        for (int record = 0; isInStep && record <= kRecordsBefore; ++record) {
            isInStep = behind.isLikely(line + (qsizetype(record) * behind.m_length));
        }
        if (isInStep) {
            return end + 1 + behind.startOf(line);
        }
    }
    return std::nullopt;
}

std::optional<std::vector<qsizetype>> Splitter::split(qsizetype until)
{
    while (has(m_line) && mayGoOn()) {
        if (startOf(m_line) == until) {
            m_isAt = true;
            break;
        }
        if (isLikely(m_line)) {
            begin(m_line);
            m_line += m_length;
            ++m_inStep;
        } else if (!takeLegal() && !takeForeign()) {
            readDamaged();
        }
        forgetBefore(m_line - (qsizetype(kRecordsBefore) * m_length) - 1);
    }
    return m_isStopped ? std::nullopt : std::optional(std::move(m_starts));
}

/// Whether the file has a line. Reads up to it.
bool Splitter::has(qsizetype line)
{
    while (line >= m_first + qsizetype(m_samples.size())) {
        if (m_reader.atEnd()) {
            return false;
        }
        const QByteArrayView text = m_reader.readLine().text;
        m_samples.push_back({text, sortOf(text)});
    }
    return true;
}

qsizetype Splitter::startOf(qsizetype line)
{
    return has(line) ? at(line).text.data() - m_file.data() : m_file.size();
}

void Splitter::forgetBefore(qsizetype line)
{
    if (line - m_first > kForgetAfter) {
        m_samples.erase(m_samples.begin(), m_samples.begin() + (line - m_first));
        m_first = line;
    }
}

bool Splitter::mayGoOn()
{
    const qsizetype read = m_file.size() - m_reader.rest().size();
    if (m_progress && read - m_asked >= kAskAfter) {
        m_asked = read;
        m_isStopped = m_isStopped || !m_progress(double(read) / double(m_file.size()));
    }
    return !m_isStopped;
}

/// Whether a line begins a record whose lines suit their fields.
bool Splitter::isLikely(qsizetype line)
{
    int oddness = 0;
    for (int field = 0; field < m_length; ++field) {
        if (!has(line + field)) {
            return false;
        }
        oddness += m_costs.oddnessOf(field, at(line + field).sort);
        if (oddness > LineCosts::kMostOddness) {
            return false;
        }
    }
    return true;
}

/// Whether a line begins some records that are likely, or that end with the file.
bool Splitter::isInStep(qsizetype line)
{
    for (int record = 0; record < kRecordsBehind && has(line); ++record) {
        if (!isLikely(line)) {
            return false;
        }
        line += m_length;
    }
    return true;
}

std::optional<qsizetype> Splitter::nextInStep(qsizetype from, qsizetype to)
{
    for (qsizetype line = from; line <= to; ++line) {
        if (isInStep(line)) {
            return line;
        }
    }
    return std::nullopt;
}

/// Notes where a record starts.
void Splitter::begin(qsizetype line)
{
    const qsizetype start = m_starts.empty() ? 0 : startOf(line);
    if (start < m_file.size() && (m_starts.empty() || start > m_starts.back())) {
        m_starts.push_back(start);
    }
}

void Splitter::readDamaged()
{
    const qsizetype back = std::min<qsizetype>(m_inStep, kRecordsBefore);
    const qsizetype from = m_line - (back * m_length);
    const qsizetype limit = from + (qsizetype(kWindow) * m_length);
    m_inStep = 0;
    std::vector<int> starts;
    if (const auto next = nextInStep(m_line + 1, limit)) {
        // With the records in step: a surplus line before them may be one of their own.
        align(from, *next + (qsizetype(kRecordsBehind) * m_length));
        starts = m_alignment.pathToEnd().starts;
        if (!has(from + m_alignment.lines())) {
            starts.push_back(m_alignment.lines());
        }
    } else {
        align(from, limit);
        starts = startsButLast();
    }
    if (starts.empty() || from + starts.back() <= m_line) {
        countLines();
        return;
    }
    m_starts.resize(m_starts.size() - std::size_t(back));
    begin(from);
    // The last of them may be likely, or need to be aligned with what follows.
    std::for_each(starts.begin(), starts.end() - 1, [&](int start) { begin(from + start); });
    m_line = from + starts.back();
}

void Splitter::align(qsizetype from, qsizetype to)
{
    m_alignment.clear();
    for (qsizetype line = from; line < to && has(line); ++line) {
        const bool isDoubled = line > m_first && at(line).text == at(line - 1).text;
        m_alignment.add(at(line).sort, isDoubled);
    }
}

/// Where records start in what has been aligned, but for its end, which what follows may change.
/// Nothing if these are hardly records.
std::vector<int> Splitter::startsButLast() const
{
    const int lines = m_alignment.lines();
    if (m_alignment.leastCost() > kHopeless * lines) {
        return {};
    }
    std::vector<int> starts = m_alignment.cheapestPath().starts;
    const int last = lines - (kRecordsOpen * m_length);
    starts.erase(std::upper_bound(starts.begin(), starts.end(), last), starts.end());
    return starts.empty() || starts.back() < lines / 2 ? std::vector<int>() : starts;
}

/// Reads as many lines as a record has, again and again, until records are in step.
void Splitter::countLines()
{
    for (qsizetype start = m_line; has(start) && mayGoOn();) {
        begin(start);
        const auto next = nextInStep(start + 1, start + m_length);
        start = next.value_or(start + m_length);
        m_line = start;
        if (next && has(start)) {
            return;
        }
        forgetBefore(start);
    }
}

} // namespace tarvold::records
