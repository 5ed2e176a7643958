#pragma once

#include "screens/commentary_screen.h"

namespace tarvold {

/// The commentary of an interview segment, and its save.
class Form13 : public CommentaryScreen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form13";

    explicit Form13(Screens &screens);

    /// What the screen is made of. Needs no window.
    static CommentaryTable commentaryTable();
};

/// The commentary of a talk show segment, and its save.
class Form15 : public CommentaryScreen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form15";

    explicit Form15(Screens &screens);

    /// What the screen is made of. Needs no window.
    static CommentaryTable commentaryTable();
};

} // namespace tarvold
