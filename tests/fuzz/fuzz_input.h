#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

/// What the fuzz targets share: how they read their input, where their files are, and how they
/// fail.
namespace tarvold::testing {

/// An input of a fuzz target: bytes of a file, then, only if its last byte is 80 or above, as many
/// bytes that steer what is done with them as its lowest five bits say. So a data file is
/// an input as it stands, and a mutation away from one that does more.
class FuzzInput
{
public:
    explicit FuzzInput(QByteArrayView input);

    /// The bytes of the file.
    QByteArrayView bytes() const { return m_bytes; }

    /// Whether all steering bytes were taken.
    bool atEnd() const { return m_steering.isEmpty(); }

    /// A choice from 0 up to, not including, `end`, which is 256 at most; 0 when all were taken.
    int below(int end);
    bool onceIn(int times) { return below(times) == times - 1; }

private:
    QByteArrayView m_bytes;
    QByteArrayView m_steering;
};

/// A file of some whole records, of which the lines of `bytes` are the first two of each. Random
/// bytes hardly ever make a whole record by themselves.
QByteArray wholeRecords(QByteArrayView bytes, int linesPerRecord);

/// The path of a file in a folder of this program's own, in memory if possible, which is removed
/// when the program ends.
QString pathInMemory(const char *name);

/// The names of all files in that folder, sorted and joined by blanks.
QByteArray filesInMemory();

/// Puts a file there, in place of the one that had its name.
void putInMemory(const QString &path, QByteArrayView bytes);

/// Ends the program, as a sanitizer would, unless something holds.
void require(bool holds, const char *what);

} // namespace tarvold::testing
