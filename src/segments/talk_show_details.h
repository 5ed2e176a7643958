#pragma once

#include "screens/details_screen.h"

namespace tarvold {

class Screens;

/// The details of a talk show segment: the first screen of its flow.
class Form14 : public DetailsScreen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form14";

    explicit Form14(Screens &screens);

    /// The rows of the screen. Needs no window.
    static std::span<const Field> fields();
};

} // namespace tarvold
