#pragma once

#include "screens/details_screen.h"

namespace tarvold {

class Screens;

/// The details of an interview segment: the first screen of its flow.
class Form12 : public DetailsScreen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form12";

    explicit Form12(Screens &screens);

    /// The rows of the screen. Needs no window.
    static std::span<const Field> fields();
};

} // namespace tarvold
