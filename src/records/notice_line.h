#pragma once

#include <QWidget>

namespace tarvold {
class Announcement;
class HintLine;
class PushButton;
} // namespace tarvold

namespace tarvold::records {

/// One quiet line at the foot of a window. It says what the user should know of the file, with a
/// button that reads the file again where that helps; else what was done last. It takes the same
/// height whether it says something or not. Screen readers read it out: at once in the window that
/// is in use, in any other when the user comes back to it.
class NoticeLine : public QWidget
{
    Q_OBJECT
public:
    explicit NoticeLine(QWidget *parent = nullptr);

    /// Says what is so until another text comes; an empty one ends it.
    void notice(const QString &text, bool offersReload);
    /// Says what was done.
    void tell(const QString &text);
    /// Announces a text that is shown elsewhere.
    void announce(const QString &text);
    /// Gives the focus to the button. No proxy of the line's own focus does that, as Tab would stop
    /// at a hidden button.
    void focusReload();

signals:
    void reloadRequested();

protected:
    bool event(QEvent *event) override;

private:
    void show();
    void announceInsteadOf(const QString &before, const QString &text);

    QString m_notice;
    QString m_told;
    HintLine *m_line;
    PushButton *m_reload;
    Announcement *m_announcement;
    QString m_unsaid; ///< what is announced when the window is in use again
};

} // namespace tarvold::records
