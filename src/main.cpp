#include "controls/look.h"
#include "editor.h"

#include <QApplication>
#include <QIcon>

#include <csignal>

namespace {

using namespace Qt::StringLiterals;

/// Tells the desktop which of its menu entries this is, and gives all windows the icon of that.
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
    // A file that reaches a size limit is an error to be told, and no reason to end.
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"tarvold-editor"_s);
    // Windows hide and show as the user moves on; only the main menu ends the program.
    QApplication::setQuitOnLastWindowClosed(false);
    applyDesktopEntry();
    tarvold::look::apply();

    tarvold::Editor editor;
    QObject::connect(&editor, &tarvold::Editor::exitRequested, &application,
                     [] { QCoreApplication::exit(0); });
    editor.start();
    return QApplication::exec();
}
