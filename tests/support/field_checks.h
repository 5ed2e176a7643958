#pragma once

#include "screens/screen.h"

#include <vector>

namespace tarvold::testing {

/// The expected properties of a field of a screen.
struct ExpectedField
{
    const char *control;
    const char *label;
    const char *caption;
    std::vector<const char *> items; ///< empty for a text box
    const char *text;                ///< when its flow is entered
    bool helpOnClick;                ///< if false, on focus only
    const char *help;
};

using ExpectedFields = std::vector<ExpectedField>;

/// Fails the test unless every field has its caption, its kind and its list items in order.
void expectFields(const Screen &screen, const ExpectedFields &fields);

/// Fails the test unless every field has its initial text.
void expectFreshTexts(const Screen &screen, const ExpectedFields &fields);

/// Fails the test unless every visible field shows its help when Tab reaches it.
void expectHelpOnFocus(Screen &screen, const char *helpLabel, const ExpectedFields &fields);

/// Fails the test unless clicking a visible, focused field shows its help exactly if `helpOnClick`
/// is set.
void expectHelpOnClick(Screen &screen, const char *helpLabel, const ExpectedFields &fields);

} // namespace tarvold::testing
