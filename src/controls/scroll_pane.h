#pragma once

#include <QScrollArea>

class QVBoxLayout;

namespace tarvold {

/// The part of a screen that scrolls where the display is too small for it, and nowhere else.
///
/// It asks for as much room as its content, is no stop for the Tab key itself, and keeps the
/// control that has the focus in sight.
class ScrollPane : public QScrollArea
{
    Q_OBJECT
public:
    explicit ScrollPane(QWidget *parent = nullptr);

    /// The column that all of its content stands in.
    QVBoxLayout &column() { return *m_column; }

    QSize sizeHint() const override;

private:
    QVBoxLayout *m_column;
};

} // namespace tarvold
