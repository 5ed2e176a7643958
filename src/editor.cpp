#include "editor.h"

#include "controls/combo_box.h"
#include "endings/ending_flow.h"
#include "import/import_screen.h"
#include "screens/main_menu.h"
#include "segments/segment_flow.h"
#include "stipulations/stipulation_form.h"
#include "stipulations/stipulation_list.h"

#include <utility>

namespace tarvold {

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
    connect(&menu, &Screen::closeRequested, this, &Editor::exitRequested);
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
        emit exitRequested();
        break;
    }
}

} // namespace tarvold
