#pragma once

#include <QTabWidget>

namespace tarvold::records {

/// The views of a record, one below the other's tab. The height that they ask for is the least that
/// the view in front needs, as what there is beyond that is theirs anyway.
class RecordTabs : public QTabWidget
{
    Q_OBJECT
public:
    explicit RecordTabs(QWidget *parent = nullptr);

    /// Tells how high a part of the window is in which they can be scrolled to. A view that scrolls
    /// by itself asks for no more than that.
    void setRoom(int height);

    bool hasHeightForWidth() const override { return false; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    int m_room = QWIDGETSIZE_MAX;
};

} // namespace tarvold::records
