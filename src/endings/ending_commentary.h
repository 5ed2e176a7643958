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

    /// What the screen is made of. Needs no window.
    static CommentaryTable commentaryTable();
};

/// The commentary of a match ending with a run-in, and its save.
class Form9 : public CommentaryScreen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form9";

    explicit Form9(Screens &screens);

    /// What the screen is made of. Needs no window.
    static CommentaryTable commentaryTable();
};

/// The commentary of a match ending with a turn, and its save.
class Form11 : public CommentaryScreen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form11";

    explicit Form11(Screens &screens);

    /// What the screen is made of. Needs no window.
    static CommentaryTable commentaryTable();
};

} // namespace tarvold
