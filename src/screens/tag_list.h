#pragma once

#include "controls/combo_box.h"

namespace tarvold {

/// The list of tags: a combo box into which nothing is typed.
///
/// It shows any text that the program sets, but takes none from the user. A letter opens the list
/// at the first item that starts with it, more letters go on looking there, and so does Qt's
/// keyboard search in any opened list. A click anywhere on the box opens the list.
class TagList : public ComboBox
{
    Q_OBJECT
public:
    explicit TagList(QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void openAt(const QString &letter);
};

} // namespace tarvold
