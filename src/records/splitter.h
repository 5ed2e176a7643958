#pragma once

#include "records/alignment.h"
#include "records/reading.h"

namespace tarvold::records {

/// Divides a file into records, see splitIntoRecords().
///
/// Records whose lines all suit their fields are taken as they come. At the first other one the
/// lines are aligned with records, from two records before it to the next line where records are
/// in step again. Where that is too far away, only so many lines are aligned, and what comes of the
/// last of them is left open; and where that makes no sense either, lines are counted until records
/// are in step again. So the time is linear in the size of the file, and but for the result the
/// memory is bounded.
class Splitter
{
public:
    Splitter(QByteArrayView file, const LineCosts &costs, const Progress &progress);

    /// A byte near the middle where some records start that are in step; nothing if there is none.
    static std::optional<qsizetype> middle(QByteArrayView file, const LineCosts &costs);

    /// Where records start; nothing if `progress` stopped it.
    /// \param until it stops if a record starts at this byte, see isAt()
    std::optional<std::vector<qsizetype>> split(qsizetype until = -1);
    /// Whether it stopped at that byte. What is behind can be divided by itself then, if some
    /// records there are in step: these are all that the damage behind them is compared with.
    bool isAt() const { return m_isAt; }

private:
    struct Sample
    {
        QByteArrayView text;
        Sort sort;
    };

    /// \name Lines, counted from 0 in the file. Those far behind are forgotten.
    /// \{
    bool has(qsizetype line);
    const Sample &at(qsizetype line) const { return m_samples[std::size_t(line - m_first)]; }
    qsizetype startOf(qsizetype line);
    void forgetBefore(qsizetype line);
    /// \}

    bool isLikely(qsizetype line);
    bool isInStep(qsizetype line);
    std::optional<qsizetype> nextInStep(qsizetype from, qsizetype to);
    bool mayGoOn();
    void begin(qsizetype line);
    void readDamaged();
    void align(qsizetype from, qsizetype to);
    std::vector<int> startsButLast() const;
    void countLines();

    QByteArrayView m_file;
    AnyLineReader m_reader;
    const LineCosts &m_costs;
    const Progress &m_progress;
    const int m_length; ///< lines of a record
    Alignment m_alignment;
    std::vector<Sample> m_samples;
    qsizetype m_first = 0;  ///< the line of the first sample
    qsizetype m_line = 0;   ///< where the next record starts
    qsizetype m_inStep = 0; ///< how many likely records precede it
    std::vector<qsizetype> m_starts;
    qsizetype m_asked = 0; ///< how many bytes had been read when `m_progress` was asked last
    bool m_isStopped = false;
    bool m_isAt = false;
};

} // namespace tarvold::records
