#pragma once

#include "controls/text_box.h"
#include "support/boxes.h"
#include "support/events.h"

#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

#include <gtest/gtest.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

/// A window for testing a single control: the control that add() puts into it, and below that an
/// ordinary text box, `elsewhere`.
class WindowTest : public ::testing::Test
{
public:
    WindowTest()
    {
        window.setObjectName(u"window"_s);
        m_column = new QVBoxLayout(&window);
        m_column->addWidget(&elsewhere);
        elsewhere.setObjectName(u"elsewhere"_s);
    }
    ~WindowTest() override { boxes.checkAllCame(); }

protected:
    /// Puts the control first in the window, shows the window, and gives the control the focus.
    void add(QWidget &control)
    {
        m_column->insertWidget(0, &control);
        QWidget::setTabOrder(&control, &elsewhere);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        control.setFocus(Qt::OtherFocusReason);
    }

    static QString title() { return u"Tarvold Data Editor"_s; }

    Boxes boxes;
    QWidget window;
    TextBox elsewhere;

private:
    QVBoxLayout *m_column;
};

} // namespace tarvold::testing
