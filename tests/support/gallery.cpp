// Saves a picture of every screen: gallery FOLDER [--dark] [--points SIZE] [--size WIDTHxHEIGHT]
// With --records FILE it saves one of the records window of that file instead.

#include "controls/look.h"
#include "editor.h"
#include "endings/ending_commentary.h"
#include "endings/ending_flow.h"
#include "records/records_window.h"
#include "screens/commentary_line.h"
#include "segments/segment_flow.h"
#include "stipulations/stipulation_form.h"
#include "support/palettes.h"

#include <QApplication>
#include <QDir>
#include <QTest>

namespace {

using namespace Qt::StringLiterals;

constexpr const char *kScreens[] = {"Form1",  "Form4",  "Form5",  "Form6",  "Form7",  "Form8",
                                    "Form9",  "Form10", "Form11", "Form12", "Form13", "Form14",
                                    "Form15", "Form16", "Form17", "Form2",  "Form3"};

/// Fills the screens with sample content.
void prepare(tarvold::Screens &screens)
{
    using namespace tarvold;
    for (const MatchEnding kind : {MatchEnding::RunIn, MatchEnding::Turn, MatchEnding::Normal}) {
        endingflow::enter(screens, kind);
    }
    segmentflow::enterInterview(screens);
    segmentflow::enterTalkShow(screens);
    screens.setText({"Form7", "Text1"}, u"<att1fullname> wins it."_s);
    screens.get<Form7>().control<CommentaryLine>("Text2").setMarked(true);
    screens.get<Form3>().showDefaults(StipulationTable());
}

/// The size that all windows get; an invalid one leaves them at their default size.
QSize sizeFrom(const QStringList &arguments)
{
    const qsizetype at = arguments.indexOf(u"--size"_s);
    const QStringList sides = at < 0 ? QStringList() : arguments.value(at + 1).split(u'x');
    return sides.size() == 2 ? QSize(sides[0].toInt(), sides[1].toInt()) : QSize();
}

bool savePicture(QWidget &window, const QSize &size, const QDir &folder)
{
    if (size.isValid()) {
        window.resize(size);
    }
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) {
        return false;
    }
    QTest::qWait(50);
    const bool isSaved = window.grab().save(folder.filePath(window.objectName() + u".png"_s));
    window.hide();
    return isSaved;
}

} // namespace

int main(int argc, char *argv[])
{
    using namespace tarvold;

    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (const qsizetype at = arguments.indexOf(u"--points"_s); at >= 0) {
        QFont font = QApplication::font();
        font.setPointSizeF(arguments.value(at + 1).toDouble());
        QApplication::setFont(font);
    }
    look::apply();
    if (arguments.contains(u"--dark"_s)) {
        testing::useDarkPalette();
    }

    const QDir folder(arguments.value(1, u"."_s));
    const QSize size = sizeFrom(arguments);
    if (const qsizetype at = arguments.indexOf(u"--records"_s); at >= 0) {
        records::RecordsWindow window(arguments.value(at + 1));
        QTest::qWait(200);
        return savePicture(window, size, folder) ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    Editor editor;
    editor.start();
    prepare(editor.screens());
    for (const char *name : kScreens) {
        if (!savePicture(editor.screens()[name], size, folder)) {
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
