#pragma once

#include "screens/details_screen.h"

namespace tarvold {

class Screens;

/// The feud behind a run-in: who interferes, and why.
class Form8 : public DetailsScreen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form8";

    explicit Form8(Screens &screens);

    /// The rows of the screen. Needs no window.
    static std::span<const Field> fields();

    /// Help for two fields that the screen does not have yet, the interferer's brand and whether
    /// the person is a power figure; nothing calls them until it does.
    void showBrandHelp();
    void showPowerFigureHelp();
};

} // namespace tarvold
