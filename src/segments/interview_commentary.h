#pragma once

#include "screens/commentary_screen.h"

namespace tarvold {

class Screens;

/// The commentary of an interview segment, and its save.
class Form13 : public CommentaryScreen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form13";

    explicit Form13(Screens &screens);
};

} // namespace tarvold
