#include "controls/look.h"
#include "editor.h"

#include <QApplication>
#include <QIcon>

#include <csignal>

namespace {

using namespace Qt::StringLiterals;

/// Links the windows to the desktop entry, and sets its icon for all windows.
void applyDesktopEntry()
{
    const QString name = u"org.example.tarvold.editor"_s;
    QGuiApplication::setDesktopFileName(name);
    QIcon icon;
    for (const int size : {48, 128}) {
        icon.addFile(u":/%1-%2.png"_s.arg(name).arg(size));
    }
    QApplication::setWindowIcon(icon);
}

} // namespace

int main(int argc, char *argv[])
{
#ifdef SIGXFSZ
    // Report a file size limit as an error instead of ending the program.
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"tarvold-editor"_s);
    // Screens are hidden and shown as the user moves on; only the main menu quits.
    QApplication::setQuitOnLastWindowClosed(false);
    applyDesktopEntry();
    tarvold::look::apply();

    tarvold::Editor editor;
    QObject::connect(&editor, &tarvold::Editor::exitRequested, &application,
                     [] { QCoreApplication::exit(0); });
    editor.start();
    return QApplication::exec();
}
