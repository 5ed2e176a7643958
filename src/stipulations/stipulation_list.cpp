#include "stipulations/stipulation_list.h"

#include "datafiles/code_page.h"
#include "datafiles/data_file_kind.h"
#include "datafiles/file_name.h"
#include "shell/failures.h"
#include "shell/list_box.h"
#include "shell/main_menu.h"
#include "shell/message_box.h"
#include "shell/screens.h"
#include "stipulations/stipulation_form.h"
#include "stipulations/stipulation_list_model.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarvold {
namespace {

constexpr char kTitle[] = "Stipulations Editor";
constexpr char kNew[] = "NEW"; ///< in `listpos` while a new stipulation is made

} // namespace

Form16::Form16(Screens &screens)
    : Screen(kName)
    , m_screens(screens)
    , m_model(new StipulationListModel(m_stipulations, this))
    , m_list(new ListBox(this))
{
    addHiddenLabel("listpos");
    addHeading("Label3", "Stipulations Editor");
    auto *line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    add(line, "Line1");
    column().addWidget(line);
    addList();
    addButtons();
}

void Form16::addList()
{
    auto *prompt = new QLabel(QStringLiteral("Choose a Stipulation to edit or create new..."));
    prompt->setTextFormat(Qt::PlainText);
    prompt->setBuddy(m_list);
    add(prompt, "Label4");
    column().addWidget(prompt);
    m_list->setModel(m_model);
    m_list->setAccessibleName(QStringLiteral("Match stipulations"));
    add(m_list, "List1");
    column().addWidget(m_list, 1);
}

void Form16::addButtons()
{
    QPushButton *back = newButton("Command3", "Back To Menu");
    QPushButton *create = newButton("Command1", "Create New");
    QPushButton *edit = newButton("Command2", "Edit");
    QPushButton *remove = newButton("Command4", "Delete");
    auto *row = new QHBoxLayout;
    row->addWidget(back);
    row->addStretch();
    for (QPushButton *button : {create, edit, remove}) {
        row->addWidget(button);
    }
    column().addLayout(row);
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
    return text("listpos").toInt();
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
        messagebox::notice(&menu, QStringLiteral("Filename Error"),
                           QStringLiteral("Please enter the name of the file you want to edit, "
                                          "including the .tvd extension."));
        return;
    }
    if (const auto error = m_stipulations.load(name)) {
        messagebox::notice(&menu, QLatin1StringView(kTitle), failures::notLoaded(name, *error));
        return;
    }
    m_model->show(m_stipulations.allRecords());
    replace(menu);
}

Form3 &Form16::form()
{
    const bool isFirst = !m_screens.exists(Form3::kName);
    auto &form = m_screens.get<Form3>();
    if (isFirst) {
        connect(&form, &Form3::submitted, this, &Form16::store);
        connect(&form, &Screen::backPressed, this, [this, &form] { replace(form); });
    }
    return form;
}

void Form16::createNew()
{
    setText("listpos", QLatin1StringView(kNew));
    form().showDefaults(m_stipulations);
    form().replace(*this);
}

std::optional<QByteArray> Form16::selectedEntry()
{
    if (const auto row = m_list->selectedRow()) {
        return m_model->entry(*row);
    }
    messagebox::notice(this, QStringLiteral("Stipulation Editor"),
                       QStringLiteral("Please select a match stipulation from the list."));
    return std::nullopt;
}

void Form16::locate(const QByteArray &entry)
{
    if (const auto found = m_stipulations.find(entry)) {
        setText("listpos", QString::number(*found));
    }
}

void Form16::edit()
{
    const auto entry = selectedEntry();
    if (!entry) {
        return;
    }
    locate(*entry);
    form().showRecord(m_stipulations, listPosition());
    form().replace(*this);
}

void Form16::remove()
{
    const auto entry = selectedEntry();
    if (!entry) {
        return;
    }
    const QString text =
        QStringLiteral("Are you sure you want to permanently delete the match stipulation:"
                       "\r\n\r\n%1\r\n")
            .arg(codepage::decode(*entry));
    if (!messagebox::question(this, QStringLiteral("Delete Stipulation"), text,
                              messagebox::EnterMeans::No)) {
        return;
    }
    locate(*entry);
    StipulationTable::Snapshot before = m_stipulations.snapshot();
    m_stipulations.remove(listPosition());
    if (writeBackOr(std::move(before), *this)) {
        messagebox::notice(this, QStringLiteral("Delete"), QStringLiteral("Stipulation Deleted."));
    }
}

void Form16::store(const StipulationTable::Record &record)
{
    StipulationTable::Snapshot before = m_stipulations.snapshot();
    if (text("listpos") == QLatin1StringView(kNew)) {
        m_stipulations.append(record);
    } else {
        m_stipulations.replace(listPosition(), record);
    }
    if (writeBackOr(std::move(before), form())) {
        messagebox::notice(&form(), QLatin1StringView(kTitle), QStringLiteral("Saved OK!"));
        replace(form());
    }
}

bool Form16::writeBackOr(StipulationTable::Snapshot before, QWidget &teller)
{
    if (const auto error = m_stipulations.writeBack(fileName())) {
        m_stipulations.restore(std::move(before));
        messagebox::notice(&teller, QLatin1StringView(kTitle),
                           failures::notSaved(fileName(), *error));
        return false;
    }
    m_model->show(m_stipulations.namedRecords());
    return true;
}

} // namespace tarvold
