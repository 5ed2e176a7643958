#include "controls/combo_box.h"
#include "controls/look.h"
#include "desktop_entry.h"
#include "portable.h"
#include "records/command_line.h"
#include "records/file_chooser.h"
#include "records/records_window.h"

#include <QApplication>

#include <csignal>

namespace {

using namespace Qt::StringLiterals;
using tarvold::records::RecordsWindow;
using tarvold::records::commandline::Command;

/// Opens a window for each file, or one that offers files. The program ends with its last window.
int runWithWindows(int &argc, char **argv, const Command &command)
{
    tarvold::portable::loadFontsAhead();
    QApplication application(argc, argv);
    tarvold::applyDesktopEntry(u"org.example.tarvold.records"_s);
    tarvold::look::apply();
    tarvold::portable::followDarkDesktop(application);
    tarvold::ComboBox::checkQt();

    const auto open = [kind = command.kind](const QStringList &files) {
        for (const QString &file : files) {
            RecordsWindow::open(file, kind);
        }
    };
    if (command.files.isEmpty()) {
        auto *chooser = new tarvold::records::FileChooser; // deletes itself
        QObject::connect(chooser, &tarvold::records::FileChooser::chosen, &application, open);
        chooser->show();
    } else {
        open(command.files);
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
#ifdef SIGXFSZ
    // Report a file size limit as an error instead of ending the program.
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    QCoreApplication::setApplicationName(u"tarvold-records"_s);
    QCoreApplication::setApplicationVersion(QLatin1StringView(TARVOLD_VERSION));
    Command command;
    {
        const QCoreApplication withoutDisplay(argc, argv);
        command = tarvold::records::commandline::read(QCoreApplication::arguments());
        if (const auto status = tarvold::records::commandline::runWithoutWindow(command)) {
            return *status;
        }
    }
    return runWithWindows(argc, argv, command);
}
