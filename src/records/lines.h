#pragma once

#include <QByteArrayView>

#include <vector>

namespace tarvold::records {

/// How a line ends.
enum class LineEnd {
    CrLf,
    Lf,   ///< alone
    Cr,   ///< alone, or one more before a CR LF
    None, ///< the end of the file
};

/// A line as it stands in a file.
struct Line
{
    QByteArrayView text; ///< without its end
    LineEnd end;

    bool operator==(const Line &) const = default;
};

/// Reads lines, whatever they end with: unlike LineReader it takes a lone CR or LF for the end of a
/// line, so that a file which a text editor has converted can be read and repaired.
///
/// CR CR LF ends one line, not two: a program that writes CR LF for each LF makes it of a CR LF,
/// and the line is one to every reader that takes only CR LF. Its end counts as a CR.
class AnyLineReader
{
public:
    explicit AnyLineReader(QByteArrayView bytes) : m_rest(bytes) {}

    bool atEnd() const { return m_rest.isEmpty(); }
    Line readLine();
    /// What has not been read yet.
    QByteArrayView rest() const { return m_rest; }

private:
    QByteArrayView m_rest;
};

/// All lines of a record.
std::vector<Line> linesOf(QByteArrayView record);

} // namespace tarvold::records
