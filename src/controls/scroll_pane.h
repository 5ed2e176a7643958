#pragma once

#include <QScrollArea>

class QVBoxLayout;

namespace tarvold {

/// The part of a screen that scrolls if the display is too small for it.
///
/// Its size hint is the size of its content, it is not a Tab stop itself, and it scrolls to keep
/// the focused control visible.
class ScrollPane : public QScrollArea
{
    Q_OBJECT
public:
    explicit ScrollPane(QWidget *parent = nullptr);

    /// The layout that holds the content.
    QVBoxLayout &column() { return *m_column; }

    QSize sizeHint() const override;

private:
    QVBoxLayout *m_column;
};

} // namespace tarvold
