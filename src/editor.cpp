#include "editor.h"

#include "controls/combo_box.h"
#include "controls/message_box.h"
#include "disk/read.h"
#include "endings/ending_flow.h"
#include "import/import_screen.h"
#include "records/reading.h"
#include "records/records_window.h"
#include "records/similar.h"
#include "screens/main_menu.h"
#include "segments/segment_flow.h"
#include "stipulations/stipulation_form.h"
#include "stipulations/stipulation_list.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace tarvold {

using namespace Qt::StringLiterals;
using records::RecordsWindow;

namespace {

/// The kind of a file that a row of the main menu names.
std::optional<DataFileKind> kindOfFile(const QString &name, DataFileKind kindOfRow)
{
    const Result<QByteArray> bytes = readFile(name);
    return bytes ? records::kindFor(*bytes, name, kindOfRow) : kindOfRow;
}

} // namespace

Editor::Editor(DoubleClickGuard::Clock clock)
    : m_guard(std::move(clock))
    , m_endings(m_screens, endingflow::chain(), endingflow::kLabel)
    , m_segments(m_screens, segmentflow::chain())
{
    ComboBox::checkQt();
    m_screens.declare<Form1>();
    endingflow::declare(m_screens);
    segmentflow::declare(m_screens);
    m_screens.declare<Form16>();
    m_screens.declare<Form3>();
    m_screens.declare<Form2>();

    auto &menu = m_screens.get<Form1>();
    connect(&menu, &Form1::pressed, this, &Editor::begin);
    connect(&menu, &Screen::closeRequested, this, &Editor::end);
    connect(&menu, &Form1::lookThrough, this, [this](DataFileKind kind, const QString &name) {
        openRecords(name, kindOfFile(name, kind));
    });
    connect(&menu, &Form1::fileDropped, this,
            [this](const QString &path) { openRecords(path, std::nullopt); });
}

void Editor::start()
{
    m_screens.get<Form1>().show();
}

void Editor::begin(MenuEntry entry)
{
    switch (entry) {
    case MenuEntry::NormalEndings:
        endingflow::enter(m_screens, MatchEnding::Normal);
        break;
    case MenuEntry::RunInEndings:
        endingflow::enter(m_screens, MatchEnding::RunIn);
        break;
    case MenuEntry::TurnEndings:
        endingflow::enter(m_screens, MatchEnding::Turn);
        break;
    case MenuEntry::Interviews:
        segmentflow::enterInterview(m_screens);
        break;
    case MenuEntry::TalkShows:
        segmentflow::enterTalkShow(m_screens);
        break;
    case MenuEntry::Stipulations:
        m_screens.get<Form16>().enter();
        break;
    case MenuEntry::Import:
        m_screens.get<Form2>().replace(m_screens.get<Form1>());
        break;
    case MenuEntry::Exit:
        end();
        break;
    }
}

void Editor::end()
{
    if (m_isEnding) {
        RecordsWindow::showDialogs(); // one is asking already, which blocks no other window
        return;
    }
    const QScopedValueRollback ending(m_isEnding, true);
    if (!RecordsWindow::closeAll()) {
        return;
    }
    // While one asked, others could be used: a flow may have begun, or another window opened.
    const QList<RecordsWindow *> windows = RecordsWindow::all();
    const bool isAnyOpen =
        std::any_of(windows.begin(), windows.end(),
                    [](const RecordsWindow *window) { return window->isVisible(); });
    if (!isAnyOpen && m_screens.get<Form1>().isVisible()) {
        emit exitRequested();
    }
}

void Editor::openRecords(const QString &name, std::optional<DataFileKind> kind)
{
    const QList<RecordsWindow *> before = RecordsWindow::all();
    RecordsWindow *window = RecordsWindow::open(name, kind);
    if (before.contains(window)) {
        return;
    }
    window->offerWriteSimilar();
    connect(window, &RecordsWindow::writeSimilarRequested, this,
            [this, window](const QByteArray &record, DataFileKind recordKind) {
                writeSimilar(window, record, recordKind);
            });
}

bool Editor::beginRecord(DataFileKind kind)
{
    begin(Form1::entryOf(kind));
    if (kind != DataFileKind::Stipulations) {
        return true;
    }
    auto &list = m_screens.get<Form16>();
    if (!list.isVisible()) {
        return false; // the user was told why
    }
    list.createNew();
    return true;
}

void Editor::writeSimilar(QWidget *asking, const QByteArray &bytes, DataFileKind kind)
{
    const QString title = u"Write A Similar One"_s;
    const records::Record record(bytes, records::Catalog::of(kind));
    for (const QString &refusal :
         {records::similar::refusal(m_screens), records::similar::refusal(record)}) {
        if (!refusal.isEmpty()) {
            messagebox::notice(asking, title, refusal, messagebox::Blocks::Window);
            return;
        }
    }
    if (!beginRecord(kind)) {
        return;
    }
    const QStringList notes = records::similar::fill(m_screens, record);
    if (!notes.isEmpty()) {
        messagebox::notice(m_screens.shown(), title, notes.join(u"\n\n"_s));
    }
}

} // namespace tarvold
