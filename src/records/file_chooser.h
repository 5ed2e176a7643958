#pragma once

#include <QStringList>
#include <QWidget>

class QStringListModel;

namespace tarvold {

class ListBox;
class PushButton;

namespace records {

/// A window that offers the data files of the current folder, for a start without a file. It closes
/// once files were chosen, and deletes itself.
class FileChooser : public QWidget
{
    Q_OBJECT
public:
    explicit FileChooser(QWidget *parent = nullptr);

signals:
    /// The user wants to open these files. Open their windows at once: this one closes next, and
    /// the program ends with its last window.
    void chosen(const QStringList &names);

private:
    void addList();
    void addButtons();
    QStringList selectedNames() const;
    void open(const QStringList &names);
    void chooseElsewhere();

    QStringListModel *m_names;
    ListBox *m_list;
    PushButton *m_open;
};

} // namespace records
} // namespace tarvold
