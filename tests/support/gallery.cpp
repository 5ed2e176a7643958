// Makes a picture of every screen, to be looked at: gallery FOLDER [--dark]

#include "editor.h"
#include "endings/commentary_line.h"
#include "endings/ending_entry.h"
#include "endings/normal_commentary.h"
#include "shell/fonts.h"

#include <QApplication>
#include <QDir>
#include <QStyleFactory>
#include <QTest>

namespace {

QPalette darkPalette()
{
    QPalette palette(QColor(0x35, 0x35, 0x35), QColor(0x2A, 0x2A, 0x2A));
    palette.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    palette.setColor(QPalette::Highlight, QColor(0x3D, 0x8E, 0xC9));
    return palette;
}

} // namespace

int main(int argc, char *argv[])
{
    using namespace tarvold;

    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QStringList arguments = QApplication::arguments();
    if (arguments.contains(QStringLiteral("--dark"))) {
        QApplication::setPalette(darkPalette());
    }
    fonts::apply();

    const QDir folder(arguments.value(1, QStringLiteral(".")));
    Editor editor;
    editor.start();
    endingentry::enter(editor.screens(), MatchEnding::Normal);
    editor.screens().setText({"Form7", "Text1"}, QStringLiteral("<att1fullname> wins it."));
    editor.screens().get<Form7>().control<CommentaryLine>("Text2").setMarked(true);
    for (const char *name : {"Form1", "Form4", "Form5", "Form6", "Form7", "Form16", "Form3"}) {
        Screen &screen = editor.screens()[name];
        screen.show();
        if (!QTest::qWaitForWindowExposed(&screen)) {
            return 1;
        }
        QTest::qWait(50);
        screen.grab().save(folder.filePath(screen.objectName() + QStringLiteral(".png")));
        screen.hide();
    }
    return 0;
}
