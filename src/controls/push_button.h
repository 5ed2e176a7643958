#pragma once

#include <QPushButton>

namespace tarvold {

/// The button of all screens. Enter presses the one that has the focus, once however long it is
/// held.
class PushButton : public QPushButton
{
    Q_OBJECT
public:
    explicit PushButton(const QString &caption, QWidget *parent = nullptr);

    /// Lets keys press the button from anywhere on its screen, once however long they are held; it
    /// does not wait for an animation, as Qt's own shortcuts of buttons do. A hint shows
    /// them to the mouse, and assistive technology tells them. \param name what the button does,
    /// for a caption that is no word; else empty
    void setKeys(const QKeySequence &keys, const QString &name = {});

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace tarvold
