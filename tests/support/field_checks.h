#pragma once

#include "screens/screen.h"

#include <vector>

namespace tarvold::testing {

/// What a field of a screen is to be.
struct ExpectedField
{
    const char *control;
    const char *label;
    const char *caption;
    std::vector<const char *> items; ///< none for a text box
    const char *text;                ///< what it holds when its flow is entered
    bool helpOnClick;                ///< else on focus only
    const char *help;
};

using ExpectedFields = std::vector<ExpectedField>;

/// Fails the test unless every field has its caption, its list in order and its kind.
void expectFields(const Screen &screen, const ExpectedFields &fields);

/// Fails the test unless every field holds its text of a fresh flow.
void expectFreshTexts(const Screen &screen, const ExpectedFields &fields);

/// Fails the test unless every visible field shows its help when Tab reaches it.
void expectHelpOnFocus(Screen &screen, const char *helpLabel, const ExpectedFields &fields);

/// Fails the test unless exactly the visible fields that are to react to a click show their help
/// when they are clicked while they have the focus.
void expectHelpOnClick(Screen &screen, const char *helpLabel, const ExpectedFields &fields);

} // namespace tarvold::testing
