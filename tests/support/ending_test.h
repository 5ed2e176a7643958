#pragma once

#include "support/editor_test.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

/// The normal match ending flow, from the main menu to its commentary.
class EndingTest : public EditorTest
{
protected:
    static constexpr const char *kFlow[] = {"Form4", "Form5", "Form6", "Form7"};

    /// Starts the flow and presses ">>" until the given screen is shown.
    void goTo(const char *screen)
    {
        press("Form1", "Command3");
        for (const char *step : kFlow) {
            if (qstrcmp(step, screen) == 0) {
                break;
            }
            press(step, "Command2");
        }
    }

    /// Leaves the flow from its first screen.
    void leave()
    {
        boxes.expectQuestion(title(), kReturnQuestion, Answer::Yes);
        press("Form4", "Command1");
    }

    /// Presses "Add This Finish", answers Yes and confirms the success message.
    void save()
    {
        boxes.expectQuestion(title(), kSaveQuestion, Answer::Yes);
        boxes.expectNotice(title(), u"Saved OK."_s);
        press("Form7", "Command1");
    }

    /// Shows every screen of the flow and returns to the main menu.
    void createAllScreens()
    {
        goTo("Form7");
        press("Form7", "Command2");
        press("Form6", "Command1");
        press("Form5", "Command1");
        leave();
    }

    const QString kReturnQuestion =
        u"This will return you to the main menu and lose any changes you haven't saved. Continue?"_s;
    const QString kSaveQuestion = u"Add this finish to the file?"_s;
};

} // namespace tarvold::testing
