#pragma once

#include "screens/details_screen.h"

namespace tarvold {

class Screens;

/// The turn: who turns, and on whom.
class Form10 : public DetailsScreen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form10";

    explicit Form10(Screens &screens);

    /// The rows of the screen. Needs no window.
    static std::span<const Field> fields();
};

} // namespace tarvold
