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

#include <QApplication>
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
    , m_spokenHint(new Announcement(this))
    , m_hint(new HintLine(this))
    , m_rules{.known = {}, .refusal = [this](const QString &tag) { return refusalOf(tag); }}
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
    // The focus and the cursors move once more when QWidget deletes the lines, after this
    // destructor.
    disconnect(qApp, nullptr, this, nullptr);
    for (CommentaryLine *line : m_lines) {
        line->disconnect(this);
    }
}

void CommentaryScreen::addTagList()
{
    for (const CommentaryTag &tag : m_table.tags) {
        m_tags->addItem(QLatin1StringView(tag.item));
        m_rules.known << QLatin1StringView(tag.tag);
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
        connect(line, &QLineEdit::textChanged, this, &CommentaryScreen::hint);
        connect(line, &QLineEdit::cursorPositionChanged, this, &CommentaryScreen::hint);
        connect(line, &CommentaryLine::spread, this, [this, row](int lines) {
            m_announcement->tell(u"Pasted into lines %1 to %2."_s.arg(row + 1).arg(row + lines));
        });
        connect(line, &CommentaryLine::tagsRequested, m_tags, &ComboBox::showPopup);
    }
    column().addLayout(grid);
    add(m_hint, "taghint");
    column().addWidget(m_hint);
    connect(qApp, &QApplication::focusChanged, this, &CommentaryScreen::hint);
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
        goToMarkedLine(); // its yellow promises that typed text goes there
        hint();           // other screens decide what is refused
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
    hint();
}

void CommentaryScreen::hint()
{
    if (!isVisible()) {
        return;
    }
    QStringList hints;
    for (const bool isMarked : {true, false}) {
        for (const CommentaryLine *line : m_lines) {
            if (line->isMarked() == isMarked) {
                hints << hintsFor(*line);
            }
        }
    }
    m_hint->showHints(hints);
    if (hints.value(0) != m_told && !hints.isEmpty()) {
        m_spokenHint->tell(hints.front());
    }
    m_told = hints.value(0);
}

QStringList CommentaryScreen::hintsFor(const CommentaryLine &line) const
{
    const bool isTyping = focusWidget() == &line;
    const std::optional<qsizetype> cursor =
        isTyping ? std::optional<qsizetype>(line.cursorPosition()) : std::nullopt;
    QStringList hints = tags::problemsIn(line.text(), m_rules, cursor);
    const auto number = 1 + (std::find(m_lines.begin(), m_lines.end(), &line) - m_lines.begin());
    for (QString &each : hints) {
        each = u"Line %1: "_s.arg(number) + each;
    }
    return hints;
}

QString CommentaryScreen::refusalOf(const QString &tag) const
{
    for (const CommentaryTag &row : m_table.tags) {
        const Refusal *refusal = tag == QLatin1StringView(row.tag) ? row.refusal : nullptr;
        if (refusal != nullptr && refusal->isRefused(m_screens.text(refusal->box))) {
            return QLatin1StringView(refusal->message);
        }
    }
    return {};
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
    for (CommentaryLine *&line : m_lines) {
        if (line->isMarked()) {
            line->append(tag);
            const QString number = QString::number(1 + (&line - m_lines.data()));
            outcome = u"Inserted %1 into line %2."_s.arg(tag, number);
        }
    }
    return tag.isEmpty() ? u"Nothing was inserted."_s : outcome;
}

bool CommentaryScreen::accepts(const CommentaryTag &tag)
{
    const Refusal *refusal = tag.refusal;
    if (refusal != nullptr && refusal->isRefused(m_screens.text(refusal->box))) {
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
