// The rows of a record as it is written: labels and editors, and their colours.

#include "controls/contrast.h"
#include "controls/controls.h"
#include "controls/sizes.h"
#include "records/field_editor.h"
#include "records/record_fields_view.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>

namespace tarvold::records {

using namespace Qt::StringLiterals;

std::unique_ptr<RecordFieldsView::Form> RecordFieldsView::newForm(const Catalog &catalog)
{
    auto form = std::make_unique<Form>();
    form->catalog = &catalog;
    form->place = new QWidget;
    auto *grid = new QGridLayout(form->place);
    grid->setContentsMargins(0, 0, kRowGap, 0); // beside the scroll bar, which is always there
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kRowGap);
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(2, 3);
    for (int field = 0; field <= catalog.fieldCount(); ++field) {
        form->rows.push_back(newRow(*grid, catalog, field));
    }
    grid->setRowStretch(grid->rowCount(), 1);
    recolour(*form);
    return form;
}

QLabel *RecordFieldsView::newLabel(QGridLayout &grid, int row, int column, int columns,
                                   const QString &name)
{
    auto *label = new QLabel(grid.parentWidget());
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    grid.addWidget(label, row, column, 1, columns);
    return label;
}

RecordFieldsView::Row RecordFieldsView::newRow(QGridLayout &grid, const Catalog &catalog, int field)
{
    const int top = 3 * field;
    const QString number = QString::number(field + 1);
    Row row{};
    row.surplus = newLabel(grid, top, 1, 2, u"surplus"_s + number);
    row.surplus->hide();
    if (field == catalog.fieldCount()) {
        return row;
    }
    const KnownField &known = catalog.fields().at(std::size_t(field));
    row.number = newLabel(grid, top + 1, 0, 1, u"number"_s + number);
    row.number->setWordWrap(false);
    row.number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row.number->setText(number);
    row.caption = newLabel(grid, top + 1, 1, 1, u"caption"_s + number);
    row.caption->setText(known.caption);
    for (QLabel *label : {row.number, row.caption}) { // beside the first line of a high editor
        label->setMinimumHeight(kControlHeight);
        grid.setAlignment(label, Qt::AlignTop);
    }
    row.editor = newEditor(grid, known, field);
    row.caption->setBuddy(&row.editor->control()); // assistive technology names a list by its label
    grid.addWidget(&row.editor->control(), top + 1, 2);
    row.note = newLabel(grid, top + 2, 2, 1, u"note"_s + number);
    row.note->hide();
    return row;
}

FieldEditor *RecordFieldsView::newEditor(QGridLayout &grid, const KnownField &known, int field)
{
    auto *editor = new FieldEditor(known, grid.parentWidget());
    const QString number = QString::number(field + 1);
    editor->control().setObjectName(u"field"_s + number);
    controls::describe(editor->control(), known.caption, u"Line "_s + number);
    connect(editor, &FieldEditor::finished, this, [this, field] { commitField(field); });
    connect(editor, &FieldEditor::edited, this, [this] {
        if (!m_pendingTimer.isActive()) {
            m_pendingTimer.start();
        }
    });
    return editor;
}

void RecordFieldsView::disconnectEditors()
{
    // An editor that has the focus is left when it goes.
    for (const Row &row : m_form != nullptr ? m_form->rows : std::vector<Row>()) {
        if (row.editor != nullptr) {
            row.editor->disconnect(this);
        }
    }
}

void RecordFieldsView::dropForm()
{
    disconnectEditors();
    if (m_form != nullptr) {
        m_form->place->hide();
        m_form->place->setParent(nullptr);
        m_form->place->deleteLater(); // an editor may be telling what makes it go
        m_form.reset();
    }
}

void RecordFieldsView::recolour(const Form &form)
{
    QPalette colours;
    colours.setColor(
        QPalette::WindowText,
        contrast::visible(Qt::red, {colours.color(QPalette::Window)}, contrast::kText));
    for (const Row &row : form.rows) {
        row.surplus->setPalette(colours);
        if (row.editor != nullptr) {
            row.note->setPalette(colours);
            row.editor->followPalette();
        }
    }
}

void RecordFieldsView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_form != nullptr) {
        recolour(*m_form);
    }
}

} // namespace tarvold::records
