#pragma once

#include <QString>

class QWidget;

/// What was measured of the look: each measurement is held against what is asked, and the worst of
/// each sort is kept for docs/look.md.
namespace tarvold::testing {

/// A window as a test has set it up.
struct Scene
{
    QString name;    ///< the window, and the state that it is in
    QString palette; ///< "light" or "dark"
    QWidget &window;
};

namespace figures {

/// Fails the test if what was measured is less than what is asked, and names the place.
/// \param sort what is measured, as docs/look.md calls it
/// \param part which control of the window
void expectAtLeast(const Scene &scene, const char *sort, const QString &part, double measured,
                   double asked);

} // namespace figures
} // namespace tarvold::testing
