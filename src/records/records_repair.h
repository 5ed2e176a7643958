#pragma once

#include "records/typing.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <utility>
#include <vector>

namespace tarvold::records {

class Document;
class ProblemScan;

/// Makes all repairs that are offered for some records, as one step to undo.
///
/// The repaired records are made a few at a time between two events, so that nothing waits for
/// them; few are done at once. The document changes only when all are made. Until then it can be
/// stopped, and nothing was repaired. Records that are changed meanwhile are repaired as they are
/// at the end, and those that are added are not repaired.
class RecordsRepair : public QObject
{
    Q_OBJECT
public:
    /// \param document kept by the caller for as long as this lives, as is `scan`
    RecordsRepair(Document &document, const ProblemScan &scan, Typing typing);

    /// \param mustWait asked before each part of the work, such as whether a question is open that
    /// is about the document as it is
    void setMustWait(std::function<bool()> mustWait) { m_mustWait = std::move(mustWait); }

    /// Starts, unless it is running.
    /// \param what the name of the change
    void start(const std::vector<int> &records, const QString &what);
    /// Stops with nothing repaired.
    void stop();
    bool isRunning() const { return m_isRunning; }

signals:
    /// How many records have been looked at, of all; also when it starts and when it is over.
    void progress(int done, int count);
    /// How it ended; to be told in passing.
    void said(const QString &text);

private:
    struct Repaired
    {
        int id;
        QByteArray before;
        QByteArray after;
    };

    void work();
    void repair(int index);
    QByteArray repairedAt(int index) const;
    void follow();
    void finish();
    void end(const QString &text);

    Document &m_document;
    const ProblemScan &m_scan;
    Typing m_typing;
    std::function<bool()> m_mustWait;
    QTimer m_timer;
    QString m_what;
    bool m_isRunning = false;
    std::vector<int> m_ids;     ///< of all records to look at
    std::vector<int> m_indexes; ///< of the same; -1: it is gone
    std::size_t m_next = 0;     ///< of these
    int m_last = -1;            ///< the record that may lack its line end
    std::vector<Repaired> m_repaired;
    int m_left = 0; ///< records with problems that have no repair
};

} // namespace tarvold::records
