#include "import/import_screen.h"

#include "controls/bounded_column.h"
#include "controls/busy_cursor.h"
#include "controls/list_box.h"
#include "controls/message_box.h"
#include "controls/push_button.h"
#include "controls/sizes.h"
#include "controls/text_box.h"
#include "datafiles/file_name.h"
#include "datafiles/import_merge.h"
#include "disk/file_path.h"
#include "screens/failures.h"
#include "screens/file_facts.h"
#include "screens/keys.h"
#include "screens/main_menu.h"
#include "screens/screens.h"

#include <QDir>
#include <QLabel>
#include <QStringListModel>

#include <algorithm>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

constexpr char kTitle[] = "Import";
constexpr char kKindPrompt[] = "What would you like to import?";
constexpr char kFilePrompt[] = "Which file would you like to import from?";

constexpr int kKindButtonWidth = 40; ///< in characters, so that all six are alike

struct KindRow
{
    const char *button;
    const char *caption;
    const char *whatimport;
    DataFileKind kind;
};

/// In the order of the buttons.
constexpr KindRow kKinds[] = {
    {"Command2", "Normal Match Endings", "Normal Matches", DataFileKind::NormalEndings},
    {"Command3", "Match Endings With Run-Ins", "Run-In Matches", DataFileKind::RunInEndings},
    {"Command4", "Match Stipulations", "Stipulations", DataFileKind::Stipulations},
    {"Command5", "Match Endings With Turns", "Turn Matches", DataFileKind::TurnEndings},
    {"Command6", "Interview Segments", "Interviews", DataFileKind::Interviews},
    {"Command7", "Talk Show Segments", "Talk Shows", DataFileKind::TalkShows},
};

/// The controls that only the first stage shows, and those that only the second does.
constexpr const char *kKindStage[] = {"Command1", "Command2", "Command3", "Command4",
                                      "Command5", "Command6", "Command7"};
constexpr const char *kFileStage[] = {"File1", "Label2", "Text1", "Command8", "Command9"};

} // namespace

Form2::Form2(Screens &screens)
    : Screen(kName)
    , m_screens(screens)
    , m_names(new QStringListModel(this))
    , m_files(new ListBox(this))
{
    addHiddenLabel("whatimport", u"Label2"_s);
    addHeading("Label3", "Import");
    addRule("Line1");
    column().addWidget(newLabel("Label1", kKindPrompt));
    addKindButtons();
    addFileChoice();
    column().addStretch();
    addButtons();
    growInWidth();
    goToKinds();
    connect(this, &Screen::closeRequested, this, &Form2::leave);
}

void Form2::addKindButtons()
{
    for (const KindRow &row : kKinds) {
        PushButton *button = newButton(row.button, row.caption);
        button->setMinimumSize(fontMetrics().averageCharWidth() * kKindButtonWidth,
                               kTaskButtonHeight);
        column().addWidget(button, 0, Qt::AlignLeft);
        connect(button, &QPushButton::clicked, this, [this, &row] {
            goToFiles(QLatin1StringView(row.whatimport),
                      QLatin1StringView(rowOf(row.kind).defaultName));
        });
    }
}

void Form2::addFileChoice()
{
    m_files->setModel(m_names);
    m_files->setAccessibleName(QLatin1StringView(kFilePrompt));
    add(m_files, "File1");
    column().addWidget(m_files, 1);
    QLabel *prompt = newLabel("Label2", "Which file do you want to import these into?");
    auto *target = new TextBox;
    target->setText(u"Text1"_s);
    target->setAccessibleName(prompt->text());
    prompt->setBuddy(target);
    add(target, "Text1");
    auto *below = new BoundedColumn;
    below->setMost({readableWidth(), QWIDGETSIZE_MAX});
    below->setSpacing(kRowGap);
    below->addWidget(prompt);
    below->addWidget(target);
    column().addLayout(below);
}

void Form2::addButtons()
{
    PushButton *back = newButton("Command1", "Back");
    PushButton *cancel = newButton("Command9", "Cancel");
    PushButton *import = newButton("Command8", "Import");
    back->setKeys(keys::back());
    cancel->setKeys(keys::back()); // only one of the two is visible
    addButtonRow({back, cancel}, {import});
    connect(back, &QPushButton::clicked, this, &Form2::back);
    connect(cancel, &QPushButton::clicked, this, &Form2::goToKinds);
    connect(import, &QPushButton::clicked, this, &Form2::runImport);
    auto &target = control<TextBox>("Text1");
    const auto purpose = [&target] { return filefacts::purpose(u"Adds to "_s, target.text()); };
    connect(&target, &QLineEdit::textChanged, import, [import, purpose, &target] {
        if (target.hasFocus()) {
            import->showPurpose(purpose());
        } else {
            import->setPurpose(purpose());
        }
    });
    connect(&target, &TextBox::typingEnded, import,
            [import, purpose] { import->setPurpose(purpose()); });
}

void Form2::showStage(Stage stage)
{
    setGrowsInHeight(stage == Stage::Files); // only the list of files uses the height
    for (const char *name : kKindStage) {
        control(name).setVisible(stage == Stage::Kinds);
    }
    for (const char *name : kFileStage) {
        control(name).setVisible(stage == Stage::Files);
    }
}

void Form2::goToKinds()
{
    setText("Label1", QLatin1StringView(kKindPrompt));
    showStage(Stage::Kinds);
}

void Form2::goToFiles(const QString &kind, const QString &target)
{
    setText("whatimport", kind);
    setText("Label1", QLatin1StringView(kFilePrompt));
    refreshFiles();
    setText("Text1", target);
    showStage(Stage::Files);
    m_files->setFocus(Qt::OtherFocusReason);
}

QWidget *Form2::firstField() const
{
    return &control(kKinds[0].button);
}

void Form2::refreshFiles()
{
    const QString selected = selectedFile();
    QStringList names = QDir().entryList(QDir::Files | QDir::Hidden, QDir::Name);
    // Qt lists a link to a pipe or a device as a file.
    names.removeIf(
        [](const QString &name) { return !isTvdName(name) || !FilePath::ofOrdinary(name); });
    m_names->setStringList(names);
    if (const qsizetype row = names.indexOf(selected); row >= 0) {
        m_files->setCurrentIndex(m_names->index(static_cast<int>(row)));
    }
}

QString Form2::selectedFile() const
{
    const auto row = m_files->selectedRow();
    return row ? m_names->stringList().at(*row) : QString();
}

void Form2::back()
{
    m_screens.get<Form1>().replace(*this);
}

void Form2::leave()
{
    goToKinds();
    back();
}

void Form2::runImport()
{
    const QString target = text("Text1");
    if (!isTvdName(target)) {
        messagebox::notice(this, u"File Error!"_s,
                           u"Filename to import into is blank or doesn't have a .tvd "
                           "extension."_s);
        return;
    }
    importstatus = u"Yes"_s;
    if (!merge(selectedFile(), target)) {
        return;
    }
    if (importstatus == "Yes"_L1) {
        messagebox::notice(this, QLatin1StringView(kTitle), u"Import Complete."_s);
    }
    goToKinds();
}

bool Form2::merge(const QString &source, const QString &target)
{
    const QString chosen = text("whatimport");
    const auto *row = std::find_if(std::begin(kKinds), std::end(kKinds), [&](const KindRow &kind) {
        return chosen == QLatin1StringView(kind.whatimport);
    });
    if (row == std::end(kKinds)) {
        return true;
    }
    if (source.isEmpty()) {
        messagebox::notice(this, QLatin1StringView(kTitle), failures::noSource());
        return false;
    }
    const auto imported = [&] {
        const BusyCursor busy;
        return importRecords({source, target, row->kind}, [this](const QString &message) {
            const BusyCursorPause pause;
            messagebox::notice(this, u"Match Duplication"_s, message);
        });
    }();
    if (!imported) {
        messagebox::notice(this, QLatin1StringView(kTitle),
                           failures::notImported(imported.error().file, imported.error().error));
    }
    return imported.has_value();
}

} // namespace tarvold
