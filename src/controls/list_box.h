#pragma once

#include <QListView>
#include <QStyledItemDelegate>

#include <optional>

namespace tarvold {

/// Draws the rows of all lists, and shows the text of a row that is too wide as a tooltip.
class ListRows : public QStyledItemDelegate
{
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;
};

/// The list box of all screens: at most one row is selected, and the list may be of any length.
///
/// Nothing looks selected until the user selects it; Qt would mark the first row as soon as the
/// list gets the focus.
class ListBox : public QListView
{
    Q_OBJECT
public:
    explicit ListBox(QWidget *parent = nullptr);

    /// The selected row, or nothing.
    std::optional<int> selectedRow() const;

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};

} // namespace tarvold
