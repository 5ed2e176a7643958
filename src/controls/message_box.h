#pragma once

#include <QString>

class QWidget;

/// The message boxes of all screens: modal, without an icon, plain text.
namespace tarvold::messagebox {

/// The title on the match-ending and segment screens.
inline constexpr char kTitle[] = "Tarvold Data Editor";

/// Tells something; returns once the user pressed OK.
void notice(QWidget *parent, const QString &title, const QString &text);

/// Tells something and offers to do something about it; `true` when the user wants that. Enter,
/// Escape and the box's own close button mean OK.
/// \param action the caption of the button beside OK; an "&" makes the next letter its key
bool offer(QWidget *parent, const QString &title, const QString &text, const QString &action);

/// What the Enter key answers: Yes where Yes saves, No where Yes loses something.
enum class EnterMeans { Yes, No };

/// Asks something; `true` for Yes. Escape and the box's own close button mean No.
bool question(QWidget *parent, const QString &title, const QString &text, EnterMeans enter);

} // namespace tarvold::messagebox
