#pragma once

#include <QByteArrayView>

namespace tarvold {

/// Reads the lines of a data file from its bytes.
///
/// A line ends at CR LF, which is removed; a lone CR or LF is part of the line's text. Bytes after
/// the last CR LF form one more line. Lines are views: the caller keeps the bytes alive.
class LineReader
{
public:
    explicit LineReader(QByteArrayView bytes) : m_rest(bytes) {}

    /// Whether all bytes have been read.
    bool atEnd() const { return m_rest.isEmpty(); }

    /// The next line without its CR LF; empty at the end of the bytes.
    QByteArrayView readLine();

private:
    QByteArrayView m_rest;
};

} // namespace tarvold
