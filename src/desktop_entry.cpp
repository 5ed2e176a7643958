#include "desktop_entry.h"

#include <QApplication>
#include <QIcon>

namespace tarvold {

using namespace Qt::StringLiterals;

void applyDesktopEntry(const QString &name)
{
    QGuiApplication::setDesktopFileName(name);
    QIcon icon;
    for (const int size : {48, 128}) {
        icon.addFile(u":/org.example.tarvold.editor-%1.png"_s.arg(size));
    }
    QApplication::setWindowIcon(icon);
}

} // namespace tarvold
