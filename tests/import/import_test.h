#pragma once

#include "controls/list_box.h"
#include "support/editor_test.h"
#include "support/folder_test.h"

#include <array>

namespace tarvold::testing {

/// A kind of record on the import screen.
struct ImportKind
{
    const char *name; ///< of the kind's tests
    const char *button;
    const char *caption;
    const char *whatimport;
    const char *target; ///< the file name that the screen suggests
    int lines;
};

void PrintTo(const ImportKind &kind, std::ostream *out);

/// In the order of the buttons.
extern const std::array<ImportKind, 6> kImportKinds;

/// The program with its import screen reached from the main menu.
class ImportTest : public EditorTest
{
protected:
    /// Presses the main menu's button.
    void enter();

    ListBox &files() { return screen("Form2").control<ListBox>("File1"); }
    QStringList listed();
    /// The selected file, or an empty name.
    QString selected();
    /// Clicks a file in the list.
    void select(const QString &file);

    /// Fails the test unless exactly the controls of this stage are visible.
    void expectStage1();
    void expectStage2();

    /// Presses "Import" and expects it to succeed.
    void import();
};

} // namespace tarvold::testing
