#pragma once

#include "controls/text_box.h"
#include "screens/screen.h"
#include "screens/screens.h"

#include <QVBoxLayout>

namespace tarvold::testing {

/// A stand-in for a real screen, with one text box. Its name is "Form" and the digits.
template <char... Digits>
class StubScreen : public Screen
{
public:
    static constexpr char kName[] = {'F', 'o', 'r', 'm', Digits..., '\0'};

    explicit StubScreen(Screens & /*screens*/) : Screen(kName)
    {
        auto *box = new TextBox;
        add(box, "Text1");
        column().addWidget(box);
    }
};

} // namespace tarvold::testing
