#include "look/views.h"

#include "look/parts.h"
#include "screens/commentary_line.h"
#include "support/palettes.h"
#include "support/stipulation_records.h"

#include <QApplication>

#include <algorithm>
#include <string_view>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

const char *suffixOf(Colours colours)
{
    return colours == Colours::Dark ? "dark" : "light";
}

QByteArray manyStipulations()
{
    QByteArray bytes = stipulation("Intergender 6 Person Tag",
                                   "Falls Count Anywhere On The Boardwalk, In The Car Park And In "
                                   "Every Bar Of The Town Until The Sun Comes Up Over The Sea");
    for (int number = 1; number <= 2000; ++number) {
        bytes += stipulation("Singles", "Ladder Match " + QByteArray::number(number));
    }
    return bytes;
}

void writeManyFiles()
{
    for (int number = 1; number <= 200; ++number) {
        writeFile(qPrintable(u"more-%1.tvd"_s.arg(number)), {});
    }
    const QString longName = u"all-that-we-wrote-in-"_s + QString(150, u'x');
    writeFile(qPrintable(longName + u".tvd"_s), {});
}

} // namespace

const std::vector<View> kViews = {
    {"Form1", "Form1", nullptr},
    {"Form4OfANormalEnding", "Form4", &kNormalPath},
    {"Form5OfANormalEnding", "Form5", &kNormalPath},
    {"Form6OfANormalEnding", "Form6", &kNormalPath},
    {"Form7", "Form7", &kNormalPath},
    {"Form4OfARunIn", "Form4", &kRunInPath},
    {"Form5OfARunIn", "Form5", &kRunInPath},
    {"Form6OfARunIn", "Form6", &kRunInPath},
    {"Form8", "Form8", &kRunInPath},
    {"Form9", "Form9", &kRunInPath},
    {"Form4OfATurn", "Form4", &kTurnPath},
    {"Form5OfATurn", "Form5", &kTurnPath},
    {"Form6OfATurn", "Form6", &kTurnPath},
    {"Form10", "Form10", &kTurnPath},
    {"Form11", "Form11", &kTurnPath},
    {"Form12", "Form12", &kInterviewPath},
    {"Form13", "Form13", &kInterviewPath},
    {"Form14", "Form14", &kTalkShowPath},
    {"Form15", "Form15", &kTalkShowPath},
    {"Form17", "Form17", nullptr},
    {"Form16", "Form16", nullptr, {{"Form1", "Command1"}}},
    {"Form3", "Form3", nullptr, {{"Form1", "Command1"}, {"Form16", "Command1"}}},
    {"Form2", "Form2", nullptr, {{"Form1", "Command8"}}},
    {"Form2WithFiles", "Form2", nullptr, {{"Form1", "Command8"}, {"Form2", "Command4"}}},
};

std::string nameOf(const ::testing::TestParamInfo<Look> &row)
{
    return std::string(row.param.view.name) + '_' + suffixOf(row.param.colours);
}

void PrintTo(const Look &look, std::ostream *out)
{
    *out << look.view.name << ", " << suffixOf(look.colours);
}

std::vector<Look> allLooks()
{
    std::vector<Look> looks;
    for (const View &view : kViews) {
        looks.push_back({view, Colours::Light});
        looks.push_back({view, Colours::Dark});
    }
    return looks;
}

std::vector<Look> looksIn(Colours colours)
{
    std::vector<Look> looks = allLooks();
    std::erase_if(looks, [colours](const Look &look) { return look.colours != colours; });
    return looks;
}

std::vector<Look> looksOf(const std::vector<std::string> &views)
{
    std::vector<Look> looks = allLooks();
    std::erase_if(looks, [&views](const Look &look) {
        return std::find(views.begin(), views.end(), look.view.name) == views.end();
    });
    return looks;
}

PaletteGuard::PaletteGuard(Colours colours)
{
    if (colours == Colours::Dark) {
        useDarkPalette();
    } else {
        QApplication::setPalette(QPalette());
    }
}

PaletteGuard::~PaletteGuard()
{
    QApplication::setPalette(QPalette());
}

LookTest::LookTest() : PaletteGuard(GetParam().colours)
{
    writeFile("stipulations.tvd", manyStipulations());
    if (std::string_view(GetParam().view.screen) == "Form2") { // only this screen lists files
        writeManyFiles();
    }
}

Scene LookTest::sceneOf(QWidget &window, const QString &what)
{
    const QString name = QLatin1StringView(GetParam().view.name);
    return {what.isEmpty() ? name : name + u' ' + what,
            QLatin1StringView(suffixOf(GetParam().colours)), window};
}

void LookTest::SetUp()
{
    const View &view = GetParam().view;
    if (view.flow != nullptr) {
        goTo(*view.flow, view.screen);
    } else {
        for (const ControlRef &button : view.press) {
            press(button.screen, button.control);
        }
        if (!shown().isVisible()) {
            shown().replace(screen("Form1")); // no button opens it
        }
    }
    expectOnly(view.screen);
    expectActive(shown());
    fillEmptyBoxes();
    if (auto *line = shown().findChild<CommentaryLine *>(u"Text2"_s)) {
        click(*line); // turns it yellow
    }
}

void LookTest::fillEmptyBoxes()
{
    for (QLineEdit *box : parts::visible<QLineEdit>(shown())) {
        if (box->text().isEmpty()) {
            box->setText(u"Any"_s);
        }
    }
}

} // namespace tarvold::testing
