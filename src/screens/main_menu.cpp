#include "screens/main_menu.h"

#include "controls/push_button.h"
#include "controls/sizes.h"
#include "controls/text_box.h"
#include "datafiles/data_file_kind.h"
#include "screens/file_drop.h"
#include "screens/file_facts.h"
#include "screens/keys.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QShortcut>
#include <QShowEvent>

#include <algorithm>
#include <array>
#include <optional>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

struct MenuRow
{
    MenuEntry entry;
    const char *button;
    const char *caption;
    std::optional<DataFileKind> kind = {}; ///< of the file whose name box is beside the button
    const char *box = nullptr;
    const char *boxCaption = nullptr;
};

// clang-format off
constexpr std::array<MenuRow, 8> kMenuRows = {{
    {MenuEntry::Stipulations,  "Command1", "Edit And Create Match Stipulations", DataFileKind::Stipulations,  "Text1", "In File:"},
    {MenuEntry::NormalEndings, "Command3", "Add Normal Match Endings",           DataFileKind::NormalEndings, "Text3", "To File:"},
    {MenuEntry::RunInEndings,  "Command4", "Add Match Endings With Run-Ins",     DataFileKind::RunInEndings,  "Text4", "To File:"},
    {MenuEntry::TurnEndings,   "Command5", "Add Match Endings With Turns",       DataFileKind::TurnEndings,   "Text5", "To File:"},
    {MenuEntry::Interviews,    "Command6", "Add New Interview Segments",         DataFileKind::Interviews,    "Text6", "To File:"},
    {MenuEntry::TalkShows,     "Command7", "Add New Talk Show Segments",         DataFileKind::TalkShows,     "Text7", "To File:"},
    {MenuEntry::Import,        "Command8", "Import"},
    {MenuEntry::Exit,          "Command2", "Exit"},
}};
// clang-format on

const MenuRow &menuRowOf(DataFileKind kind)
{
    return *std::find_if(kMenuRows.begin(), kMenuRows.end(),
                         [kind](const MenuRow &row) { return row.kind == kind; });
}

/// The context menu entry for a file. Its keys are only shown there: as a shortcut of their own
/// they would make those of the menu ambiguous.
QString lookThroughCaption(const QString &name)
{
    constexpr qsizetype kMost = 60;
    QString shown = QFileInfo(name).fileName().simplified();
    if (shown.size() > kMost) {
        shown = u"..."_s + shown.last(kMost);
    }
    shown.replace(u'&', u"&&"_s);
    return u"Look Through %1\t%2"_s.arg(shown,
                                        keys::lookThrough().toString(QKeySequence::NativeText));
}

} // namespace

Form1::Form1(Screens & /*screens*/) : Screen(kName), m_drop(new FileDrop(this))
{
    addHeading("Label3", "Tarvold 1.3 - Matches Editor");
    column().addWidget(newLabel("Label1", "By the Tarvold developers"));
    addHiddenLabel("matchreports", u"normal"_s);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kGap);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(2, 4);
    addRows(*grid);
    column().addLayout(grid);
    column().addStretch();
    auto *look = new QShortcut(keys::lookThrough(), this, this, &Form1::lookThroughFocused);
    look->setAutoRepeat(false);
    m_drop->watch(*this);
    connect(m_drop, &FileDrop::dropped, this, &Form1::fileDropped);
}

ControlRef Form1::fileNameBox(DataFileKind kind)
{
    return {kName, menuRowOf(kind).box};
}

MenuEntry Form1::entryOf(DataFileKind kind)
{
    return menuRowOf(kind).entry;
}

void Form1::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        for (FileFacts *facts : m_facts) { // a save may have changed each of the files
            facts->refresh();
        }
    }
    Screen::showEvent(event);
}

void Form1::addRows(QGridLayout &grid)
{
    for (const MenuRow &row : kMenuRows) {
        PushButton *button = newButton(row.button, row.caption);
        connect(button, &QPushButton::clicked, this, [this, &row] { emit pressed(row.entry); });
        button->setMinimumHeight(kTaskButtonHeight);
        if (!row.kind) {
            grid.setRowMinimumHeight(grid.rowCount(), kGap); // sets apart what adds to no file
        }
        const int line = grid.rowCount();
        grid.addWidget(button, line, 0);
        if (!row.kind) {
            continue;
        }
        const DataFileKindRow &kind = rowOf(*row.kind);
        const QString caption = QLatin1StringView(row.boxCaption);
        auto *box = new TextBox(this);
        box->setText(QLatin1StringView(kind.defaultName));
        box->setAccessibleName(caption + u' ' + QLatin1StringView(kind.content));
        add(box, row.box);
        addLookThrough(*button, *row.kind);
        addLookThrough(*box, *row.kind);
        m_drop->watch(*box); // else it would insert the path as text
        addFacts(*box, *row.kind);
        auto *label = new QLabel(caption);
        label->setTextFormat(Qt::PlainText); // no buddy: all six would be spoken alike
        grid.addWidget(label, line, 1);
        grid.addWidget(box, line, 2);
    }
}

void Form1::addFacts(TextBox &box, DataFileKind kind)
{
    auto *facts = new FileFacts(box, kind);
    m_facts.push_back(facts);
    connect(facts, &FileFacts::keysTold, this, [this] {
        for (FileFacts *each : m_facts) { // once is enough for all
            each->endKeys();
        }
    });
}

void Form1::addLookThrough(QWidget &control, DataFileKind kind)
{
    control.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&control, &QWidget::customContextMenuRequested, this,
            [this, &control, kind](const QPoint &place) { showContextMenu(control, kind, place); });
}

void Form1::showContextMenu(QWidget &control, DataFileKind kind, const QPoint &place)
{
    auto *box = qobject_cast<QLineEdit *>(&control);
    QMenu *menu = box != nullptr ? box->createStandardContextMenu() : new QMenu(&control);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (!menu->isEmpty()) {
        menu->addSeparator();
    }
    const QString name = text(fileNameBox(kind).control);
    QAction *look = menu->addAction(lookThroughCaption(name));
    look->setObjectName(u"lookthrough"_s);
    look->setEnabled(!name.isEmpty());
    connect(look, &QAction::triggered, this, [this, kind, name] { emit lookThrough(kind, name); });
    menu->popup(control.mapToGlobal(place));
}

void Form1::lookThroughFocused()
{
    const QWidget *focused = focusWidget();
    const auto hasFocus = [this, focused](const MenuRow &row) {
        return row.kind && (&control(row.button) == focused || &control(row.box) == focused);
    };
    const auto *row = std::find_if(kMenuRows.begin(), kMenuRows.end(), hasFocus);
    if (row == kMenuRows.end()) {
        return;
    }
    if (const QString name = text(fileNameBox(*row->kind).control); !name.isEmpty()) {
        emit lookThrough(*row->kind, name);
    }
}

} // namespace tarvold
