#pragma once

#include <QVBoxLayout>
#include <QWidget>

namespace tarvold {

/// A column that stops growing at a maximum size. The rest of its place stays empty, beside it and
/// below it, so that text lines stay short enough to read in a wide window.
class BoundedColumn : public QVBoxLayout
{
    Q_OBJECT
public:
    using QVBoxLayout::QVBoxLayout;

    /// Sets the maximum size, in device-independent pixels; QWIDGETSIZE_MAX is no maximum. The
    /// height may exceed it if the content needs more.
    void setMost(const QSize &most);

    void setGeometry(const QRect &place) override;
    int heightForWidth(int width) const override;
    int minimumHeightForWidth(int width) const override;

private:
    QSize m_most = {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
};

} // namespace tarvold
