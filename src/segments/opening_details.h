#pragma once

#include "screens/details_screen.h"

namespace tarvold {

class Screens;

/// The details of an opening segment: complete, but not part of any flow yet. Its buttons do
/// nothing.
class Form17 : public DetailsScreen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form17";

    explicit Form17(Screens &screens);
};

} // namespace tarvold
