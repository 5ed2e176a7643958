#include "records/field_editor.h"

#include "controls/combo_box.h"
#include "controls/contrast.h"
#include "controls/long_text.h"
#include "controls/text_box.h"
#include "records/field_text.h"
#include "records/wrapped_box.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

/// What is shown of a text that is too long to be edited.
QString beginningAndEnd(const QString &text)
{
    return longtext::quoted(text, WrappedBox::kMostEdited / 10);
}

} // namespace

FieldEditor::FieldEditor(const KnownField &known, QWidget *parent) : QObject(parent), m_known(known)
{
    if (known.items.isEmpty()) {
        m_box = new WrappedBox(parent);
        m_control = m_box;
        connect(m_box, &WrappedBox::left, this, &FieldEditor::finished);
        connect(m_box, &QTextEdit::textChanged, this, &FieldEditor::edited);
    } else {
        m_combo = new ComboBox(parent);
        m_control = m_combo;
        m_combo->addItems(known.items);
        m_combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        m_combo->setMinimumContentsLength(0); // any other one allows items to be cut off
        m_combo->setText({}); // it starts with its first item, which no record has put there
        m_combo->markUnlisted(u"Not in the list."_s);
        connect(qobject_cast<TextBox *>(m_combo->lineEdit()), &TextBox::left, this,
                &FieldEditor::finished);
        connect(m_combo, &QComboBox::editTextChanged, this, &FieldEditor::edited);
        connect(m_combo, &ComboBox::chosen, this, [this] {
            m_long.clear(); // what was too long to be edited is replaced
            m_combo->lineEdit()->setReadOnly(false);
            m_isPicked = true;
            emit finished();
        });
    }
    m_control->installEventFilter(this);
}

QString FieldEditor::text() const
{
    if (m_combo == nullptr) {
        return m_box->text();
    }
    const QString shown = m_combo->currentText();
    return !m_long.isEmpty() && shown == beginningAndEnd(m_long) ? m_long : shown;
}

void FieldEditor::setText(const QString &text)
{
    if (m_combo != nullptr) {
        const int cursor = m_combo->lineEdit()->cursorPosition();
        m_long = text.size() > WrappedBox::kMostEdited ? text : QString();
        m_combo->setText(m_long.isEmpty() ? text : beginningAndEnd(text));
        m_combo->lineEdit()->setReadOnly(!m_long.isEmpty()); // its list can still be used
        m_combo->lineEdit()->setCursorPosition(m_combo->lineEdit()->hasFocus() ? cursor : 0);
    } else {
        m_box->setText(text);
    }
}

void FieldEditor::followPalette()
{
    // The style's own is too pale to read.
    QPalette colours;
    const QColor behind = colours.color(QPalette::Base);
    colours.setColor(QPalette::PlaceholderText,
                     contrast::visible(Qt::gray, {behind}, contrast::kText));
    m_control->setPalette(colours);
}

void FieldEditor::setPlaceholder(const QString &text)
{
    QLineEdit *line = m_combo != nullptr ? m_combo->lineEdit() : nullptr;
    if (text == (line != nullptr ? line->placeholderText() : m_box->placeholderText())) {
        return;
    }
    if (line != nullptr) {
        line->setPlaceholderText(text);
    } else {
        m_box->setPlaceholderText(text);
    }
}

void FieldEditor::show(const std::optional<QString> &line)
{
    const bool wasPending = isPending();
    setPlaceholder(line ? fieldtext::emptyMark(m_known, *line) : u"(missing)"_s);
    const QString shown = line ? fieldtext::shown(m_known, *line) : QString();
    m_isPicked = m_isPicked && line == m_line;
    m_line = line;
    if (shown == m_shown) {
        return;
    }
    if (wasPending) {
        m_shown = shown;
        emit edited();
        return;
    }
    setText(shown);
    m_shown = text(); // a control may show a character as another; that is no change by the user
}

QString FieldEditor::pendingLine() const
{
    return fieldtext::lineFor(m_known, text());
}

bool FieldEditor::isPending() const
{
    return text() != m_shown || (m_isPicked && pendingLine() != m_line);
}

void FieldEditor::endComposition()
{
    if (isComposing()) {
        QGuiApplication::inputMethod()->commit();
    }
    if (isComposing()) { // the input method does not do it
        QInputMethodEvent finished;
        finished.setCommitString(m_composed);
        QGuiApplication::inputMethod()->reset();
        QCoreApplication::sendEvent(m_control, &finished);
    }
}

void FieldEditor::keep()
{
    m_line = pendingLine();
    m_shown = text();
    m_isPicked = false;
    emit edited();
}

void FieldEditor::revert()
{
    m_isPicked = false;
    setText(m_shown);
}

bool FieldEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
        return filterKey(static_cast<QKeyEvent &>(*event));
    }
    if (event->type() == QEvent::InputMethod) {
        m_composed = static_cast<QInputMethodEvent &>(*event).preeditString();
    }
    return QObject::eventFilter(watched, event);
}

bool FieldEditor::filterKey(QKeyEvent &key)
{
    const bool isAsked = key.type() == QEvent::ShortcutOverride; // who wants this key
    if (!isPending() && (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo))) {
        key.ignore(); // the window undoes the last change
        return isAsked;
    }
    const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    const bool isEscape = key.key() == Qt::Key_Escape && isPending();
    if (!isEnter && !isEscape) {
        return false;
    }
    key.accept();
    if (!isAsked && isEnter) {
        emit finished();
    } else if (!isAsked) {
        revert();
    }
    return true;
}

} // namespace tarvold::records
