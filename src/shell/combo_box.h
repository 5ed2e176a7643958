#pragma once

#include <QComboBox>

namespace tarvold {

/// The combo box of all screens: a fixed list beside a box that accepts any text.
///
/// What is typed stays exactly as typed; nothing completes, corrects or stores it. Picking an item
/// in the opened list, by mouse or keyboard, is the only choice, and picking the item that is
/// already shown is one too. Down, F4 and Alt+Down open the list; no other key and no wheel turn
/// changes a closed one.
class ComboBox : public QComboBox
{
    Q_OBJECT
public:
    explicit ComboBox(QWidget *parent = nullptr);

    /// Shows a text, be it in the list or not. This is not a choice.
    void setText(const QString &text);

    void showPopup() override;

signals:
    /// The user picked an item in the opened list; the box already shows it.
    void chosen();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private slots:
    /// Takes the list's word for a choice, once each time that the list was opened.
    void choose();

private:
    bool m_isListOpen = false;
};

} // namespace tarvold
