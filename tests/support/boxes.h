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
    Save,
    Discard,
    Cancel,
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

/// Answers message boxes from inside their event loop, in the expected order, and checks their
/// title, text, buttons, plain text format and that there is no icon. An unexpected box is closed
/// and fails the test.
class Boxes : public QObject
{
    Q_OBJECT
public:
    Boxes();

    /// Expects a notice with only OK.
    void expectNotice(const QString &title, const QString &text, Answer answer = Answer::Ok);

    /// Expects a question with Yes and No.
    void expectQuestion(const QString &title, const QString &text, Answer answer);

    /// Expects a notice whose text is not fixed, and stores its text in `text`.
    void catchNotice(const QString &title, QString *text);

    /// Expects the message about a failed save, with "Save To Another File..." beside OK.
    void expectFailedSave(const QString &title, const QString &text, Answer answer = Answer::Ok);

    /// Expects a failed save as expectFailedSave(), and stores the text in `text`.
    void catchFailedSave(const QString &title, QString *text, Answer answer = Answer::Ok);

    /// Expects a question, and stores its text in `text`.
    void catchQuestion(const QString &title, QString *text, Answer answer);

    /// Expects the question what should become of changes that are not saved.
    void expectUnsaved(const QString &title, const QString &text, Answer answer);

    /// Expects the question whether to save changes before something else is done.
    void expectSave(const QString &title, const QString &text, Answer answer);

    /// Runs `action` on the box that was expected last, before it is answered.
    void beforeItsAnswer(const std::function<void(QMessageBox &)> &action);

    /// Fails the test if an expected box has not been shown. Call it after the event that shows it.
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
