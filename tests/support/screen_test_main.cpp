#include "controls/look.h"

#include <QApplication>
#include <QFont>

#include <gtest/gtest.h>

int main(int argc, char *argv[])
{
    ::testing::InitGoogleTest(&argc, argv);
    // Headless by construction; a developer may ask for another platform to watch.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    // Two clicks of a test follow each other faster than any hand; they are never a double click.
    QApplication::setDoubleClickInterval(0);
    // The text size that a user has set on the desktop, in points.
    if (const double points = qEnvironmentVariable("TARVOLD_TEXT_SIZE").toDouble(); points > 0) {
        QFont font = QApplication::font();
        font.setPointSizeF(points);
        QApplication::setFont(font);
    }
    tarvold::look::apply();
    return RUN_ALL_TESTS();
}
