#include "controls/look.h"
#include "desktop_entry.h"
#include "editor.h"
#include "portable.h"

#include <QApplication>

#include <csignal>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
#ifdef SIGXFSZ
    // Report a file size limit as an error instead of ending the program.
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    tarvold::portable::loadFontsAhead();
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"tarvold-editor"_s);
    // Screens are hidden and shown as the user moves on; only the main menu quits.
    QApplication::setQuitOnLastWindowClosed(false);
    tarvold::applyDesktopEntry(u"org.example.tarvold.editor"_s);
    tarvold::look::apply();
    tarvold::portable::followDarkDesktop(application);

    tarvold::Editor editor;
    QObject::connect(&editor, &tarvold::Editor::exitRequested, &application,
                     [] { QCoreApplication::exit(0); });
    editor.start();
    return QApplication::exec();
}
