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

} // namespace tarvold
