#include "records/editor_keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QWidget>

namespace tarvold::records {
namespace {

/// Whether an editor can do what the key asks for.
struct Possible
{
    bool undo;
    bool redo;
};

Possible possibleIn(const QObject &editor)
{
    if (const auto *box = qobject_cast<const QLineEdit *>(&editor)) {
        return {box->isUndoAvailable(), box->isRedoAvailable()};
    }
    if (const auto *text = qobject_cast<const QPlainTextEdit *>(&editor)) {
        return {text->document()->isUndoAvailable(), text->document()->isRedoAvailable()};
    }
    if (const auto *text = qobject_cast<const QTextEdit *>(&editor)) {
        return {text->document()->isUndoAvailable(), text->document()->isRedoAvailable()};
    }
    return {true, false}; // no editor of Qt's: it decides itself
}

} // namespace

EditorKeys::EditorKeys(QWidget &window) : QObject(&window), m_window(window)
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *before, QWidget *now) {
        if (before != nullptr) {
            before->removeEventFilter(this);
        }
        if (now != nullptr && m_window.isAncestorOf(now)) {
            now->installEventFilter(this);
        }
    });
}

bool EditorKeys::eventFilter(QObject *watched, QEvent *event)
{
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if (!isOverride && event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(watched, event);
    }
    const auto &key = *static_cast<QKeyEvent *>(event);
    const Possible possible = possibleIn(*watched);
    // Editors on Linux do not know this key.
    if (possible.redo && key.modifiers() == Qt::ControlModifier && key.key() == Qt::Key_Y) {
        if (!isOverride) {
            QMetaObject::invokeMethod(watched, "redo");
        }
        event->accept();
        return true;
    }
    if (isOverride && ((key.matches(QKeySequence::Undo) && !possible.undo) ||
                       (key.matches(QKeySequence::Redo) && !possible.redo))) {
        event->ignore();
        return true; // the window's shortcut gets it
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tarvold::records
