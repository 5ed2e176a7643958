#pragma once

#include <QScrollArea>

#include <functional>

class QVBoxLayout;

namespace tarvold::records {

/// A column that scrolls as a whole where its window is too low for it.
///
/// It keeps the control with the focus in sight: when the focus comes, when the window changes its
/// size, and when content above that control comes or goes. It is no Tab stop itself. Create it
/// after the scroll areas inside of it, which have to scroll first.
class PaneScroll : public QScrollArea
{
    Q_OBJECT
public:
    explicit PaneScroll(QWidget *parent = nullptr);

    /// The layout that holds the content.
    QVBoxLayout &column() { return *m_column; }

    /// Scrolls no further than to show a part of the content; of a part that is higher than the
    /// pane, as much as there is room for.
    void reveal(const QWidget &part);

    /// Changes the content. The control with the focus stays in its place if it is in sight.
    void change(const std::function<void()> &changeIt);

    QSize minimumSizeHint() const override;

signals:
    /// There is another height for the content.
    void heightChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// The control with the focus if it is a part of the content and in sight; else null.
    QWidget *focusInSight(const QSize &room) const;
    int heightOf(const QWidget &part) const;

    QVBoxLayout *m_column;
    int m_leastWidth = 0; ///< that the layout around knows
};

} // namespace tarvold::records
