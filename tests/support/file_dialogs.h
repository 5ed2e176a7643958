#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <deque>

class QFileDialog;

namespace tarvold::testing {

/// How a test answers a file dialog.
struct FileAnswer
{
    QString folder;    ///< that the dialog must show initially
    QString proposed;  ///< the name that the dialog must propose
    QString typed;     ///< over the proposed name
    bool saves = true; ///< true presses Enter, false presses Escape
    QString title = QStringLiteral("Save To Another File");
};

/// Answers the dialog for saving to another file from inside its event loop. It is Qt's own dialog,
/// as no desktop provides one here.
class FileDialogs : public QObject
{
    Q_OBJECT
public:
    FileDialogs();

    /// Expects a dialog and answers it so.
    void expect(const FileAnswer &answer) { m_awaited.push_back(answer); }

    /// Fails the test if an expected dialog has not been shown.
    void checkAllCame();

private:
    void look();

    std::deque<FileAnswer> m_awaited;
    QTimer m_timer;
};

} // namespace tarvold::testing
