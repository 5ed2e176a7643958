#pragma once

#include <QObject>

namespace tarvold::testing {

/// Watches the screens of the program while it lives: at least one must always be visible.
class WindowWatch : public QObject
{
public:
    WindowWatch();

    /// Whether no screen was visible at some moment.
    bool sawNone() const { return m_sawNone; }

    /// Whether two screens were visible at once, as when the next one is shown before the previous
    /// one is hidden.
    bool sawTwo() const { return m_sawTwo; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_sawNone = false;
    bool m_sawTwo = false;
};

} // namespace tarvold::testing
