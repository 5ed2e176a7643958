#pragma once

#include "records/catalog.h"
#include "records/lines.h"

#include <QByteArrayView>

#include <functional>
#include <optional>
#include <vector>

/// Reads a file's lines as records even where some are missing or too many.
namespace tarvold::records {

/// Which line of a record holds which field.
struct Layout
{
    std::vector<int> lineOfField; ///< an index of the record's lines; -1: the line is missing
    std::vector<int> surplus;     ///< the lines that hold no field, in order

    bool isWhole() const;
};

/// Matches a record's lines with the fields of its kind in the cheapest way.
Layout layoutOf(const std::vector<Line> &lines, const Catalog &catalog);

/// Whether lines may well be the first ones of a record that is still being written: they suit the
/// first fields as well as any others.
bool mayBeBegun(const std::vector<Line> &lines, const Catalog &catalog);

/// Asked now and then how far a long work is, from 0 to 1; `false` stops it.
using Progress = std::function<bool(double)>;

/// Divides a file into records, where each starts in its bytes. Records have as many lines as their
/// kind, or some fewer or more where that makes the cheapest reading of the whole file. Two threads
/// share a large file; `progress` hears of the one that called this, and ends with its half.
/// \return nothing if `progress` stopped it
std::optional<std::vector<qsizetype>> splitIntoRecords(QByteArrayView file, const Catalog &catalog,
                                                       const Progress &progress = {});

/// Where some of the records end that begin a large file, about in the middle of these bytes. They
/// can be divided by themselves, and so can what is behind them.
/// \return nothing if no such place is sure
std::optional<qsizetype> endOfRecords(QByteArrayView beginning, const Catalog &catalog);

/// How likely it is that a file is of some kind.
struct KindGuess
{
    std::optional<DataFileKind> kind; ///< nothing if several are about as likely
    std::vector<DataFileKind> likely; ///< those that are, the likeliest first; never empty
    /// What the game takes such a file for by its name, if `kind` is clearly another.
    std::optional<DataFileKind> named = {};
};

/// Guesses the kind of a file from its content first, and from its name where the content fits
/// several kinds or is empty. Looks only at the beginning of a large file.
KindGuess guessKind(QByteArrayView file, const QString &fileName);

/// The kind that a file is to be read as where its records are expected to be of some kind: that
/// one, unless the content clearly tells another.
/// \return nothing if the content fits several other kinds, but not the expected one
std::optional<DataFileKind> kindFor(QByteArrayView file, const QString &fileName,
                                    DataFileKind expected);

/// The kind that one record looks like, if that is clearly another than `kind`.
std::optional<DataFileKind> looksLike(const std::vector<Line> &record, DataFileKind kind);

} // namespace tarvold::records
