#pragma once

#include <QString>

class QWidget;

/// Measurements of the look: each is compared with the required minimum, and the worst of each kind
/// is kept for docs/look.md.
namespace tarvold::testing {

/// A window in the state that a test has set up.
struct Scene
{
    QString name;    ///< of the window and its state
    QString palette; ///< "light" or "dark"
    QWidget &window;
};

namespace figures {

/// Fails the test, naming the control, if a measurement is below the minimum.
/// \param sort the kind of measurement, as docs/look.md calls it
/// \param part which control of the window
/// \param asked the minimum
void expectAtLeast(const Scene &scene, const char *sort, const QString &part, double measured,
                   double asked);

} // namespace figures
} // namespace tarvold::testing
