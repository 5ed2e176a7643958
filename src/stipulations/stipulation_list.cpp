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

bool isChangedByAnother(const std::optional<FileError> &error)
{
    return error && error->outcome == FileOutcome::ChangedByAnother;
}

bool isUnconfirmed(const std::optional<FileError> &error)
{
    return error && error->outcome == FileOutcome::Unconfirmed;
}

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
    return m_screens.text(rowOf(DataFileKind::Stipulations).nameBox);
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
    std::optional<FileError> error;
    {
        const BusyCursor busy;
        error = m_stipulations.load(name);
    }
    if (error) {
        messagebox::notice(&menu, QLatin1StringView(kTitle), failures::notLoaded(name, *error));
        return;
    }
    m_model->show(m_stipulations.allRecords());
    replace(menu);
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

std::optional<QByteArray> Form16::selectedEntry()
{
    if (const auto row = m_list->selectedRow()) {
        return m_model->entry(*row);
    }
    messagebox::notice(this, u"Stipulation Editor"_s,
                       u"Please select a match stipulation from the list."_s);
    return std::nullopt;
}

std::vector<int> Form16::locate(const QByteArray &entry)
{
    std::vector<int> found = m_stipulations.find(entry);
    setText("listpos", QString::number(found.back())); // the list shows what the table holds
    return found;
}

bool Form16::fitsTheForm()
{
    // Qt lays out every character of a box, each time it changes.
    constexpr qsizetype kMostCharacters = 1'000'000;
    for (int number = 1; const StipulationField *field : kStipulationFormat) {
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
    const auto entry = selectedEntry();
    if (!entry) {
        return;
    }
    const std::vector<int> found = locate(*entry);
    if (!fitsTheForm()) {
        return;
    }
    form().showRecords(m_stipulations, found);
    form().replace(*this);
}

void Form16::remove()
{
    const auto entry = selectedEntry();
    if (!entry) {
        return;
    }
    const QString text = u"Are you sure you want to permanently delete the match stipulation:"
                         "\r\n\r\n%1\r\n"_s.arg(codepage::decode(*entry));
    if (!messagebox::question(this, u"Delete Stipulation"_s, text, messagebox::EnterMeans::No)) {
        return;
    }
    locate(*entry);
    StipulationTable::Snapshot before = m_stipulations.snapshot();
    m_stipulations.remove(listPosition());
    const std::optional<FileError> error = writeBackOr(
        std::move(before), {this, u"No deletes nothing, and the list stays as you see it."_s});
    if (!error) {
        messagebox::notice(this, u"Delete"_s, u"Stipulation Deleted."_s);
    } else if (!isChangedByAnother(error)) {
        messagebox::notice(
            this, QLatin1StringView(kTitle),
            failures::notRewritten(fileName(), *error, u"The stipulation is still in the list."_s));
    }
}

void Form16::store(const StipulationTable::Record &record)
{
    std::optional<FileError> error = tryToStore(record);
    while (error && !isChangedByAnother(error) && !isUnconfirmed(error)) {
        if (!goesElsewhere(*error)) {
            return;
        }
        error = tryToStore(record);
    }
    if (isChangedByAnother(error)) {
        return;
    }
    messagebox::notice(&form(), QLatin1StringView(kTitle),
                       error ? notStored(*error) : u"Saved OK!"_s);
    replace(form());
}

std::optional<FileError> Form16::tryToStore(const StipulationTable::Record &record)
{
    StipulationTable::Snapshot before = m_stipulations.snapshot();
    if (text("listpos") == QLatin1StringView(Form3::kNew)) {
        m_stipulations.append(record);
    } else {
        m_stipulations.replace(listPosition(), record);
    }
    return writeBackOr(std::move(before),
                       {&form(), u"No writes nothing, and everything that you typed "
                                 "stays here until you leave this form."_s});
}

QString Form16::notStored(const FileError &error) const
{
    return failures::notRewritten(fileName(), error, u"Everything that you typed is still here."_s);
}

bool Form16::goesElsewhere(const FileError &error)
{
    return saveelsewhere::offer(m_screens, {.asking = &form(),
                                            .title = QLatin1StringView(kTitle),
                                            .text = notStored(error),
                                            .kind = DataFileKind::Stipulations});
}

std::optional<FileError> Form16::writeBackOr(StipulationTable::Snapshot before,
                                             const ChangedMeanwhile &changed)
{
    using IfChanged = StipulationTable::IfChanged;
    const auto write = [this](IfChanged ifChanged) {
        const BusyCursor busy;
        return m_stipulations.writeBack(fileName(), ifChanged);
    };
    auto error = write(IfChanged::Refuse);
    if (isChangedByAnother(error)) {
        // What the list shows behind the question is still in the table.
        StipulationTable::Snapshot after = m_stipulations.snapshot();
        m_stipulations.restore(before);
        if (!messagebox::question(changed.asking, QLatin1StringView(kTitle),
                                  failures::outdated(fileName(), changed.kept),
                                  messagebox::EnterMeans::No)) {
            return error;
        }
        m_stipulations.restore(std::move(after));
        error = write(IfChanged::Overwrite);
    }
    if (error && !isUnconfirmed(error)) {
        m_stipulations.restore(std::move(before));
    } else {
        m_model->show(m_stipulations.namedRecords());
    }
    return error;
}

} // namespace tarvold
