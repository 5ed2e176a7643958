#include "datafiles/stipulation_table.h"

#include "datafiles/line_reader.h"
#include "datafiles/record.h"
#include "disk/append.h"
#include "disk/read.h"
#include "disk/rewrite.h"

#include <algorithm>
#include <functional>
#include <iterator>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

using Lines = std::vector<QByteArrayView>;

constexpr char kSeparator[] = " / ";

/// How many line feeds there are: what the table will need room for. Counts of short blocks fit
/// into a byte, so that the compiler compares many bytes at a time.
std::size_t countLineFeeds(QByteArrayView bytes)
{
    constexpr qsizetype kBlock = 128;
    std::size_t count = 0;
    while (!bytes.isEmpty()) {
        const QByteArrayView block = bytes.first(std::min(kBlock, bytes.size()));
        unsigned char inBlock = 0;
        for (const char byte : block) {
            inBlock = static_cast<unsigned char>(inBlock + (byte == '\n' ? 1 : 0));
        }
        count += inBlock;
        bytes = bytes.sliced(block.size());
    }
    return count;
}

/// How many bytes the lines take in a file.
qsizetype sizeOf(const Lines &lines)
{
    qsizetype size = 0;
    for (const QByteArrayView line : lines) {
        size += line.size() + qsizetype(qstrlen(kLineEnd));
    }
    return size;
}

/// Whether a line directly follows another one in the bytes of the file that was read.
bool followsInFile(QByteArrayView line, QByteArrayView next, QByteArrayView file)
{
    const auto isInFile = [file](const char *place) {
        return std::less_equal<>()(file.begin(), place) && std::less<>()(place, file.end());
    };
    return isInFile(line.end()) && isInFile(next.begin()) &&
           next.begin() - line.end() == qsizetype(qstrlen(kLineEnd));
}

/// All lines as the bytes of a file. Lines that follow each other in the file that was read, which
/// are nearly all, are copied in one go with the line ends between them.
QByteArray joined(const Lines &lines, QByteArrayView file)
{
    QByteArray bytes(sizeOf(lines), Qt::Uninitialized);
    char *to = bytes.data();
    for (auto line = lines.begin(); line != lines.end();) {
        const auto first = line++;
        while (line != lines.end() && followsInFile(*std::prev(line), *line, file)) {
            ++line;
        }
        to = std::copy(first->begin(), std::prev(line)->end(), to);
        to = std::copy_n(kLineEnd, qstrlen(kLineEnd), to);
    }
    return bytes;
}

} // namespace

Result<void> StipulationTable::load(const QString &name)
{
    const bool wasMissing = !name.isEmpty() && !fileExists(name);
    const auto created = wasMissing ? appendToFile(name, {}) : Result<void>();
    Result<void> loaded = created ? read(name) : created;
    if (!loaded && wasMissing && fileExists(name)) {
        loaded.error().outcome = FileOutcome::MaybeChanged;
    }
    return loaded;
}

Result<void> StipulationTable::read(const QString &name)
{
    Result<QByteArray> bytes = readFile(name);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    Lines lines;
    lines.reserve(countLineFeeds(*bytes) + 1);
    LineReader reader(*bytes);
    while (!reader.atEnd()) {
        lines.push_back(reader.readLine());
    }
    if (auto error =
            whyNotWhole(*bytes, qsizetype(lines.size()), kLinesPerRecord, u"stipulation"_s)) {
        return tl::unexpected(*error);
    }
    m_name = name;
    m_file = std::move(*bytes);
    m_edited.clear();
    stipulations = std::move(lines);
    return {};
}

Result<void> StipulationTable::change(const QString &name, const Edit &edit,
                                      const MayOverwrite &mayOverwrite)
{
    StipulationTable changed = *this;
    edit(changed);
    Result<void> written = changed.writeBack(name, mayOverwrite);
    if (isInFile(written)) {
        *this = std::move(changed);
    }
    return written;
}

bool StipulationTable::isInFile(const Result<void> &result)
{
    return result || result.error().outcome == FileOutcome::Unconfirmed;
}

Result<void> StipulationTable::writeBack(const QString &name, const MayOverwrite &mayOverwrite)
{
    QByteArray bytes = joined(stipulations, m_file);
    const bool isOther = !m_name.isEmpty() && name != m_name;
    Result<void> written =
        rewriteFile(name, bytes, isOther ? std::nullopt : std::optional(QByteArrayView(m_file)));
    if (!written && written.error().outcome == FileOutcome::ChangedByAnother && mayOverwrite &&
        mayOverwrite()) {
        written = rewriteFile(name, bytes);
    }
    if (isInFile(written)) {
        m_name = name;
        moveInto(std::move(bytes));
    }
    return written;
}

void StipulationTable::moveInto(QByteArray file)
{
    m_file = std::move(file);
    const char *start = m_file.constData();
    for (QByteArrayView &line : stipulations) {
        line = QByteArrayView(start, line.size());
        start = line.end() + qstrlen(kLineEnd);
    }
    m_edited.clear(); // or the memory for edited lines would only grow
}

QByteArrayView StipulationTable::line(int index) const
{
    return index < lineCount() ? stipulations[static_cast<std::size_t>(index)] : QByteArrayView();
}

QByteArray StipulationTable::displayText(int index) const
{
    return line(index).toByteArray() + kSeparator + line(index + 1).toByteArray();
}

std::vector<int> StipulationTable::find(const QByteArray &displayText) const
{
    const auto wanted = displayText.size() - qsizetype(qstrlen(kSeparator));
    std::vector<int> found;
    for (int index = 0; index < lineCount(); index += kLinesPerRecord) {
        if (line(index).size() + line(index + 1).size() == wanted &&
            this->displayText(index) == displayText) {
            found.push_back(index);
        }
    }
    return found;
}

std::vector<int> StipulationTable::allRecords() const
{
    std::vector<int> records;
    for (int index = 0; index < lineCount(); index += kLinesPerRecord) {
        records.push_back(index);
    }
    return records;
}

std::vector<int> StipulationTable::namedRecords() const
{
    std::vector<int> records = allRecords();
    std::erase_if(records, [this](int index) { return line(index).isEmpty(); });
    return records;
}

int StipulationTable::countKey(QByteArrayView matchType, QByteArrayView name, int except) const
{
    int count = 0;
    for (int index = 0; index < lineCount(); ++index) {
        if (line(index) == matchType && line(index + 1) == name && index != except) {
            ++count;
        }
    }
    return count;
}

void StipulationTable::append(const Record &record)
{
    for (const std::optional<QByteArray> &line : record) {
        if (line) {
            stipulations.push_back(keep(*line));
        }
    }
}

void StipulationTable::replace(int index, const Record &record)
{
    const auto start = static_cast<std::size_t>(index);
    if (stipulations.size() < start + record.size()) {
        stipulations.resize(start + record.size());
    }
    for (std::size_t offset = 0; offset < record.size(); ++offset) {
        if (record.at(offset)) {
            stipulations[start + offset] = keep(*record.at(offset));
        }
    }
}

void StipulationTable::remove(int index)
{
    const auto first = stipulations.begin() + std::min(index, lineCount());
    const auto last = stipulations.begin() + std::min(index + kLinesPerRecord, lineCount());
    stipulations.erase(first, last);
}

QByteArrayView StipulationTable::keep(const QByteArray &line)
{
    return m_edited.emplace_back(line);
}

} // namespace tarvold
