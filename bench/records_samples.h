#pragma once

#include <QString>

/// Data files for benchmarks of records windows.
namespace tarvold::bench {

constexpr int kEndings = 100'000;

enum class Endings {
    Sound,
    Faulty, ///< each line ends with a bare LF, so every record has problems that can be repaired
};

/// Writes a file of normal endings. Ends the program if that fails.
/// \return its size in bytes
qint64 writeEndings(const QString &file, Endings endings);

} // namespace tarvold::bench
