#pragma once

#include "screens/details_screen.h"

namespace tarvold {

class Screens;

/// The attacker, who wins: the second screen of all match endings.
class Form5 : public DetailsScreen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form5";

    explicit Form5(Screens &screens);

    /// The rows of the screen. Needs no window.
    static std::span<const Field> fields();
};

/// The receiver, who loses: the third screen of all match endings, and the last that they share.
class Form6 : public DetailsScreen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form6";

    explicit Form6(Screens &screens);

    /// The rows of the screen. Needs no window.
    static std::span<const Field> fields();
};

} // namespace tarvold
