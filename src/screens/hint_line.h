#pragma once

#include <QLabel>

namespace tarvold {

/// A quiet line of text for hints. It always takes the room of one line, so that nothing moves when
/// a hint appears; a hint that is too long is elided, and all are shown in the tooltip. For
/// assistive technology the first one is its name and the others are its description.
class HintLine : public QLabel
{
    Q_OBJECT
public:
    explicit HintLine(QWidget *parent = nullptr);

    /// Shows the first of the hints and how many more there are; none clears the line.
    void showHints(const QStringList &hints);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void elide();

    QStringList m_hints;
    QString m_hint; ///< the first of them
    QString m_more; ///< how many more hints there are; never elided
};

} // namespace tarvold
