#pragma once

#include <QObject>

class QDropEvent;
class QWidget;

namespace tarvold {

/// Takes data files ("*.tvd") that are dragged from a file manager and dropped on a widget. Other
/// drags are left to the widget. A file is only opened, so the drop never counts as moving it.
class FileDrop : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// Takes what is dropped on a widget. A widget in it that accepts drops itself needs a call of
    /// its own.
    void watch(QWidget &target);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// The user dropped a file. Emitted once for each, and after the drag has ended, so that a
    /// message box does not keep the other program waiting.
    void dropped(const QString &path);

private:
    /// Accepts the drag if it has data files; returns whether it does.
    static bool accepts(QDropEvent &event);
};

} // namespace tarvold
