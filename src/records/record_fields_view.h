#pragma once

#include "records/problems.h"
#include "records/record.h"

#include <QTimer>
#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

class QGridLayout;
class QLabel;

namespace tarvold {
class ScrollPane;
}

namespace tarvold::records {

class FieldEditor;

/// A record line by line: number, caption and editor of each field, a missing line shown as such,
/// and a surplus line as such at its place. What is wrong with a line stands below it.
///
/// A text is kept when its editor is left, by Enter, and by commit(). The editors are made once for
/// all records of a kind, but none before the view is shown or prepare() is called, as that takes
/// longer than all else that shows a record.
class RecordFieldsView : public QWidget
{
    Q_OBJECT
public:
    /// The text of each field's line; nothing where it is missing.
    using Lines = std::vector<std::optional<QString>>;

    explicit RecordFieldsView(QWidget *parent = nullptr);
    ~RecordFieldsView() override;
    Q_DISABLE_COPY_MOVE(RecordFieldsView)

    /// Shows a record, scrolled to its top.
    void showRecord(const Record &record);
    /// Shows a record that is the same but for its bytes: the focus, the cursor, the scroll
    /// position and what is pending stay.
    void updateRecord(const Record &record);
    /// Forgets what is pending, as no record is chosen.
    void clear();

    /// Makes the editors from now on, so that they are shown without a pause.
    void prepare();

    void setProblems(const std::vector<Problem> &problems);

    /// Whether the editors take text.
    void setEditable(bool editable);

    /// Keeps what is pending in any editor. Returns `false` if an editor holds a character that the
    /// file cannot hold: its text stays there, and a message tells the user.
    bool commit();
    bool hasPending() const;

    const Lines &lines() const { return m_lines; }
    /// The field whose line differs from another record's: this one if it does, else the first.
    std::optional<int> differenceTo(const Lines &other, int field) const;
    QString captionOf(int field) const;

    /// Marks the lines that hold a text, whatever the letter case, and scrolls to the first of
    /// them, now and in each record that is shown from now on. An empty text ends that.
    void setSearch(const QString &text);
    /// The next line that holds it behind the one with the focus, round the end.
    std::optional<int> nextMatch();

    /// Gives the focus to a field's editor.
    void goToField(int field);
    /// Goes to the field of a line of the record, from 0, or scrolls to a surplus line.
    void goToLine(int line);

signals:
    /// The user changed a field.
    /// \param line as it stands in the file, without an end
    void lineEdited(int field, const QByteArray &line);
    /// A text could not be kept, and its editor has to be in sight for the message.
    void refused(int field);
    /// What hasPending() tells may have changed.
    void pendingChanged();

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    struct Row
    {
        QLabel *surplus; ///< the lines before this field that hold no field; hidden if none
        QLabel *number;
        QLabel *caption;
        FieldEditor *editor; ///< null in the last row, behind the last field
        QLabel *note;        ///< what is wrong; hidden if nothing
        bool isMatch;        ///< holds the text that is searched for
    };
    /// The rows of one kind.
    struct Form
    {
        const Catalog *catalog;
        QWidget *place;
        std::vector<Row> rows;
    };

    void disconnectEditors();
    void dropForm();
    std::unique_ptr<Form> newForm(const Catalog &catalog);
    Row newRow(QGridLayout &grid, const Catalog &catalog, int field);
    FieldEditor *newEditor(QGridLayout &grid, const KnownField &known, int field);
    static QLabel *newLabel(QGridLayout &grid, int row, int column, int columns,
                            const QString &name);
    void read(const Record &record);
    void fill();
    void showNotes();
    /// The row before whose field a surplus line stands.
    std::size_t rowBehind(int line) const;
    static void showNote(const Row &row, const QString &note);
    static void describe(const Row &row);
    bool isMatch(const QString &line) const;
    void markMatches();
    void mark(Row &row, bool isMatch) const;
    void revealMatchSoon();
    void revealMatch();
    static void recolour(const Form &form);
    bool commitField(int field);
    void refuse(int field, char32_t character);
    void tellRefusal(int field, char32_t character);

    ScrollPane *m_pane;
    std::unique_ptr<Form> m_form;       ///< null until it is needed
    bool m_isPrepared = false;          ///< see prepare()
    const Catalog *m_catalog = nullptr; ///< of the record; null until the first one is shown
    std::vector<int> m_lineOfField;     ///< see Layout
    Lines m_lines;
    std::vector<QStringList> m_notes;     ///< by field: what is wrong
    std::vector<QStringList> m_surplusAt; ///< by row: what is told of the lines that hold no field
    QStringList m_surplus;                ///< these lines
    std::vector<int> m_surplusLines;      ///< the same by their numbers, from 0
    QString m_search;
    bool m_mustReveal = false; ///< the first line that holds it is to be scrolled to
    QTimer m_pendingTimer;
    bool m_isRefusing = false; ///< a message is shown, or about to be
};

} // namespace tarvold::records
