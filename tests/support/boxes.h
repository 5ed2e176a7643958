#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <deque>
#include <functional>

class QMessageBox;

namespace tarvold::testing {

/// How a test answers a message box.
enum class Answer {
    Ok,
    Yes,
    No,
    Elsewhere, ///< "Save To Another File..."
    Enter,     ///< the Enter key, pressed on the box
    Escape,    ///< the Escape key, pressed on the box
    Close,     ///< the box's own close button
};

/// A message box that a test expects.
struct ExpectedBox
{
    QString title;
    QString text;
    QStringList buttons; ///< without mnemonics, sorted
    Answer answer;
};

/// Answers message boxes from inside their event loop, in the order in which a test expects them,
/// checking title, text, buttons, the missing icon and the plain text format. A box that no test
/// expects is closed and fails the test.
class Boxes : public QObject
{
    Q_OBJECT
public:
    Boxes();

    /// A notice with OK only.
    void expectNotice(const QString &title, const QString &text, Answer answer = Answer::Ok);

    /// A question with Yes and No.
    void expectQuestion(const QString &title, const QString &text, Answer answer);

    /// A notice whose text is not fixed: returns what the next notice said through `text`.
    void catchNotice(const QString &title, QString *text);

    /// The message of a failed save, with "Save To Another File..." beside OK.
    void expectFailedSave(const QString &title, const QString &text, Answer answer = Answer::Ok);

    /// The same for one whose text is not fixed, as catchNotice().
    void catchFailedSave(const QString &title, QString *text, Answer answer = Answer::Ok);

    /// The same for a question.
    void catchQuestion(const QString &title, QString *text, Answer answer);

    /// Does something with the box that was expected last, before it is answered.
    void beforeItsAnswer(const std::function<void(QMessageBox &)> &action);

    /// Fails the test if an expected box has not come. Call it after the event that brings it.
    void checkAllCame();

private:
    struct Awaited : ExpectedBox
    {
        QString *caught = nullptr;
        std::function<void(QMessageBox &)> before = {};
    };

    void look();
    static void check(const QMessageBox &box, const Awaited &awaited);

    std::deque<Awaited> m_awaited;
    QTimer m_timer;
};

} // namespace tarvold::testing
