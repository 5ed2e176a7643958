#pragma once

#include <QPushButton>

namespace tarvold {

/// The button of all screens. Enter presses the focused button, once per key press even if held.
class PushButton : public QPushButton
{
    Q_OBJECT
public:
    explicit PushButton(const QString &caption, QWidget *parent = nullptr);

    /// Sets a shortcut that presses the button from anywhere on its screen, once per key press even
    /// if held. It acts at once, without the animation of Qt's own button shortcuts. The tooltip
    /// shows the keys, and assistive technology announces them.
    /// \param name what the button does, if its caption is not a word; else empty
    void setKeys(const QKeySequence &keys, const QString &name = {});

    /// Sets what the tooltip and assistive technology tell before the keys, such as the file that
    /// the button writes to. It may be of any length.
    void setPurpose(const QString &purpose);

    /// The same, but only in the tooltip: while the user types what it depends on, screen readers
    /// would read out each change.
    void showPurpose(const QString &purpose);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QString withKeys(const QString &purpose) const;

    QString m_keys; ///< as the tooltip shows them
};

} // namespace tarvold
