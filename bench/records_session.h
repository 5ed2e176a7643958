#pragma once

#include <QString>

#include <chrono>

/// One records window, used as a writer uses it, in a process of its own.
namespace tarvold::bench {

/// The figures of one session are printed as lines of a name, a tab and a number.
struct Session
{
    QString file; ///< see writeEndings(); the changing session saves it
    bool changes; ///< repairs and deletes, or only reads, searches and sorts
    std::chrono::steady_clock::time_point start; ///< when the process was started
};

/// Needs a QApplication.
void runSession(const Session &session);

} // namespace tarvold::bench
