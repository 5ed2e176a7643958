#pragma once

#include <QAbstractButton>

class QLineEdit;

namespace tarvold::records {

/// A cross at the end of a text box that empties it. It is there while the box holds text, and
/// leaves the focus in the box.
///
/// It is no Tab stop: the box should offer a key for the same, such as Escape. Qt's own button of
/// this kind is smaller than a target should be.
class ClearButton : public QAbstractButton
{
    Q_OBJECT
public:
    /// \param box which owns it
    /// \param name for the tooltip and assistive technology, as it has no caption
    /// \param key that does the same, for both as well
    ClearButton(QLineEdit &box, const QString &name, const QString &key);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLineEdit &m_box;
};

} // namespace tarvold::records
