#include "controls/look.h"

#include <QApplication>
#include <QFont>

#include <gtest/gtest.h>

int main(int argc, char *argv[])
{
    ::testing::InitGoogleTest(&argc, argv);
    // Headless by default; set QT_QPA_PLATFORM to watch a test.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    // Consecutive clicks of a test are never a double click.
    QApplication::setDoubleClickInterval(0);
    // Simulates the text size that a user has set on the desktop, in points.
    if (const double points = qEnvironmentVariable("TARVOLD_TEXT_SIZE").toDouble(); points > 0) {
        QFont font = QApplication::font();
        font.setPointSizeF(points);
        QApplication::setFont(font);
    }
    tarvold::look::apply();
    return RUN_ALL_TESTS();
}
