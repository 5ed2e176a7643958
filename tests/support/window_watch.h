#pragma once

#include <QObject>

namespace tarvold::testing {

/// Watches the windows of the program while it lives: there must always be one to see.
class WindowWatch : public QObject
{
public:
    WindowWatch();

    /// Whether there was a moment without any window to see.
    bool sawNone() const { return m_sawNone; }

    /// Whether two windows were seen at once, as when the next one comes before the other goes.
    bool sawTwo() const { return m_sawTwo; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_sawNone = false;
    bool m_sawTwo = false;
};

} // namespace tarvold::testing
