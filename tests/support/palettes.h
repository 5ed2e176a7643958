#pragma once

#include <QApplication>
#include <QColor>
#include <QPalette>
#include <QStyle>

/// The palettes for pictures and for the tests of the look.
namespace tarvold::testing {

/// A typical dark palette of a desktop: light text on grey, and on nearly black in boxes.
inline QPalette darkPalette()
{
    QPalette palette(QColor(0x35, 0x35, 0x35), QColor(0x2A, 0x2A, 0x2A));
    palette.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    palette.setColor(QPalette::Highlight, QColor(0x3D, 0x8E, 0xC9));
    return palette;
}

/// Applies the dark palette as Qt applies the desktop's: after the program's style has polished it,
/// which fixes low contrast.
inline void useDarkPalette()
{
    QPalette palette = darkPalette();
    QApplication::style()->polish(palette);
    QApplication::setPalette(palette);
}

} // namespace tarvold::testing
