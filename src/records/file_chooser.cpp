#include "records/file_chooser.h"

#include "controls/list_box.h"
#include "controls/push_button.h"
#include "controls/sizes.h"
#include "datafiles/file_name.h"
#include "disk/file_path.h"
#include "screens/file_choice.h"
#include "screens/keys.h"

#include <QDir>
#include <QLabel>
#include <QShortcut>
#include <QStringListModel>
#include <QVBoxLayout>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

QStringList dataFilesHere()
{
    QStringList names = QDir().entryList(QDir::Files | QDir::Hidden, QDir::Name);
    // Qt lists a link to a pipe or a device as a file.
    names.removeIf(
        [](const QString &name) { return !isTvdName(name) || !FilePath::ofOrdinary(name); });
    return names;
}

} // namespace

FileChooser::FileChooser(QWidget *parent)
    : QWidget(parent)
    , m_names(new QStringListModel(dataFilesHere(), this))
    , m_list(new ListBox)
    , m_open(new PushButton(u"Open"_s))
{
    setObjectName(u"recordfiles"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(u"Tarvold Records"_s);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    addList();
    addButtons();
    new QShortcut(Qt::Key_Escape, this, this, &QWidget::close);
    constexpr int kCharacters = 60;
    constexpr int kRows = 12;
    resize(fontMetrics().averageCharWidth() * kCharacters, kControlHeight * kRows);
}

void FileChooser::addList()
{
    QString folder = QDir::toNativeSeparators(QDir::currentPath());
    folder.replace(u'&', u"&&"_s); // a single one would mark a key, as the label is of the list
    const bool isEmpty = m_names->rowCount() == 0;
    auto *prompt = new QLabel((isEmpty ? u"There is no .tvd file in %1."_s
                                       : u"Which files in %1 would you like to look through?"_s)
                                  .arg(folder));
    prompt->setObjectName(u"prompt"_s);
    prompt->setTextFormat(Qt::PlainText);
    prompt->setWordWrap(true);
    prompt->setBuddy(m_list);
    layout()->addWidget(prompt);
    m_list->setObjectName(u"files"_s);
    m_list->setAccessibleName(u"Data files"_s);
    m_list->setModel(m_names);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    layout()->addWidget(m_list);
    const auto openSelected = [this] { open(selectedNames()); };
    connect(m_list, &QListView::doubleClicked, this, openSelected);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto *shortcut = new QShortcut(key, m_list, this, openSelected, Qt::WidgetShortcut);
        shortcut->setAutoRepeat(false);
    }
    connect(m_open, &QPushButton::clicked, this, openSelected);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { m_open->setEnabled(m_list->selectedRow().has_value()); });
}

void FileChooser::addButtons()
{
    auto *close = new PushButton(u"Close"_s);
    auto *other = new PushButton(u"Other File..."_s);
    close->setObjectName(u"close"_s);
    other->setObjectName(u"other"_s);
    other->setKeys(keys::lookThrough());
    m_open->setObjectName(u"open"_s);
    m_open->setEnabled(false);
    auto *row = new QHBoxLayout;
    row->addWidget(close);
    row->addStretch();
    row->addWidget(other);
    row->addWidget(m_open);
    static_cast<QVBoxLayout *>(layout())->addLayout(row);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    connect(other, &QPushButton::clicked, this, &FileChooser::chooseElsewhere);
    if (m_names->rowCount() == 0) {
        m_list->setEnabled(false);
        other->setFocus();
    }
}

QStringList FileChooser::selectedNames() const
{
    QStringList names;
    for (int row = 0; row < m_names->rowCount(); ++row) {
        const QModelIndex index = m_names->index(row);
        if (m_list->selectionModel()->isSelected(index)) {
            names << index.data().toString();
        }
    }
    return names;
}

void FileChooser::open(const QStringList &names)
{
    if (!names.isEmpty()) {
        emit chosen(names);
        close();
    }
}

void FileChooser::chooseElsewhere()
{
    open(filechoice::chosenFiles(this, u"Look Through Data Files"_s));
}

} // namespace tarvold::records
