#pragma once

#include <QWidget>

namespace tarvold {

/// Tells those who hear the screen what others see: takes no room and shows nothing.
///
/// It is a notification to assistive technology, which reads out its name each time that it is
/// shown anew; Qt has no announcements of its own before version 6.8.
class Announcement : public QWidget
{
    Q_OBJECT
public:
    explicit Announcement(QWidget *parent = nullptr);

    /// Has a text read out.
    void tell(const QString &text);

protected:
    void hideEvent(QHideEvent *event) override;
};

} // namespace tarvold
