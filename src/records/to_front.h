#pragma once

#include <QWidget>

namespace tarvold::records {

/// Shows a window that the user is to look at now: not minimised, before all others, active.
inline void bringToFront(QWidget &window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
}

} // namespace tarvold::records
