#pragma once

#include "shell/screen.h"

class QStringListModel;

namespace tarvold {

class ListBox;
class Screens;

/// The import: first the kind of record, then the file to import from and the one to import into.
class Form2 : public Screen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form2";

    explicit Form2(Screens &screens);

private:
    void addKindButtons();
    void addFileChoice();
    void addButtons();
    void goToKinds();
    void goToFiles(const QString &kind, const QString &target);
    void refreshFiles();
    /// The name of the selected file; an empty one when none is selected.
    QString selectedFile() const;
    void back();
    void close();
    void import();
    bool merge(const QString &source, const QString &target);
    void setShown(std::initializer_list<const char *> controls, bool shown);

    Screens &m_screens;
    QStringListModel *m_names;
    ListBox *m_files;
    QString importstatus; ///< "Yes" once a target name has passed its check; never cleared
};

} // namespace tarvold
