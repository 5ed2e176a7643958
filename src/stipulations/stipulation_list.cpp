#include "stipulations/stipulation_list.h"

#include "controls/busy_cursor.h"
#include "controls/controls.h"
#include "controls/list_box.h"
#include "controls/message_box.h"
#include "controls/push_button.h"
#include "datafiles/code_page.h"
#include "datafiles/data_file_kind.h"
#include "datafiles/file_name.h"
#include "datafiles/stipulation_format.h"
#include "screens/failures.h"
#include "screens/keys.h"
#include "screens/main_menu.h"
#include "screens/save_elsewhere.h"
#include "screens/screens.h"
#include "stipulations/stipulation_form.h"
#include "stipulations/stipulation_list_model.h"

#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

constexpr char kTitle[] = "Stipulations Editor";

} // namespace

Form16::Form16(Screens &screens)
    : Screen(kName)
    , m_screens(screens)
    , m_model(new StipulationListModel(m_stipulations, this))
    , m_list(new ListBox(this))
{
    addHiddenLabel("listpos");
    addHeading("Label3", "Stipulations Editor");
    addRule("Line1");
    addList();
    addButtons();
    growInWidth();
    setGrowsInHeight(true);
    connect(&screens, &Screens::created, this, [this](Screen *created) {
        if (auto *form = qobject_cast<Form3 *>(created)) {
            connect(form, &Form3::submitted, this, &Form16::store);
            connect(form, &Screen::backPressed, this, [this, form] { replace(*form); });
        }
    });
}

void Form16::addList()
{
    QLabel *prompt = newLabel("Label4", "Choose a Stipulation to edit or create new...");
    prompt->setBuddy(m_list);
    column().addWidget(prompt);
    m_list->setModel(m_model);
    m_list->setAccessibleName(u"Match stipulations"_s);
    add(m_list, "List1");
    column().addWidget(m_list, 1);
    connect(m_list, &QListView::doubleClicked, this, &Form16::edit);
    const auto onKey = [this](Qt::Key key, void (Form16::*act)()) {
        auto *shortcut = new QShortcut(key, m_list, this, act, Qt::WidgetShortcut);
        shortcut->setAutoRepeat(false);
    };
    onKey(Qt::Key_Return, &Form16::edit);
    onKey(Qt::Key_Enter, &Form16::edit);
    onKey(Qt::Key_Delete, &Form16::remove);
}

void Form16::addButtons()
{
    PushButton *back = newButton("Command3", "Back To Menu");
    PushButton *create = newButton("Command1", "Create New");
    PushButton *edit = newButton("Command2", "Edit");
    PushButton *remove = newButton("Command4", "Delete");
    back->setKeys(keys::back());
    addButtonRow({back}, {create, edit, remove});
    connect(create, &QPushButton::clicked, this, &Form16::createNew);
    connect(edit, &QPushButton::clicked, this, &Form16::edit);
    connect(remove, &QPushButton::clicked, this, &Form16::remove);
    const auto leave = [this] { m_screens.get<Form1>().replace(*this); };
    connect(back, &QPushButton::clicked, this, leave);
    connect(this, &Screen::closeRequested, this, leave);
}

QWidget *Form16::firstField() const
{
    return m_list;
}

int Form16::listPosition() const
{
    return controls::numericValue(text("listpos"));
}

QString Form16::fileName() const
{
    return m_screens.text(Form1::fileNameBox(DataFileKind::Stipulations));
}

void Form16::enter()
{
    auto &menu = m_screens.get<Form1>();
    m_model->show({});
    const QString name = fileName();
    if (!isTvdName(name)) {
        messagebox::notice(&menu, u"Filename Error"_s,
                           u"Please enter the name of the file you want to edit, "
                           "including the .tvd extension."_s);
        return;
    }
    const Result<void> loaded = load(name);
    if (!loaded) {
        messagebox::notice(&menu, QLatin1StringView(kTitle),
                           failures::notLoaded(name, loaded.error()));
        return;
    }
    m_model->show(m_stipulations.allRecords());
    replace(menu);
}

Result<void> Form16::load(const QString &name)
{
    const BusyCursor busy;
    return m_stipulations.load(name);
}

Form3 &Form16::form()
{
    return m_screens.get<Form3>();
}

void Form16::createNew()
{
    setText("listpos", QLatin1StringView(Form3::kNew));
    form().showDefaults(m_stipulations);
    form().replace(*this);
}

std::vector<int> Form16::findSelected()
{
    const auto row = m_list->selectedRow();
    std::vector<int> found = row ? m_stipulations.find(m_model->entry(*row)) : std::vector<int>();
    if (found.empty()) {
        messagebox::notice(this, u"Stipulation Editor"_s,
                           u"Please select a match stipulation from the list."_s);
    }
    return found;
}

bool Form16::fitsTheForm()
{
    // Qt lays out every character of a box, each time it changes.
    constexpr qsizetype kMostCharacters = 1'000'000;
    for (int number = 1; const RecordField *field : kStipulationFormat) {
        const qsizetype length = m_stipulations.line(listPosition() + number - 1).size();
        if (length > kMostCharacters && field->coding != Coding::AlwaysNo) {
            messagebox::notice(this, QLatin1StringView(kTitle),
                               failures::tooLongToEdit(number, length, kMostCharacters));
            return false;
        }
        ++number;
    }
    return true;
}

void Form16::edit()
{
    const std::vector<int> found = findSelected();
    if (found.empty()) {
        return;
    }
    setText("listpos", QString::number(found.back()));
    if (fitsTheForm()) {
        form().showRecords(m_stipulations, found);
        form().replace(*this);
    }
}

void Form16::remove()
{
    const std::vector<int> found = findSelected();
    if (found.empty()) {
        return;
    }
    const int last = found.back();
    const QString entry = codepage::decode(m_stipulations.displayText(last));
    if (!messagebox::question(this, u"Delete Stipulation"_s,
                              u"Are you sure you want to permanently delete the match stipulation:"
                              "\r\n\r\n%1\r\n"_s.arg(entry),
                              messagebox::EnterMeans::No)) {
        return;
    }
    setText("listpos", QString::number(last));
    const Result<void> removed =
        change(*this, u"No deletes nothing, and the list stays as you see it."_s,
               [last](StipulationTable &table) { table.remove(last); });
    if (removed) {
        messagebox::notice(this, u"Delete"_s, u"Stipulation Deleted."_s);
    } else if (removed.error().outcome != FileOutcome::ChangedByAnother) {
        messagebox::notice(this, QLatin1StringView(kTitle),
                           failures::notRewritten(fileName(), removed.error(),
                                                  u"The stipulation is still in the list."_s));
    }
}

void Form16::store(const StipulationTable::Record &record)
{
    const QString kept = u"No writes nothing, and everything that you typed stays here until you "
                         "leave this form."_s;
    while (true) {
        const Result<void> stored =
            change(form(), kept, [this, &record](StipulationTable &table) { put(record, table); });
        const QString told =
            stored ? u"Saved OK!"_s
                   : failures::notRewritten(fileName(), stored.error(),
                                            u"Everything that you typed is still here."_s);
        if (StipulationTable::isInFile(stored)) {
            messagebox::notice(&form(), QLatin1StringView(kTitle), told);
            replace(form());
            return;
        }
        if (stored.error().outcome == FileOutcome::ChangedByAnother ||
            !saveelsewhere::offer(m_screens, {.asking = &form(),
                                              .title = QLatin1StringView(kTitle),
                                              .text = told,
                                              .kind = DataFileKind::Stipulations})) {
            return;
        }
    }
}

void Form16::put(const StipulationTable::Record &record, StipulationTable &table) const
{
    if (text("listpos") == QLatin1StringView(Form3::kNew)) {
        table.append(record);
    } else {
        table.replace(listPosition(), record);
    }
}

Result<void> Form16::change(QWidget &asking, const QString &kept,
                            const StipulationTable::Edit &edit)
{
    const BusyCursor busy;
    const auto mayOverwrite = [this, &asking, &kept] {
        const BusyCursorPause pause;
        return messagebox::question(&asking, QLatin1StringView(kTitle),
                                    failures::outdated(fileName(), kept),
                                    messagebox::EnterMeans::No);
    };
    Result<void> changed = m_stipulations.change(fileName(), edit, mayOverwrite);
    if (StipulationTable::isInFile(changed)) {
        m_model->show(m_stipulations.namedRecords());
    }
    return changed;
}

} // namespace tarvold
