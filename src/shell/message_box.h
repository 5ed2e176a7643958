#pragma once

#include <QString>

class QWidget;

/// The message boxes of all screens: modal, without an icon, plain text.
namespace tarvold::messagebox {

/// The title on the match-ending and segment screens.
inline constexpr char kTitle[] = "Tarvold Data Editor";

/// Tells something; returns once the user pressed OK.
void notice(QWidget *parent, const QString &title, const QString &text);

/// What the Enter key answers: Yes where Yes saves, No where Yes loses something.
enum class EnterMeans { Yes, No };

/// Asks something; `true` for Yes. Escape and the box's own close button mean No.
bool question(QWidget *parent, const QString &title, const QString &text, EnterMeans enter);

} // namespace tarvold::messagebox
