#pragma once

#include "screens/details_screen.h"

namespace tarvold {

class Screens;

/// Match criteria: the first screen of all match endings.
class Form4 : public DetailsScreen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form4";

    explicit Form4(Screens &screens);

    /// The rows of the screen. Needs no window.
    static std::span<const Field> fields();
};

} // namespace tarvold
