#pragma once

#include "support/editor_test.h"
#include "support/folder_test.h"
#include "support/stipulation_records.h"

#include <QListView>

namespace tarvold::testing {

/// The text of a literal.
inline QString utf8(const char *text)
{
    return QString::fromUtf8(text);
}

/// The name that the main menu gives the stipulations file when the program starts.
inline constexpr char kFile[] = "stipulations.tvd";

/// A message box with OK only.
struct Notice
{
    const char *title;
    const char *text;
};

/// The bytes of a stipulation that is made with nothing but a name.
QByteArray untouched(const QByteArray &name);

/// The whole program, driven through its stipulation screens.
class StipulationTest : public EditorTest
{
protected:
    /// Writes the stipulations file and goes to the list by the main menu.
    void open(const QByteArray &file);

    /// Ends the program and starts it again in the same folder.
    void startAnew();

    QListView &list();
    std::vector<std::string> listed();
    void select(int row);
    bool anySelected();

    void createNew() { press("Form16", "Command1"); }
    void edit(int row);
    void remove(int row, const QString &shown, Answer answer = Answer::Yes);
    void cancel() { press("Form3", "Command1"); }

    /// Presses "Save This Stipulation" and expects the form to be left.
    void save();

    /// Presses "Save This Stipulation" and expects these notices and the form to stay.
    void saveRefused(const std::vector<Notice> &notices);

    /// Types over a control of the form.
    void put(const char *name, const char *text) { type("Form3", name, utf8(text)); }
    QString shown(const char *name) { return text("Form3", name); }
    QString listPosition() { return text("Form16", "listpos"); }
};

} // namespace tarvold::testing
