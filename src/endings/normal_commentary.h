#pragma once

#include "screens/commentary_screen.h"

namespace tarvold {

/// The commentary of a normal match ending, and its save.
class Form7 : public CommentaryScreen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form7";

    explicit Form7(Screens &screens);
};

} // namespace tarvold
