#pragma once

#include <QString>

class QWidget;

/// The message boxes of all screens: modal, without an icon, plain text.
namespace tarvold::messagebox {

/// The title on the match-ending and segment screens.
inline constexpr char kTitle[] = "Tarvold Data Editor";

/// Shows a message; returns when the user has pressed OK.
void notice(QWidget *parent, const QString &title, const QString &text);

/// Shows a message and offers an action; returns `true` if the user chose it. Enter, Escape and
/// closing the box mean OK.
/// \param action the caption of the button beside OK; "&" marks its mnemonic
bool offer(QWidget *parent, const QString &title, const QString &text, const QString &action);

/// What Enter answers: Yes where Yes saves, No where Yes discards something.
enum class EnterMeans { Yes, No };

/// Asks a question; returns `true` for Yes. Escape and closing the box mean No.
bool question(QWidget *parent, const QString &title, const QString &text, EnterMeans enter);

} // namespace tarvold::messagebox
