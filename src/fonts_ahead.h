#pragma once

namespace tarvold {

/// Begins to load the system's font settings, in a thread of its own, while the program connects to the
/// display. Call it before QApplication is constructed, once. In programs that load Qt as a shared
/// library it does nothing, as Qt would not wait for the thread there.
#ifdef TARVOLD_PORTABLE
void loadFontsAhead();
#else
inline void loadFontsAhead()
{
}
#endif

} // namespace tarvold
