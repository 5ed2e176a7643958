#pragma once

#include "screens/commentary_screen.h"

namespace tarvold {

/// The commentary of a match ending with a run-in, and its save.
class Form9 : public CommentaryScreen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form9";

    explicit Form9(Screens &screens);
};

} // namespace tarvold
