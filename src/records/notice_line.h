#pragma once

#include <QWidget>

namespace tarvold {
class Announcement;
class HintLine;
class PushButton;
} // namespace tarvold

namespace tarvold::records {

/// One quiet line that says what the user should know of the file, with a button that reads the
/// file again where that helps. It always takes the same room, so that nothing moves when it says
/// something. Screen readers read it out.
class NoticeLine : public QWidget
{
    Q_OBJECT
public:
    explicit NoticeLine(QWidget *parent = nullptr);

    /// Says something; an empty text clears the line.
    void show(const QString &text, bool offersReload);

    const QString &text() const { return m_text; }

signals:
    void reloadRequested();

private:
    QString m_text;
    HintLine *m_line;
    PushButton *m_reload;
    Announcement *m_announcement;
};

} // namespace tarvold::records
