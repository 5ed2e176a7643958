#pragma once

#include "screens/commentary_screen.h"

namespace tarvold {

/// The commentary of a match ending with a turn, and its save.
class Form11 : public CommentaryScreen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form11";

    explicit Form11(Screens &screens);
};

} // namespace tarvold
