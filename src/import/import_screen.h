#pragma once

#include "screens/screen.h"

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

protected:
    QWidget *firstField() const override;

private:
    enum class Stage { Kinds, Files };

    void addKindButtons();
    void addFileChoice();
    void addButtons();
    void showStage(Stage stage);
    void goToKinds();
    void goToFiles(const QString &kind, const QString &target);
    void refreshFiles();
    /// The name of the selected file; an empty one when none is selected.
    QString selectedFile() const;
    void back();
    void leave();
    void runImport();
    bool merge(const QString &source, const QString &target);

    Screens &m_screens;
    QStringListModel *m_names;
    ListBox *m_files;
    QString importstatus; ///< "Yes" once a target name has passed its check; never cleared
};

} // namespace tarvold
