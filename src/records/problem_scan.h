#pragma once

#include "records/problems.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QTimer>

#include <optional>
#include <vector>

namespace tarvold::records {

class Document;

/// Looks for problems in all records of a document, a few at a time between two events, so that
/// nothing waits for it. A record that changes is checked again at once.
///
/// Of each record only the number of its problems is kept, but those that were found by comparing
/// records are kept whole, as they cannot be had again without comparing all of them.
class ProblemScan : public QObject
{
    Q_OBJECT
public:
    /// Starts at once, and again whenever the document is loaded.
    /// \param document kept by the caller for as long as the scan lives
    explicit ProblemScan(const Document &document, QObject *parent = nullptr);

    /// Goes on where it was stopped.
    void start();
    /// Stops until start() or until a file is loaded. Records that change are checked all the same,
    /// but no longer compared with the others; after a change, what was found by comparing is
    /// forgotten, as it may be wrong now.
    void stop();
    bool isRunning() const { return m_timer.isActive(); }

    /// Whether all records are checked and compared, as far as they have not changed since.
    bool isFinished() const;
    /// How many records have been checked, of all.
    int checked() const { return m_checked; }
    /// How many records have problems, as far as they are known.
    int total() const { return m_total; }
    /// How many problems a record has, as far as they are known.
    int countAt(int index) const;
    /// Whether a record was checked and has no problem, by itself or beside others.
    bool isSound(int index) const;
    /// All problems of a record, in the order of its lines; those of a deleted one are gone.
    std::vector<Problem> problemsAt(int index) const;

signals:
    /// The number of problems is another for some records from the first to the last of these.
    void found(int first, int last);
    void progress(int checked, int count);
    /// All records are checked and compared.
    void finished();

private:
    void restart();
    void compareAnew();
    void work();
    void step(int index);
    /// Checks a record by itself.
    void check(int index, const Record &record);
    void recheck(const std::vector<int> &indexes);
    void checkAtOnce(const std::vector<int> &indexes);
    /// Only the last record's line end may be missing, and another one may be the last now.
    void checkLast();
    void insert(int first, int last);
    void forget(int first, int last);
    void remove(int first, int last);
    int countOf(int id) const;
    int ownOf(int id) const;
    void setOwn(int index, int count);
    void setCompared(int index, const std::vector<Problem> &problems);
    void forgetCompared();
    void note(int index);
    void tell();

    const Document &m_document;
    QTimer m_timer;
    QTimer m_soon; ///< runs until what is noted is told
    bool m_isWanted = true;
    std::vector<qint16> m_own; ///< by id: the problems of a record by itself; -1: not checked
    QHash<int, std::vector<Problem>> m_compared; ///< by id: found by comparing; none is empty
    std::optional<Comparison> m_comparison;
    int m_next = 0; ///< to be compared, and checked if it is not yet
    int m_last = -1;
    int m_checked = 0;
    int m_total = 0;
    int m_firstFound = -1; ///< to be told; -1: nothing
    int m_lastFound = -1;
    QElapsedTimer m_busy; ///< since something was checked between two events
};

} // namespace tarvold::records
