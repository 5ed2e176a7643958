#pragma once

#include <QLabel>

namespace tarvold::records {

/// Shows a path in one line. Where the room is too small its middle is left out, so that the file's
/// name stays; the tooltip and assistive technology tell it whole.
class PathLabel : public QLabel
{
    Q_OBJECT
public:
    explicit PathLabel(QWidget *parent = nullptr);

    void show(const QString &path);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void elide();

    QString m_path;
};

} // namespace tarvold::records
