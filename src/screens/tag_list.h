#pragma once

#include "controls/combo_box.h"

namespace tarvold {

/// The list of tags: a combo box that accepts no typed text.
///
/// It shows any text that the program sets. A letter opens the list at the first item that starts
/// with it, and more letters continue that search, as Qt's keyboard search does in any opened list.
/// A click anywhere on the box opens the list.
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
