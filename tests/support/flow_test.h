#pragma once

#include "datafiles/data_file_kind.h"
#include "support/editor_test.h"

#include <vector>

namespace tarvold::testing {

/// A flow of the program, from the main menu's button to the commentary screen.
struct FlowPath
{
    const char *button;                ///< on the main menu
    std::vector<const char *> screens; ///< in order, the commentary screen last
    const char *fileBox;               ///< on the main menu
    const char *file;                  ///< the initial text of that box
    const char *missing;               ///< shown when the first line is empty
    const char *question;              ///< asked before the record is written
    DataFileKind kind;                 ///< of that record

    RecordFormat format() const { return rowOf(kind).format; }
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

/// The whole program, with functions that go through its flows.
class FlowTest : public EditorTest
{
protected:
    /// Starts the flow and presses ">>" until the given screen is shown.
    void goTo(const FlowPath &flow, const char *screen);

    /// Starts the flow and goes on to its commentary screen.
    void goToCommentary(const FlowPath &flow) { goTo(flow, flow.screens.back()); }

    /// Goes back with "<<" from the commentary screen to the main menu.
    void goBack(const FlowPath &flow);

    /// Leaves the flow from its first screen for the main menu.
    void leave(const FlowPath &flow);

    /// Presses the button that adds the record, answers Yes and confirms the success message.
    void save(const FlowPath &flow);

    /// The control that a field of the flow's record is read from.
    QWidget &source(const FlowPath &flow, const RecordField &field);

    /// Enters values on the visible screen: types into boxes, picks from lists and moves scroll
    /// bars with the keyboard.
    void fill(const char *screen, const std::vector<Entry> &entries);

    /// Fails the test unless the controls have these values.
    void expectTexts(const char *screen, const std::vector<Entry> &expected);

    /// Fails the test unless Tab stops at exactly these controls, which are stacked vertically
    /// except for the two buttons.
    void expectStops(const char *screen, const std::vector<const char *> &names);

    void expectReturnQuestion(Answer answer);

    /// Sets the text of a control as the program does, not as a choice by the user.
    void given(const char *screen, const char *control, const QString &text);

    /// The content of a file with these lines, each ended by CR LF.
    static QByteArray asFile(const std::vector<QByteArray> &lines);
};

} // namespace tarvold::testing
