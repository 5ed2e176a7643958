#include "editor.h"
#include "shell/look.h"

#include <QApplication>

#include <csignal>

int main(int argc, char *argv[])
{
#ifdef SIGXFSZ
    // A file that reaches a size limit is an error to be told, and no reason to end.
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tarvold-editor"));
    // Windows hide and show as the user moves on; only the main menu ends the program.
    QApplication::setQuitOnLastWindowClosed(false);
    tarvold::look::apply();

    tarvold::Editor editor;
    QObject::connect(&editor, &tarvold::Editor::exitRequested, &application,
                     [] { QCoreApplication::exit(0); });
    editor.start();
    return QApplication::exec();
}
