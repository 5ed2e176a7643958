#pragma once

#include "records/preview.h"

#include <QWidget>

#include <optional>
#include <vector>

class QGridLayout;
class QLabel;
class QTextEdit;

namespace tarvold {
class PushButton;
class ScrollPane;
class TextBox;
} // namespace tarvold

namespace tarvold::records {

/// A record as its audience reads it, and the cast that fills the tags which the record's own names
/// leave open. The user may change the cast; it lasts as long as the program, or until a button
/// brings the example back.
class ShownView : public QWidget
{
    Q_OBJECT
public:
    explicit ShownView(QWidget *parent = nullptr);

    /// Shows a record, scrolled to its top.
    void showRecord(const Record &record);
    /// Shows a record that is the same but for its bytes: the scroll position stays.
    void updateRecord(const Record &record);
    void clear();

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct CastRow
    {
        QLabel *label;
        TextBox *box;
        QString tag;
    };

    void addCast();
    void newCastRow();
    void fillCast();
    void restoreCast();
    void followCast();
    void write();
    void writeLegend(bool hasFilledIn, bool hasUnknown);

    std::optional<Record> m_record; ///< with bytes of its own
    QTextEdit *m_text;
    QLabel *m_legend;
    QLabel *m_castHeading;
    PushButton *m_castRestore;
    ScrollPane *m_castPane;
    QGridLayout *m_castGrid;
    std::vector<CastRow> m_castRows; ///< used again for each record
    Cast m_cast;                     ///< that is shown; another window may have changed it since
};

} // namespace tarvold::records
