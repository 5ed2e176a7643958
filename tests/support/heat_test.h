#pragma once

#include "support/flow_test.h"

#include <QPoint>

class QScrollBar;

namespace tarvold::testing {

/// The program, showing a screen with a feud heat bar, HScroll1, whose value Label8 shows.
class HeatTest : public FlowTest
{
protected:
    HeatTest(const FlowPath &flow, const char *screen);

    QScrollBar &bar();
    QString shown() { return text(m_screen, "Label8"); }

    /// Presses a key on the bar, which must have the focus.
    void key(Qt::Key key);

    /// The centre of the thumb.
    QPoint thumb();

    /// Drags the thumb to the right end without releasing it; returns where the drag started.
    QPoint startDrag();

    /// Drags the thumb to the right end and releases it. The label must show `before` until then
    /// and `after` from then on.
    void expectLabelFollowsOnlyWhenLetGo(const QString &before, const QString &after);

    /// Fails the test unless Tab reaches the bar and every key, wheel notch, arrow click and trough
    /// click changes it by one.
    void expectStepsOfOne();

    /// Fails the test unless the value stays between 1 and 100.
    void expectStaysInRange();

    const char *m_screen;

private:
    QPoint rightEnd();
};

} // namespace tarvold::testing
