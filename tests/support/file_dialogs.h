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
    QString folder;    ///< that the dialog must show at first
    QString proposed;  ///< the name that must stand there at first
    QString typed;     ///< over that name
    bool saves = true; ///< by the Enter key; else Escape cancels
};

/// Answers the dialog that asks for another file from inside its event loop: Qt's own, as there is
/// no desktop that has one.
class FileDialogs : public QObject
{
    Q_OBJECT
public:
    FileDialogs();

    /// Answers the next dialog.
    void expect(const FileAnswer &answer) { m_awaited.push_back(answer); }

    /// Fails the test if an expected dialog has not come.
    void checkAllCame();

private:
    void look();

    std::deque<FileAnswer> m_awaited;
    QTimer m_timer;
};

} // namespace tarvold::testing
