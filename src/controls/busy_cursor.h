#pragma once

#include <QApplication>

namespace tarvold {

/// Shows the wait cursor for as long as it lives.
class BusyCursor
{
public:
    BusyCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyCursor() { QApplication::restoreOverrideCursor(); }
    BusyCursor(const BusyCursor &) = delete;
    BusyCursor &operator=(const BusyCursor &) = delete;
    BusyCursor(BusyCursor &&) = delete;
    BusyCursor &operator=(BusyCursor &&) = delete;
};

/// Shows the usual cursor while a busy program waits for an answer, for as long as it lives. A
/// BusyCursor has to live around it.
class BusyCursorPause
{
public:
    BusyCursorPause() { QApplication::restoreOverrideCursor(); }
    ~BusyCursorPause() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    BusyCursorPause(const BusyCursorPause &) = delete;
    BusyCursorPause &operator=(const BusyCursorPause &) = delete;
    BusyCursorPause(BusyCursorPause &&) = delete;
    BusyCursorPause &operator=(BusyCursorPause &&) = delete;
};

} // namespace tarvold
