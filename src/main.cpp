#include "controls/look.h"
#include "desktop_entry.h"
#include "editor.h"
#include "fonts_ahead.h"

#include <QApplication>

#include <csignal>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
#ifdef SIGXFSZ
    // Report a file size limit as an error instead of ending the program.
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    tarvold::loadFontsAhead();
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"tarvold-editor"_s);
    // Screens are hidden and shown as the user moves on; only the main menu quits.
    QApplication::setQuitOnLastWindowClosed(false);
    tarvold::applyDesktopEntry(u"org.example.tarvold.editor"_s);
    tarvold::look::apply();

    tarvold::Editor editor;
    QObject::connect(&editor, &tarvold::Editor::exitRequested, &application,
                     [] { QCoreApplication::exit(0); });
    editor.start();
    return QApplication::exec();
}
