#pragma once

#include <QString>

class QWidget;

/// The message boxes of all windows: modal, without an icon, plain text.
namespace tarvold::messagebox {

/// The title on the match-ending and segment screens.
inline constexpr char kTitle[] = "Tarvold Data Editor";

/// What the user can't reach before the box is answered.
enum class Blocks {
    Program, ///< all windows
    Window,  ///< the window of the parent
};

/// Shows a message; returns when the user has pressed OK.
void notice(QWidget *parent, const QString &title, const QString &text,
            Blocks blocks = Blocks::Program);

/// Shows a message and offers an action; returns `true` if the user chose it. Enter, Escape and
/// closing the box mean OK.
/// \param action the caption of the button beside OK; "&" marks its mnemonic
bool offer(QWidget *parent, const QString &title, const QString &text, const QString &action,
           Blocks blocks = Blocks::Program);

/// What Enter answers: Yes where Yes saves, No where Yes discards something.
enum class EnterMeans { Yes, No };

/// Asks a question; returns `true` for Yes. Escape and closing the box mean No.
bool question(QWidget *parent, const QString &title, const QString &text, EnterMeans enter,
              Blocks blocks = Blocks::Program);

/// What becomes of changes that are not saved.
enum class Unsaved { Save, Discard, Cancel };

/// Asks what should become of changes before their window closes. Enter means Save; Escape and
/// closing the box mean Cancel. Blocks only the window of the parent.
Unsaved askUnsaved(QWidget *parent, const QString &title, const QString &text);

/// Asks whether to save changes before something else is done; returns `true` for Save. Enter means
/// Save; Escape and closing the box mean Cancel. Blocks only the window of the parent.
bool askSave(QWidget *parent, const QString &title, const QString &text);

} // namespace tarvold::messagebox
