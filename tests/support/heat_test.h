#pragma once

#include "support/flow_test.h"

#include <QPoint>

class QScrollBar;

namespace tarvold::testing {

/// The program on a screen with a feud heat bar, HScroll1, which Label8 tells of.
class HeatTest : public FlowTest
{
protected:
    HeatTest(const FlowPath &flow, const char *screen);

    QScrollBar &bar();
    QString shown() { return text(m_screen, "Label8"); }

    /// Presses a key on the bar, which has the focus.
    void key(Qt::Key key);

    /// The middle of the thumb.
    QPoint thumb();

    /// Drags the thumb to the right end without letting it go; gives the place it was dragged from.
    QPoint startDrag();

    /// Drags the thumb to the right end and lets it go, with what the label is to show before
    /// and after that.
    void expectLabelFollowsOnlyWhenLetGo(const QString &before, const QString &after);

    /// Fails the test unless Tab reaches the bar, each key and wheel turn moves it by one, and so
    /// do its arrows and its trough.
    void expectStepsOfOne();

    /// Fails the test unless the value stays between 1 and 100.
    void expectStaysInRange();

    const char *m_screen;

private:
    QPoint rightEnd();
};

} // namespace tarvold::testing
