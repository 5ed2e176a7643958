#pragma once

#include <QHash>
#include <QScrollArea>

class QLayout;

namespace tarvold {

class BoundedColumn;

/// The part of a screen that scrolls if the display is too small for it.
///
/// Before it scrolls, the gaps in its content shrink; where there is room to spare, they grow a
/// little. Its size hint is the size of its content, it is not a Tab stop itself, and it scrolls to
/// keep the focused control visible.
class ScrollPane : public QScrollArea
{
    Q_OBJECT
public:
    explicit ScrollPane(QWidget *parent = nullptr);

    /// The layout that holds the content.
    BoundedColumn &column() { return *m_column; }

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void reveal(const QWidget &control);
    void rememberGaps();
    void setGaps(int step);
    /// The height that the content needs with its gaps as they are now.
    int neededHeight() const;
    /// Makes the gaps as large as the height allows, within limits.
    void fitGaps();

    BoundedColumn *m_column;
    QHash<QLayout *, int> m_gaps; ///< the normal vertical spacing of each layout
    QSize m_fittedRoom;           ///< for which fitGaps() ran last
    int m_fittedHeight = -1;      ///< of the content after that
};

} // namespace tarvold
