#pragma once

#include <QApplication>
#include <QColor>
#include <QPalette>
#include <QStyle>

/// The palettes that the pictures and the tests of the look are made with.
namespace tarvold::testing {

/// A dark palette such as desktops bring: light text on grey, and on nearly black in boxes.
inline QPalette darkPalette()
{
    QPalette palette(QColor(0x35, 0x35, 0x35), QColor(0x2A, 0x2A, 0x2A));
    palette.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    palette.setColor(QPalette::Highlight, QColor(0x3D, 0x8E, 0xC9));
    return palette;
}

/// Takes the dark palette as Qt takes one from the desktop: past the program's style,
/// which mends what could not be told apart.
inline void useDarkPalette()
{
    QPalette palette = darkPalette();
    QApplication::style()->polish(palette);
    QApplication::setPalette(palette);
}

} // namespace tarvold::testing
