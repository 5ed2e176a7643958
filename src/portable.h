#pragma once

class QObject;

/// What the programs for all Linux systems do themselves, as their Qt is linked in: elsewhere Qt
/// would not wait for the thread, and plugins of the desktop tell it of colours. There these do
/// nothing.
namespace tarvold::portable {

#ifdef TARVOLD_PORTABLE

/// Begins to load the system's font settings, in a thread of its own, while the program connects to
/// the display. Call it once, before QApplication is constructed.
void loadFontsAhead();

/// Makes all windows dark while the desktop prefers that. Nothing waits for the portal's answer; it
/// mostly comes before the first window is painted. A theme that is dark by its name only is asked
/// for at the start, and again when a window becomes active or inactive.
/// \param owner after its end nothing is followed any more
void followDarkDesktop(QObject &owner);

#else

inline void loadFontsAhead() {}
inline void followDarkDesktop(QObject & /*owner*/) {}

#endif

} // namespace tarvold::portable
