#pragma once

#include "records/damage.h"

#include <QByteArray>

#include <vector>

/// How damage of more than a line is read and repaired.
namespace tarvold::records {

/// The seed of random files; TARVOLD_SEED gives another.
unsigned heavySeed();

/// How a kind of damage was read, over some files.
struct Score
{
    int files = 0;
    int named = 0;    ///< files where exactly this damage was named
    int kept = 0;     ///< files where all other records were whole, byte for byte
    int restored = 0; ///< files that all repairs made what they were
    int lost = 0;     ///< files where all repairs lost a text

    double percentOf(int count) const { return files == 0 ? 0.0 : 100.0 * count / files; }
};

/// Prints the headings of a table for the documents, if TARVOLD_SHOW_TABLES is set.
/// \param restored what Score::restored stands for
void showHeadings(const char *restored);
/// Prints a row of it.
void show(const QByteArray &name, const Score &score);

/// A file after all repairs of each of its records.
QByteArray repaired(const QByteArray &file, const Catalog &catalog);

/// Whether some text that an author wrote is in none of the lines any more. Parts of one that was
/// broken may be one again.
bool isTextLost(const QByteArray &before, const QByteArray &after);

/// Whether records but one are as they were; the one may be anything, but one record.
bool areOthersWhole(const std::vector<Record> &found, const std::vector<RecordLines> &records,
                    std::size_t but);

} // namespace tarvold::records
