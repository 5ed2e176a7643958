// Which lines of a record hold what is searched for, and where it differs from another.

#include "controls/controls.h"
#include "controls/scroll_pane.h"
#include "controls/sizes.h"
#include "datafiles/code_page.h"
#include "records/field_editor.h"
#include "records/field_text.h"
#include "records/record_fields_view.h"

#include <QApplication>
#include <QLabel>

#include <algorithm>

namespace tarvold::records {

using namespace Qt::StringLiterals;

std::optional<int> RecordFieldsView::differenceTo(const Lines &other, int field) const
{
    const auto differs = [&](int one) {
        const auto place = std::size_t(one);
        return place < m_lines.size() && place < other.size() && m_lines[place] != other[place];
    };
    if (field >= 0 && differs(field)) {
        return field;
    }
    for (int one = 0; one < int(m_lines.size()); ++one) {
        if (differs(one)) {
            return one;
        }
    }
    return {};
}

QString RecordFieldsView::captionOf(int field) const
{
    return m_catalog != nullptr ? m_catalog->fields().at(std::size_t(field)).caption : QString();
}

/// Whether the text stands in a line as it was saved, or saved as UTF-8 by mistake, as in the
/// search of the list.
bool RecordFieldsView::isMatch(const QString &line) const
{
    return line.contains(m_search, Qt::CaseInsensitive) ||
           line.contains(codepage::decode(m_search.toUtf8()), Qt::CaseInsensitive);
}

void RecordFieldsView::setSearch(const QString &text)
{
    if (text != m_search) {
        m_search = text;
        markMatches();
        revealMatchSoon();
    }
}

void RecordFieldsView::markMatches()
{
    const std::size_t count = m_form != nullptr ? m_lines.size() : 0;
    for (std::size_t field = 0; field < count; ++field) {
        Row &row = m_form->rows.at(field);
        const std::optional<QString> &line = m_lines[field];
        // A field that its screen shows as another text, such as "Top Rope", is found by both.
        mark(row, line && !m_search.isEmpty() &&
                      (isMatch(*line) || isMatch(fieldtext::shown(row.editor->known(), *line))));
    }
}

/// By a line below number and caption, which takes no room, and to screen readers in words.
void RecordFieldsView::mark(Row &row, bool isMatch) const
{
    if (row.isMatch == isMatch) {
        return;
    }
    row.isMatch = isMatch;
    QFont marked = font();
    marked.setUnderline(isMatch);
    for (QLabel *label : {row.number, row.caption}) {
        label->setFont(marked);
        label->setToolTip(isMatch ? u"Holds the text of the search."_s : QString());
    }
    describe(row);
}

void RecordFieldsView::describe(const Row &row)
{
    QStringList parts = {u"Line "_s + row.number->text()};
    if (row.isMatch) {
        parts << u"Holds the text of the search."_s;
    }
    if (!row.note->text().isEmpty()) {
        parts << row.note->text();
    }
    const QString text =
        parts.size() == 1 ? parts.front() : parts.front() + u". "_s + parts.mid(1).join(u' ');
    controls::describe(row.editor->control(), row.editor->known().caption, text);
}

std::optional<int> RecordFieldsView::nextMatch()
{
    prepare();
    if (m_form == nullptr) {
        return {};
    }
    const int count = m_form->catalog->fieldCount();
    int start = -1;
    for (int field = 0; field < count; ++field) {
        const QWidget &control = m_form->rows.at(std::size_t(field)).editor->control();
        const QWidget *focused = focusWidget();
        if (focused == &control || control.isAncestorOf(focused)) {
            start = control.window()->focusWidget() == focused ? field : start;
        }
    }
    for (int away = 1; away <= count; ++away) {
        const int field = (start + away) % count;
        if (m_form->rows.at(std::size_t(field)).isMatch) {
            return field;
        }
    }
    return {};
}

void RecordFieldsView::revealMatchSoon()
{
    m_mustReveal = !m_search.isEmpty();
    if (m_mustReveal && isVisible()) { // else when it is shown
        QMetaObject::invokeMethod(this, &RecordFieldsView::revealMatch, Qt::QueuedConnection);
    }
}

void RecordFieldsView::revealMatch()
{
    if (!m_mustReveal || m_form == nullptr || !isVisible()) {
        return;
    }
    m_mustReveal = false;
    const auto row = std::find_if(m_form->rows.begin(), m_form->rows.end(),
                                  [](const Row &one) { return one.isMatch; });
    if (row != m_form->rows.end()) {
        m_pane->ensureWidgetVisible(&row->editor->control(), 0, kControlHeight);
        return;
    }
    for (std::size_t place = 0; place < m_surplusLines.size(); ++place) {
        if (isMatch(m_surplus.at(qsizetype(place)))) {
            goToLine(m_surplusLines[place]);
            return;
        }
    }
}

void RecordFieldsView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    prepare();
    if (m_mustReveal) {
        QMetaObject::invokeMethod(this, &RecordFieldsView::revealMatch, Qt::QueuedConnection);
    }
}

} // namespace tarvold::records
