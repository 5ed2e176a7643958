#pragma once

#include "records/catalog.h"

#include <QObject>

#include <optional>

class QKeyEvent;
class QWidget;

namespace tarvold {
class ComboBox;
}

namespace tarvold::records {

class WrappedBox;

/// The editor of one field: a list with a box for any text where the field's screen offers a list,
/// else a text box that shows all of a long text.
///
/// What the user has put in is *pending* until it is taken: by keep(), which belongs to finished().
/// Escape brings back what was there.
class FieldEditor : public QObject
{
    Q_OBJECT
public:
    /// \param known lives longer
    /// \param parent owns the control, too
    FieldEditor(const KnownField &known, QWidget *parent);

    QWidget &control() const { return *m_control; }
    const KnownField &known() const { return m_known; }

    /// Shows a line of the file, or that it is missing. What is pending stays, and so does the
    /// cursor where the text is the same.
    void show(const std::optional<QString> &line);

    /// Whether it shows another text than the record, or an item was picked whose word is not that
    /// of the record, although both look the same: "Pin" stands for "p".
    bool isPending() const;
    /// Whether an input method is composing a text, which is in no box yet.
    bool isComposing() const { return !m_composed.isEmpty(); }
    /// Puts that text into the box, as if the user had finished it.
    void endComposition();
    /// The line for what is pending.
    QString pendingLine() const;
    /// Takes what is pending as what is there.
    void keep();
    /// Takes its colours from the desktop's anew.
    void followPalette();
    /// Forgets what is pending.
    void revert();

signals:
    /// The user left the editor, pressed Enter or picked an item.
    void finished();
    /// Its text, or what isPending() tells, may be another.
    void edited();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QString text() const;
    void setText(const QString &text);
    void setPlaceholder(const QString &text);
    bool filterKey(QKeyEvent &key);

    const KnownField &m_known;
    ComboBox *m_combo = nullptr;
    WrappedBox *m_box = nullptr;
    QWidget *m_control;
    QString m_shown;               ///< what the control shows of the file
    std::optional<QString> m_line; ///< that this stands for
    bool m_isPicked = false;       ///< from the list, since it was shown or kept
    QString m_composed;            ///< by an input method, and not finished
    QString m_long; ///< the text of a list's box that shows only its beginning and end
};

} // namespace tarvold::records
