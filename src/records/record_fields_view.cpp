#include "records/record_fields_view.h"

#include "controls/bounded_column.h"
#include "controls/lay_out.h"
#include "controls/long_text.h"
#include "controls/scroll_pane.h"
#include "controls/sizes.h"
#include "records/field_editor.h"

#include <QLabel>
#include <QScrollBar>

#include <algorithm>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostOfASurplusLine = 2000; ///< of a text that cannot be edited
constexpr qsizetype kMostSurplus = 20;          ///< lines at one place

} // namespace

RecordFieldsView::RecordFieldsView(QWidget *parent) : QWidget(parent), m_pane(new ScrollPane(this))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_pane);
    m_pane->setObjectName(u"fields"_s);
    // Else texts would wrap anew whenever the bar comes or goes.
    m_pane->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    // Once for all editors, which get other texts when another record is shown.
    m_pendingTimer.setSingleShot(true);
    m_pendingTimer.setInterval(0);
    connect(&m_pendingTimer, &QTimer::timeout, this, &RecordFieldsView::pendingChanged);
}

RecordFieldsView::~RecordFieldsView()
{
    disconnectEditors();
}

void RecordFieldsView::clear()
{
    for (const Row &row : m_form != nullptr ? m_form->rows : std::vector<Row>()) {
        if (row.editor != nullptr) {
            row.editor->revert();
        }
    }
}

void RecordFieldsView::showRecord(const Record &record)
{
    clear();
    updateRecord(record);
    m_pane->verticalScrollBar()->setValue(0);
    revealMatchSoon();
}

void RecordFieldsView::updateRecord(const Record &record)
{
    m_catalog = &record.catalog();
    read(record);
    if (m_form != nullptr && m_form->catalog != m_catalog) {
        dropForm();
    }
    if (m_isPrepared) {
        fill();
    }
}

void RecordFieldsView::read(const Record &record)
{
    const auto fields = std::size_t(record.catalog().fieldCount());
    m_lines.clear();
    for (std::size_t field = 0; field < fields; ++field) {
        m_lines.push_back(record.lineText(int(field)));
    }
    m_notes.assign(fields, {});
    m_lineOfField = record.layout().lineOfField;
    m_surplusAt.assign(fields + 1, {});
    m_surplusLines.clear();
    m_surplus.clear();
    for (const int line : record.layout().surplus) {
        QStringList &here = m_surplusAt.at(rowBehind(line));
        if (here.size() < kMostSurplus) {
            const QString text = codepage::decode(record.lines().at(std::size_t(line)).text);
            m_surplusLines.push_back(line);
            m_surplus << text;
            here << u"Line too many: \"%1\""_s.arg(longtext::quoted(text, kMostOfASurplusLine));
        } else if (here.size() == kMostSurplus) {
            here << u"And more."_s;
        }
    }
}

/// Shows the record in the rows, which are made first where the kind has none yet.
void RecordFieldsView::fill()
{
    setUpdatesEnabled(false);
    if (m_form == nullptr) {
        m_form = newForm(*m_catalog);
        m_pane->column().addWidget(m_form->place);
        m_pane->setMinimumWidth(m_form->place->minimumSizeHint().width() +
                                m_pane->verticalScrollBar()->sizeHint().width() + kRowGap);
    }
    for (std::size_t field = 0; field < m_lines.size(); ++field) {
        m_form->rows.at(field).editor->show(m_lines[field]);
    }
    for (std::size_t row = 0; row < m_surplusAt.size(); ++row) {
        QLabel *label = m_form->rows.at(row).surplus;
        label->setText(longtext::breakable(m_surplusAt[row].join(u'\n')));
        label->setVisible(!m_surplusAt[row].isEmpty());
    }
    markMatches();
    setUpdatesEnabled(true);
}

void RecordFieldsView::prepare()
{
    m_isPrepared = true;
    if (m_form == nullptr && m_catalog != nullptr) {
        fill();
        showNotes();
        m_form->place->show(); // Qt would do both later, and the places of editors are asked for
        layOutNow(*m_pane);
    }
}

std::size_t RecordFieldsView::rowBehind(int line) const
{
    const auto behind = std::find_if(m_lineOfField.begin(), m_lineOfField.end(),
                                     [line](int other) { return other > line; });
    return std::size_t(behind - m_lineOfField.begin());
}

void RecordFieldsView::setProblems(const std::vector<Problem> &problems)
{
    m_notes.assign(m_notes.size(), {});
    for (const Problem &problem : problems) {
        if (problem.field >= 0 && std::size_t(problem.field) < m_notes.size()) {
            m_notes.at(std::size_t(problem.field)) << problem.text;
        }
    }
    showNotes();
}

void RecordFieldsView::showNotes()
{
    for (std::size_t field = 0; m_form != nullptr && field < m_notes.size(); ++field) {
        showNote(m_form->rows.at(field), m_notes.at(field).join(u'\n'));
    }
}

void RecordFieldsView::showNote(const Row &row, const QString &note)
{
    const QString shown = longtext::breakable(note);
    if (row.note->text() == shown) {
        return;
    }
    row.note->setText(shown);
    row.note->setVisible(!note.isEmpty());
    describe(row);
}

void RecordFieldsView::setEditable(bool editable)
{
    m_pane->widget()->setEnabled(editable);
}

void RecordFieldsView::goToField(int field)
{
    prepare();
    if (m_form == nullptr || field < 0 || field >= m_form->catalog->fieldCount()) {
        return;
    }
    QWidget &control = m_form->rows.at(std::size_t(field)).editor->control();
    control.setFocus(Qt::OtherFocusReason);
    m_pane->ensureWidgetVisible(&control);
}

void RecordFieldsView::goToLine(int line)
{
    prepare();
    if (m_form == nullptr) {
        return;
    }
    const auto field = std::find(m_lineOfField.begin(), m_lineOfField.end(), line);
    if (field != m_lineOfField.end()) {
        goToField(int(field - m_lineOfField.begin()));
        return;
    }
    QLabel *surplus = m_form->rows.at(rowBehind(line)).surplus;
    if (surplus->isVisible()) {
        m_pane->ensureWidgetVisible(surplus);
    }
}

} // namespace tarvold::records
