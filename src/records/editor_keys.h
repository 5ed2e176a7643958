#pragma once

#include <QObject>

class QWidget;

namespace tarvold::records {

/// Leaves Ctrl+Z and Ctrl+Y to a text editor only as long as it has something to undo or redo. Qt's
/// own editors keep these keys even then, so the window's Undo would not be reached.
class EditorKeys : public QObject
{
    Q_OBJECT
public:
    /// \param window whose editors are meant; becomes the owner
    explicit EditorKeys(QWidget &window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget &m_window;
};

} // namespace tarvold::records
