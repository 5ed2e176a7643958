#pragma once

#include <QByteArrayView>

namespace tarvold {

/// Reads the lines of a data file from its bytes.
///
/// A line runs up to CR LF, which is taken off; a CR or LF that stands alone belongs to the line's
/// text. Bytes after the last CR LF are a last line of their own. Lines are views: the caller keeps
/// the bytes alive.
class LineReader
{
public:
    explicit LineReader(QByteArrayView bytes) : m_rest(bytes) {}

    /// Whether all bytes have been read.
    bool atEnd() const { return m_rest.isEmpty(); }

    /// The next line without its line end; an empty one at the end of the bytes.
    QByteArrayView readLine();

private:
    QByteArrayView m_rest;
};

} // namespace tarvold
