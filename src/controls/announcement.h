#pragma once

#include <QWidget>

namespace tarvold {

/// Announces text to screen readers. Takes no room and shows nothing.
///
/// It is a notification to assistive technology, which reads out its name whenever it is shown. Qt
/// has no announcements of its own before version 6.8.
class Announcement : public QWidget
{
    Q_OBJECT
public:
    explicit Announcement(QWidget *parent = nullptr);

    /// Makes screen readers read out a text.
    void tell(const QString &text);

protected:
    void hideEvent(QHideEvent *event) override;
};

} // namespace tarvold
