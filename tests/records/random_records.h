#pragma once

#include "records/catalog.h"

#include <QByteArray>
#include <QByteArrayList>

#include <random>
#include <vector>

/// Records as authors write them, made at random.
namespace tarvold::records {

using Random = std::mt19937;

/// The lines of a record, without their ends.
using RecordLines = QByteArrayList;

/// What the records of a file are like.
enum class Writing {
    Usual,   ///< picks from the lists, names, a commentary with tags
    Default, ///< what the screens start with, and one line of commentary
    Odd,     ///< usual, but with contents that are odd, and legal
};

int below(Random &random, int bound);

/// A line of commentary. \param previous the one before it, which it is not
QByteArray randomSentence(Random &random, const Catalog &catalog, const QByteArray &previous);

RecordLines randomRecord(Random &random, const Catalog &catalog, Writing writing);

std::vector<RecordLines> randomRecords(Random &random, const Catalog &catalog, Writing writing,
                                       int count);

QByteArray bytesOf(const RecordLines &record);
QByteArray bytesOf(const std::vector<RecordLines> &records);

} // namespace tarvold::records
