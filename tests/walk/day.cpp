#include "walk/day.h"

#include "records/records_window.h"
#include "screens/main_menu.h"
#include "support/mouse.h"
#include "walk/checks.h"
#include "walk/trace.h"

#include <QApplication>
#include <QDir>
#include <QFile>

#include <numeric>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

// clang-format off
const Day::Action Day::kActions[] = {
    {"press a button",      26, &Day::pressButton},
    {"press by keyboard",    6, &Day::pressByKeyboard},
    {"double click",         4, &Day::doubleClick},
    {"click anywhere",       5, &Day::clickAnywhere},
    {"type",                10, &Day::type},
    {"paste",                6, &Day::paste},
    {"compose",              2, &Day::compose},
    {"pick by mouse",        6, &Day::pickByMouse},
    {"pick by keyboard",     5, &Day::pickByKeyboard},
    {"press keys",          10, &Day::pressKeys},
    {"turn the wheel",       3, &Day::turnTheWheel},
    {"drag",                 2, &Day::drag},
    {"select in a list",    12, &Day::selectInList},
    {"close the window",     1, &Day::closeWindow},
    {"resize",               2, &Day::resize},
    {"name a file",          3, &Day::nameFile},
    {"write the first line", 8, &Day::writeFirstLine},
    {"swap lines",          12, &Day::swapLines},
    {"paste lines",          8, &Day::pasteLines},
    {"change the folder",    3, &Day::changeFolder},
    {"open records",        30, &Day::openRecords},
    {"use records",         14, &Day::useRecords},
};
// clang-format on

Day::Day(unsigned seed) : m_dice(seed), m_oldFolder(QDir::currentPath())
{
    // Use a subfolder, so that names that lead out of it are checked as well.
    const QString day = m_folder.filePath(u"day"_s);
    QDir().mkpath(day + u"/sub"_s);
    QDir::setCurrent(day);
    QFile::link(u"normreports.tvd"_s, u"link.tvd"_s);
    QFile::link(u"loop.tvd"_s, u"loop.tvd"_s);
    static_cast<void>(::mkfifo("pipe.tvd", 0600));
    QFile locked(u"locked.tvd"_s);
    static_cast<void>(locked.open(QIODevice::WriteOnly));
    locked.setPermissions(QFileDevice::Permissions());
    m_ledger = std::make_unique<Ledger>(m_folder.path());

    connect(&m_dialogTimer, &QTimer::timeout, this, &Day::handleDialogs);
    m_dialogTimer.start(1);
    start();
}

Day::~Day()
{
    qDeleteAll(records::RecordsWindow::all());
    QDir::setCurrent(m_oldFolder);
}

void Day::start()
{
    m_wantsEnd = false;
    m_editor = std::make_unique<Editor>(&mouse::now);
    connect(m_editor.get(), &Editor::exitRequested, this, [this] {
        m_wantsEnd = true;
        if (screen().objectName() != u"Form1"_s) {
            fail(u"the program ended from "_s + screen().objectName());
        }
    });
    m_editor->start();
    QCoreApplication::processEvents();
}

void Day::end()
{
    ++m_counts.ends;
    m_editor.reset();
    start();
}

void Day::fail(const QString &what)
{
    if (m_error.isEmpty()) {
        m_error = what;
        trace::note(u"WRONG: "_s + what);
    }
}

bool Day::walk(int actions)
{
    for (int number = 1; number <= actions && m_error.isEmpty(); ++number) {
        trace::begin(number);
        step();
    }
    return m_error.isEmpty();
}

const Day::Action &Day::randomAction()
{
    static const int sum =
        std::accumulate(std::begin(kActions), std::end(kActions), 0,
                        [](int before, const Action &action) { return before + action.weight; });
    int place = m_dice.below(sum);
    const Action *action = kActions;
    while (place >= action->weight) {
        place -= action->weight;
        ++action;
    }
    return *action;
}

void Day::step()
{
    m_shown = screen().objectName();
    ++m_counts.windows[m_shown.toStdString()];
    const Action *action = &randomAction();
    while (!(this->*action->act)()) {
        action = &randomAction();
    }
    ++m_counts.actions[action->name];
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (m_wantsEnd) {
        end();
    }
    if (const QString wrong = checks::windows(); !wrong.isEmpty()) {
        fail(wrong);
        return;
    }
    if (QApplication::activePopupWidget() == nullptr && !screen().isActiveWindow()) {
        screen().activateWindow(); // as a window manager does after a message box
        QCoreApplication::processEvents();
    }
    for (const QString &wrong : {checks::controls(screen()), checkFolder()}) {
        if (!wrong.isEmpty()) {
            fail(wrong);
        }
    }
}

QString Day::checkFolder()
{
    // "Write A Similar One" goes from the main menu by way of the list to the form at once.
    const QString now = screen().objectName();
    const bool hasLoaded = m_shown == u"Form1"_s && (now == u"Form16"_s || now == u"Form3"_s);
    m_shown = now;
    return hasLoaded ? m_ledger->checkLoaded(nameIn(Form1::fileNameBox(DataFileKind::Stipulations)))
                     : m_ledger->checkUnchanged();
}

Screen &Day::screen() const
{
    return *checks::visibleScreen();
}

} // namespace tarvold::testing
