#include "datafiles/slow_merge.h"

#include "datafiles/code_page.h"

#include <QFile>

#include <array>
#include <vector>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

struct ReadPastEnd
{
};

/// A file opened for reading, line by line.
class OpenFile
{
public:
    explicit OpenFile(const QString &name)
    {
        const std::optional<QByteArray> bytes = bytesIfThere(name);
        if (!bytes) {
            throw ReadPastEnd();
        }
        m_bytes = *bytes;
    }

    bool atEnd() const { return m_next >= m_bytes.size(); }

    QByteArray readLine()
    {
        if (atEnd()) {
            throw ReadPastEnd();
        }
        const qsizetype start = m_next;
        const qsizetype end = m_bytes.indexOf("\r\n", start);
        m_next = end < 0 ? m_bytes.size() : end + 2;
        return end < 0 ? m_bytes.mid(start) : m_bytes.mid(start, end - start);
    }

private:
    QByteArray m_bytes;
    qsizetype m_next = 0;
};

int linesOf(DataFileKind kind)
{
    switch (kind) {
    case DataFileKind::NormalEndings:
        return 36;
    case DataFileKind::RunInEndings:
        return 44;
    case DataFileKind::TurnEndings:
        return 33;
    case DataFileKind::Interviews:
    case DataFileKind::TalkShows:
    case DataFileKind::Stipulations:
        return 19;
    }
    throw ReadPastEnd();
}

using Lists = std::array<std::vector<QByteArray>, 44>;

void load(Lists &lists, const QString &source, int lines)
{
    OpenFile file(source);
    while (!file.atEnd()) {
        for (int k = 0; k < lines; ++k) {
            lists[std::size_t(k)].push_back(file.readLine());
        }
    }
}

void sweep(Lists &lists, const QString &target, QStringList &messages)
{
    const std::size_t records = lists[0].size();
    for (std::size_t i = 0; i < records; ++i) {
        OpenFile file(target);
        while (!file.atEnd()) {
            const QByteArray a = file.readLine();
            const QByteArray b = file.readLine();
            if (a == lists[0][i] && b == lists[1][i]) {
                messages << u"The combination of match type: "_s + codepage::decode(a) +
                                u" and stipulation: "_s + codepage::decode(b) +
                                u" are already in the file "_s + target +
                                u" so will not be imported."_s;
                lists[0][i].clear();
            }
            for (int discarded = 0; discarded < 17; ++discarded) {
                file.readLine();
            }
        }
    }
}

QByteArray written(const Lists &lists, int lines)
{
    QByteArray bytes;
    for (std::size_t i = 0; i < lists[0].size(); ++i) {
        if (lists[0][i].isEmpty()) {
            continue;
        }
        for (int k = 0; k < lines; ++k) {
            bytes += lists[std::size_t(k)][i] + "\r\n";
        }
    }
    return bytes;
}

} // namespace

std::optional<QByteArray> bytesIfThere(const QString &file)
{
    QFile opened(file);
    if (!opened.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return opened.readAll();
}

MergeOutcome mergeSlowly(const QString &source, const QString &target, DataFileKind kind)
{
    MergeOutcome outcome;
    outcome.target = bytesIfThere(target);
    try {
        Lists lists;
        load(lists, source, linesOf(kind));
        if (kind == DataFileKind::Stipulations) {
            sweep(lists, target, outcome.messages);
        }
        outcome.target = outcome.target.value_or(QByteArray()) + written(lists, linesOf(kind));
    } catch (const ReadPastEnd &) {
        outcome.succeeded = false;
    }
    return outcome;
}

} // namespace tarvold::testing
