#pragma once

#include <QPushButton>

namespace tarvold {

/// The button of all screens. Enter presses the one that has the focus, and its keys press it at
/// once; the toolkit would show it being pressed for a tenth of a second first.
class PushButton : public QPushButton
{
    Q_OBJECT
public:
    explicit PushButton(const QString &caption, QWidget *parent = nullptr);

    /// Lets keys press the button from anywhere on its screen. A hint shows them to the mouse, and
    /// assistive technology tells them.
    /// \param name what the button does, for a caption that is no word; else empty
    void setKeys(const QKeySequence &keys, const QString &name = {});

protected:
    bool event(QEvent *event) override;
};

} // namespace tarvold
