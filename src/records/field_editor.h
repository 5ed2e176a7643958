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

    bool isPending() const { return text() != m_shown; }
    /// The line for what is pending.
    QString pendingLine() const;
    /// Takes what is pending as what is there.
    void keep();
    /// Takes its colours from the desktop's anew.
    void followPalette();
    /// Forgets what is pending.
    void revert() { setText(m_shown); }

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
    QString m_shown; ///< what the control shows of the file
    QString m_long;  ///< the text of a list's box that shows only its beginning and end
};

} // namespace tarvold::records
