#pragma once

#include "support/editor_test.h"

#include <vector>

namespace tarvold::testing {

/// A flow of the program, from the main menu's button to the screen with the commentary.
struct FlowPath
{
    const char *button;                ///< on the main menu
    std::vector<const char *> screens; ///< in their order, the commentary screen last
    const char *fileBox;               ///< on the main menu
    const char *file;                  ///< what that box holds at first
    const char *missing;               ///< told when the first line is empty
    const char *question;              ///< asked before the record is written
};

extern const FlowPath kNormalPath;
extern const FlowPath kRunInPath;
extern const FlowPath kTurnPath;
extern const FlowPath kInterviewPath;
extern const FlowPath kTalkShowPath;

/// A value that a user puts into a control.
struct Entry
{
    const char *control;
    QString value;
};

/// The whole program, to be walked through along its flows.
class FlowTest : public EditorTest
{
protected:
    /// Starts the flow and goes on with ">>" to the given one of its screens.
    void goTo(const FlowPath &flow, const char *screen);

    /// Starts the flow and goes on to its commentary.
    void goToCommentary(const FlowPath &flow) { goTo(flow, flow.screens.back()); }

    /// Goes back with "<<" from the commentary to the main menu.
    void goBack(const FlowPath &flow);

    /// Leaves the first screen of the flow for the main menu.
    void leave(const FlowPath &flow);

    /// Presses the button that adds the record, says Yes and acknowledges the success.
    void save(const FlowPath &flow);

    /// Puts values into the screen that is to be seen: types into boxes, picks in lists and steps
    /// scroll bars with the keyboard.
    void fill(const char *screen, const std::vector<Entry> &entries);

    /// Fails the test unless the controls hold these values.
    void expectTexts(const char *screen, const std::vector<Entry> &expected);

    /// Fails the test unless Tab goes through exactly these controls, which stand below each other
    /// but for the two buttons.
    void expectStops(const char *screen, const std::vector<const char *> &names);

    void expectReturnQuestion(Answer answer);

    /// What a control holds from now on; never a choice of the user's.
    void given(const char *screen, const char *control, const QString &text);

    /// The lines of a file, each ended by CR LF.
    static QByteArray asFile(const std::vector<QByteArray> &lines);
};

} // namespace tarvold::testing
