#pragma once

#include <QListView>

#include <optional>

namespace tarvold {

/// The list box of all screens: one row can be selected, none need be, and length does not matter.
///
/// Nothing looks selected until the user selects it; Qt would mark the first row as soon
/// as the list has the focus.
class ListBox : public QListView
{
    Q_OBJECT
public:
    explicit ListBox(QWidget *parent = nullptr);

    /// The selected row, if there is one.
    std::optional<int> selectedRow() const;

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};

} // namespace tarvold
