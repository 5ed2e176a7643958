#include "controls/message_box.h"
#include "datafiles/code_page.h"
#include "records/field_editor.h"
#include "records/record_fields_view.h"
#include "screens/failures.h"

#include <algorithm>

namespace tarvold::records {

bool RecordFieldsView::hasPending() const
{
    return m_form != nullptr &&
           std::any_of(m_form->rows.begin(), m_form->rows.end(), [](const Row &row) {
               return row.editor != nullptr &&
                      (row.editor->isPending() || row.editor->isComposing());
           });
}

bool RecordFieldsView::commit()
{
    const Form *form = m_form.get();
    bool isKept = true;
    // Whoever hears of a change may show another kind of records.
    for (int field = 0;
         form != nullptr && m_form.get() == form && field < form->catalog->fieldCount(); ++field) {
        isKept = commitField(field) && isKept;
    }
    return isKept;
}

bool RecordFieldsView::commitField(int field)
{
    FieldEditor &editor = *m_form->rows.at(std::size_t(field)).editor;
    editor.endComposition();
    if (!editor.isPending()) {
        return true;
    }
    const codepage::Encoded line = encodeLine(editor.pendingLine());
    if (line.missing) {
        refuse(field, *line.missing);
        return false;
    }
    editor.keep();
    emit lineEdited(field, line.bytes);
    return true;
}

void RecordFieldsView::refuse(int field, char32_t character)
{
    if (m_isRefusing) {
        return;
    }
    m_isRefusing = true;
    // Not now: the focus is just leaving the editor, and a message would take it, too.
    QMetaObject::invokeMethod(
        this, [this, field, character] { tellRefusal(field, character); }, Qt::QueuedConnection);
}

void RecordFieldsView::tellRefusal(int field, char32_t character)
{
    const QString caption =
        m_form != nullptr ? m_form->catalog->fields().at(std::size_t(field)).caption : QString();
    emit refused(field);
    messagebox::notice(window(), QLatin1StringView(messagebox::kTitle),
                       failures::cannotHold({caption, character}), messagebox::Blocks::Window);
    m_isRefusing = false;
    goToField(field);
}

} // namespace tarvold::records
