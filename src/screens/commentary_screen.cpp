#include "screens/commentary_screen.h"

#include "controls/announcement.h"
#include "controls/controls.h"
#include "controls/message_box.h"
#include "controls/push_button.h"
#include "controls/sizes.h"
#include "disk/append.h"
#include "screens/commentary_line.h"
#include "screens/failures.h"
#include "screens/file_facts.h"
#include "screens/form_grid.h"
#include "screens/hint_line.h"
#include "screens/keys.h"
#include "screens/main_menu.h"
#include "screens/save_elsewhere.h"
#include "screens/tag_list.h"

#include <QGridLayout>
#include <QLabel>
#include <QShowEvent>

#include <algorithm>

namespace tarvold {

using namespace Qt::StringLiterals;

CommentaryScreen::CommentaryScreen(Screens &screens, const CommentaryTable &table)
    : Screen(table.name)
    , m_screens(screens)
    , m_table(table)
    , m_tags(new TagList(this))
    , m_announcement(new Announcement(this))
    , m_hints(this, screens, table.tags)
{
    addHiddenLabel("hiddenlabel");
    addHeading("Label1", table.heading);
    addTagList();
    addInstructions();
    addLines();
    column().addStretch();
    growInWidth();
    addButtons();
}

CommentaryScreen::~CommentaryScreen()
{
    // The focus moves once more when QWidget deletes the lines, after this destructor.
    for (CommentaryLine *line : m_lines) {
        line->disconnect(this);
    }
}

void CommentaryScreen::addTagList()
{
    for (const CommentaryTag &tag : m_table.tags) {
        m_tags->addItem(QLatin1StringView(tag.item));
    }
    auto *label = new QLabel(u"Commentary tag"_s, this);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(m_tags);
    controls::describe(*m_tags, label->text(), QLatin1StringView(m_table.instructions));
    add(m_tags, "Combo1");
    auto *row = new QHBoxLayout;
    row->setSpacing(kGap);
    label->setMinimumWidth(formgrid::labelWidth(*this));
    row->addWidget(label);
    row->addWidget(m_tags, 1);
    head().addLayout(row);
    connect(m_tags, &ComboBox::chosen, this, &CommentaryScreen::insertTag);
}

void CommentaryScreen::addInstructions()
{
    QLabel *instructions = newLabel("Label3", m_table.instructions);
    instructions->setWordWrap(true);
    head().addWidget(instructions);
}

void CommentaryScreen::addLines()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kRowGap);
    for (CommentaryLine *&line : m_lines) {
        const auto row = &line - m_lines.data();
        const RecordField &field = fields::kCommentary.at(std::size_t(row));
        const QString number = QString::number(row + 1);
        line = new CommentaryLine(this);
        if (row > 0) {
            line->putBelow(*m_lines.at(std::size_t(row) - 1));
        }
        line->setAccessibleName(QLatin1StringView(field.name));
        add(line, qPrintable(u"Text"_s + number));
        addSource(field, line);
        auto *label = new QLabel(number, this); // no buddy: its number would be spoken as the name
        grid->addWidget(label, int(row), 0, Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(line, int(row), 1);
        connect(line, &CommentaryLine::entered, this, [this, line] { mark(*line); });
        connect(line, &CommentaryLine::tagsRequested, m_tags, &ComboBox::showPopup);
        announce(*line);
        m_hints.watch(*line);
    }
    column().addLayout(grid);
    add(m_hints.label(), "taghint");
    addFoot(m_hints.label());
}

void CommentaryScreen::announce(CommentaryLine &line)
{
    connect(&line, &CommentaryLine::spread, this, [this, &line](int lines) {
        const qsizetype first = numberOf(line);
        m_announcement->tell(u"Pasted into lines %1 to %2."_s.arg(first).arg(first + lines - 1));
    });
    connect(&line, &CommentaryLine::swapped, this, [this, &line](const CommentaryLine *other) {
        m_announcement->tell(
            u"Line %1 swapped with line %2."_s.arg(numberOf(line)).arg(numberOf(*other)));
    });
    connect(&line, &CommentaryLine::notUndone, this, [this](const CommentaryLine *changed) {
        m_hints.tell(
            u"Nothing was undone, as line %1 was changed since. Press Ctrl+Z there first."_s.arg(
                numberOf(*changed)));
    });
    connect(&line, &CommentaryLine::partlyUndone, this,
            [this](const QList<const CommentaryLine *> &kept) {
                QStringList told;
                for (const CommentaryLine *each : kept) {
                    told << u"Line %1 was changed since, so it stays."_s.arg(numberOf(*each));
                }
                m_hints.tell(told.join(u' '));
            });
    connect(&line, &CommentaryLine::notRedone, this, [this](const CommentaryLine *changed) {
        m_hints.tell(
            u"Nothing was redone, as line %1 was changed since."_s.arg(numberOf(*changed)));
    });
}

qsizetype CommentaryScreen::numberOf(const CommentaryLine &line) const
{
    return 1 + (std::find(m_lines.begin(), m_lines.end(), &line) - m_lines.begin());
}

void CommentaryScreen::addButtons()
{
    PushButton *back = newBackButton("Command2");
    PushButton *save = newButton("Command1", m_table.addCaption);
    save->setKeys(keys::save());
    addButtonRow({back}, {save});
    connect(save, &QPushButton::clicked, this, &CommentaryScreen::save);
}

QWidget *CommentaryScreen::firstField() const
{
    return m_tags;
}

void CommentaryScreen::showEvent(QShowEvent *event)
{
    Screen::showEvent(event);
    if (!event->spontaneous()) {
        showTarget();
        goToMarkedLine();  // its yellow promises that typed text goes there
        m_hints.refresh(); // other screens decide what is refused
    }
}

void CommentaryScreen::showTarget()
{
    const QString name = m_screens.text(Form1::fileNameBox(m_table.kind));
    control<PushButton>("Command1").setPurpose(filefacts::purpose(u"Adds to "_s, name));
}

void CommentaryScreen::whitenboxes()
{
    for (CommentaryLine *line : m_lines) {
        line->setMarked(false);
    }
}

void CommentaryScreen::startAfresh()
{
    for (CommentaryLine *line : m_lines) {
        line->startAfresh();
    }
}

void CommentaryScreen::mark(CommentaryLine &line)
{
    whitenboxes();
    line.setMarked(true);
    m_hints.update();
}

void CommentaryScreen::insertTag()
{
    const QString item = m_tags->currentText();
    bool isRefused = false;
    for (const CommentaryTag &tag : m_table.tags) {
        if (item == QLatin1StringView(tag.item)) {
            isRefused = !accepts(tag);
            break;
        }
    }
    // Deliberate: after a refusal the marked line gets the tag that was accepted last.
    const QString outcome = append(text("hiddenlabel"));
    goToMarkedLine();
    m_announcement->tell(isRefused ? u"Tag refused. "_s + outcome : outcome);
}

void CommentaryScreen::goToMarkedLine()
{
    for (CommentaryLine *line : m_lines) {
        if (line->isMarked()) {
            line->setFocus(Qt::OtherFocusReason);
            line->end(false);
        }
    }
}

QString CommentaryScreen::append(const QString &tag)
{
    QString outcome = u"No line is marked, so nothing was inserted."_s;
    for (CommentaryLine *line : m_lines) {
        if (line->isMarked()) {
            line->append(tag);
            outcome = u"Inserted %1 into line %2."_s.arg(tag, QString::number(numberOf(*line)));
        }
    }
    return tag.isEmpty() ? u"Nothing was inserted."_s : outcome;
}

bool CommentaryScreen::accepts(const CommentaryTag &tag)
{
    if (const Refusal *refusal = tag.refusalNow(m_screens)) {
        messagebox::notice(this, QLatin1StringView(refusal->title),
                           QLatin1StringView(refusal->message));
        return false;
    }
    setText("hiddenlabel", QLatin1StringView(tag.tag));
    return true;
}

void CommentaryScreen::save()
{
    const QString title = QLatin1StringView(messagebox::kTitle);
    if (m_lines.front()->text().isEmpty()) {
        messagebox::notice(this, title, QLatin1StringView(m_table.missingMessage));
        return;
    }
    const bool yes = messagebox::question(this, title, QLatin1StringView(m_table.question),
                                          messagebox::EnterMeans::Yes);
    if (yes && write()) {
        messagebox::notice(this, title, u"Saved OK."_s);
        emit finished();
    }
}

QWidget &CommentaryScreen::source(const RecordField &field)
{
    for (const char *screen : pathTo(m_table.name, m_table.chain)) {
        if (QWidget *control = m_screens[screen].sourceOf(field)) {
            return *control;
        }
    }
    qFatal("no screen on the way to %s has the field %s", m_table.name, field.name);
}

bool CommentaryScreen::write()
{
    const ComposedRecord record =
        composeRecord(rowOf(m_table.kind).format,
                      [this](const RecordField &field) { return controls::textOf(source(field)); });
    if (record.missing) {
        messagebox::notice(this, QLatin1StringView(messagebox::kTitle),
                           failures::cannotHold(*record.missing));
        return false;
    }
    const auto fileName = [this] { return m_screens.text(Form1::fileNameBox(m_table.kind)); };
    while (true) {
        const auto appended = appendToFile(fileName(), record.bytes);
        if (appended) {
            return true;
        }
        if (!saveelsewhere::offer(m_screens,
                                  {.asking = this,
                                   .title = QLatin1StringView(messagebox::kTitle),
                                   .text = failures::notSaved(fileName(), appended.error()),
                                   .kind = m_table.kind})) {
            return false;
        }
        showTarget();
    }
}

} // namespace tarvold
