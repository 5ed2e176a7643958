#include "walk/ledger.h"

#include "datafiles/code_page.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <utility>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr int kStipulationLines = 19;

QByteArray whatIsAt(const QFileInfo &entry)
{
    if (entry.isSymLink()) {
        return "link to " + entry.symLinkTarget().toUtf8();
    }
    QFile file(entry.filePath());
    const bool isPlain = entry.isFile() && file.open(QIODevice::ReadOnly);
    return isPlain ? file.readAll() : QByteArray("not a readable file");
}

Content contentOf(const QString &folder)
{
    Content content;
    QDirIterator entries(folder, QDir::Files | QDir::Hidden | QDir::System,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        entries.next();
        content[QDir(folder).relativeFilePath(entries.filePath())] = whatIsAt(entries.fileInfo());
    }
    return content;
}

/// The lines of a file, without line ends; text after the last line end is a line too.
QByteArrayList linesOf(const QByteArray &bytes)
{
    QByteArrayList lines;
    qsizetype start = 0;
    while (start < bytes.size()) {
        const qsizetype end = bytes.indexOf("\r\n", start);
        lines << bytes.mid(start, end < 0 ? -1 : end - start);
        start = end < 0 ? bytes.size() : end + 2;
    }
    return lines;
}

/// The records that an import copies: those whose first line is not empty.
QList<QByteArrayList> recordsOf(const QByteArray &bytes, int linesPerRecord)
{
    QList<QByteArrayList> records;
    const QByteArrayList lines = linesOf(bytes);
    for (qsizetype line = 0; line < lines.size(); line += linesPerRecord) {
        if (!lines[line].isEmpty()) {
            records << lines.mid(line, linesPerRecord);
        }
    }
    return records;
}

/// Whether all `records` occur in `all`, in the same order.
bool isSubsequence(const QList<QByteArrayList> &records, const QList<QByteArrayList> &all)
{
    qsizetype place = 0;
    for (const QByteArrayList &record : records) {
        place = all.indexOf(record, place) + 1;
        if (place == 0) {
            return false;
        }
    }
    return true;
}

bool hold(const QByteArrayList &lines, const QStringList &texts)
{
    for (qsizetype line = 0; line < texts.size(); ++line) {
        const QString text = texts[line].normalized(QString::NormalizationForm_C);
        if (codepage::decode(lines[line]) != text) {
            return false;
        }
    }
    return true;
}

} // namespace

Ledger::Ledger(const QString &folder) : m_folder(QDir(folder).canonicalPath())
{
    accept();
}

void Ledger::accept()
{
    m_known = contentOf(m_folder);
}

QString Ledger::checkOnlyChanged(const QString &key)
{
    m_found = contentOf(m_folder);
    for (const auto &[path, bytes] : m_known) {
        const auto found = m_found.find(path);
        if (found == m_found.end()) {
            return path + u" is gone"_s;
        }
        if (path != key && found->second != bytes) {
            return path + u" has changed"_s;
        }
    }
    for (const auto &[path, bytes] : m_found) {
        if (path != key && !m_known.contains(path)) {
            return path + u" is new"_s;
        }
    }
    if (!key.isEmpty() && !m_found.contains(key)) {
        return key + u" is missing"_s;
    }
    return {};
}

QString Ledger::keyOf(const QString &name) const
{
    const QString path = name.startsWith(u':') ? u"./"_s + name : name;
    return QDir(m_folder).relativeFilePath(QFileInfo(path).canonicalFilePath());
}

QString Ledger::checkUnchanged()
{
    return checkOnlyChanged({});
}

QString Ledger::checkAdded(const QString &name, int lines, const QStringList &commentary)
{
    const QString key = keyOf(name);
    if (QString wrong = checkOnlyChanged(key); !wrong.isEmpty()) {
        return wrong;
    }
    const QByteArray &before = m_known[key];
    const QByteArray &now = m_found[key];
    if (!now.startsWith(before)) {
        return key + u": the old records have changed"_s;
    }
    const QByteArray added = now.sliced(before.size());
    const QByteArrayList record = linesOf(added);
    if (record.size() != lines || !added.endsWith("\r\n")) {
        return u"%1: %2 lines were added instead of %3"_s.arg(key, QString::number(record.size()),
                                                              QString::number(lines));
    }
    if (!hold(record.last(commentary.size()), commentary)) {
        return key + u": the commentary differs from the screen"_s;
    }
    m_known = std::move(m_found);
    return {};
}

QString Ledger::checkImported(const QString &source, const QString &target, DataFileKind kind)
{
    const QString key = keyOf(target);
    if (QString wrong = checkOnlyChanged(key); !wrong.isEmpty()) {
        return wrong;
    }
    const QByteArray &before = m_known[key];
    const QByteArray &now = m_found[key];
    if (!now.startsWith(before)) {
        return key + u": the old records have changed"_s;
    }
    const int lines = rowOf(kind).linesPerRecord();
    const QByteArray added = now.sliced(before.size());
    const QList<QByteArrayList> all = recordsOf(m_known[keyOf(source)], lines);
    const QList<QByteArrayList> copied = recordsOf(added, lines);
    const bool isRight =
        kind == DataFileKind::Stipulations ? isSubsequence(copied, all) : copied == all;
    if (!isRight || (!added.isEmpty() && !added.endsWith("\r\n"))) {
        return key + u": the imported records differ from those of "_s + source;
    }
    m_known = std::move(m_found);
    return {};
}

QString Ledger::checkLoaded(const QString &name)
{
    const QString key = keyOf(name);
    const bool wasThere = m_known.contains(key);
    if (QString wrong = checkOnlyChanged(wasThere ? QString() : key); !wrong.isEmpty()) {
        return wrong;
    }
    m_known = std::move(m_found);
    m_stipulations = linesOf(m_known[key]);
    return !wasThere && !m_stipulations.isEmpty() ? key + u" is not empty"_s : QString();
}

QString Ledger::checkStored(const QString &name, std::optional<int> line, int lines,
                            const QStringList &firstTwo)
{
    const QString key = keyOf(name);
    if (QString wrong = checkOnlyChanged(key); !wrong.isEmpty()) {
        return wrong;
    }
    const QByteArrayList now = linesOf(m_found[key]);
    const qsizetype start = line.value_or(m_stipulations.size());
    const qsizetype setLines = line ? kStipulationLines : lines;
    const qsizetype size = std::max(m_stipulations.size(), start + setLines);
    const bool othersAreSame = now.size() == size &&
                               now.first(start) == m_stipulations.first(start) &&
                               now.mid(start + setLines) == m_stipulations.mid(start + setLines);
    if (!othersAreSame || !m_found[key].endsWith("\r\n")) {
        return key + u": more than one stipulation has changed"_s;
    }
    if (!hold(now.mid(start, 2), firstTwo)) {
        return key + u": the stipulation differs from the form"_s;
    }
    m_known = std::move(m_found);
    m_stipulations = now;
    return {};
}

QString Ledger::checkDeleted(const QString &name, int line)
{
    const QString key = keyOf(name);
    if (QString wrong = checkOnlyChanged(key); !wrong.isEmpty()) {
        return wrong;
    }
    const QByteArrayList now = linesOf(m_found[key]);
    if (now != m_stipulations.first(line) + m_stipulations.mid(line + kStipulationLines)) {
        return key + u": more than one stipulation was removed"_s;
    }
    m_known = std::move(m_found);
    m_stipulations = now;
    return {};
}

QString Ledger::checkReplaced(const QString &name, const QByteArray &bytes)
{
    const QString key = keyOf(name);
    if (QString wrong = checkOnlyChanged(key); !wrong.isEmpty()) {
        return wrong;
    }
    if (m_found[key] != bytes) {
        return key + u": the file holds other bytes than the records that were saved"_s;
    }
    m_known = std::move(m_found);
    return {};
}

QString Ledger::checkGrown()
{
    QString grown;
    for (const auto &[path, bytes] : contentOf(m_folder)) {
        const auto before = m_known.find(path);
        if (before != m_known.end() && before->second == bytes) {
            continue;
        }
        if (before != m_known.end() && !bytes.startsWith(before->second)) {
            return path + u": the old records have changed"_s;
        }
        if (!grown.isEmpty()) {
            return grown + u" and "_s + path + u" have changed"_s;
        }
        grown = path;
    }
    const QString wrong = checkOnlyChanged(grown);
    if (wrong.isEmpty()) {
        m_known = std::move(m_found);
    }
    return wrong;
}

qsizetype Ledger::size() const
{
    qsizetype size = 0;
    for (const auto &[path, bytes] : m_known) {
        size += bytes.size();
    }
    return size;
}

} // namespace tarvold::testing
