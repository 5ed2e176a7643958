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

constexpr QStringView kSimilarTitle = u"Write A Similar One";

/// The kind of a file that a row of the main menu names, if its window would not find the same.
std::optional<DataFileKind> kindOfFile(const QString &name, DataFileKind kindOfRow)
{
    const Result<QByteArray> bytes = readFile(name);
    if (!bytes) {
        return kindOfRow;
    }
    const auto kind = records::kindFor(*bytes, name, kindOfRow);
    return kind == records::guessKind(*bytes, name).kind ? std::nullopt : kind;
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
                writeSimilar(*window, record, recordKind);
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

bool Editor::mayWriteSimilar(RecordsWindow &asking, const records::Record &record) const
{
    for (const QString &refusal :
         {records::similar::refusal(m_screens), records::similar::refusal(record)}) {
        if (!refusal.isEmpty()) {
            messagebox::notice(&asking, kSimilarTitle.toString(), refusal,
                               messagebox::Blocks::Window);
            return false;
        }
    }
    return true;
}

void Editor::writeSimilar(RecordsWindow &asking, const QByteArray &bytes, DataFileKind kind)
{
    const records::Record record(bytes, records::Catalog::of(kind));
    // The screens are free while the window asks, so that another record may have begun then.
    if (!mayWriteSimilar(asking, record) || !asking.saveFirst() ||
        !mayWriteSimilar(asking, record) || !beginRecord(kind)) {
        return;
    }
    const QStringList notes = records::similar::fill(m_screens, record);
    if (!notes.isEmpty()) {
        messagebox::notice(m_screens.shown(), kSimilarTitle.toString(), notes.join(u"\n\n"_s));
    }
}

} // namespace tarvold
