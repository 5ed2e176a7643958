#pragma once

#include "datafiles/stipulation_table.h"
#include "screens/screen.h"

namespace tarvold {

class Form3;
class ListBox;
class Screens;
class StipulationListModel;

/// The list of match stipulations: create, edit and delete them in one file.
///
/// `listpos` holds "NEW" while a new stipulation is made, else the index of the first line of the
/// one that was last edited or deleted.
class Form16 : public Screen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form16";

    explicit Form16(Screens &screens);

    /// Loads the file that the main menu names and shows the list in the menu's place; says why not
    /// on the menu when the name or the file is unfit.
    void enter();

protected:
    QWidget *firstField() const override;

private:
    void addList();
    void addButtons();
    Form3 &form();
    QString fileName() const;
    void createNew();
    void edit();
    void remove();
    /// The selected entry, as bytes of the file; asks the user to select one when there is none.
    std::optional<QByteArray> selectedEntry();
    /// All stipulations that look like an entry of the list, in their order. The last one is the
    /// one to edit or delete.
    std::vector<int> locate(const QByteArray &entry);
    int listPosition() const;
    /// Whether the located stipulation can be shown for editing; tells the user when it cannot.
    bool fitsTheForm();
    /// Stores what the form submitted, in another file if the user wants that.
    void store(const StipulationTable::Record &record);
    std::optional<FileError> tryToStore(const StipulationTable::Record &record);
    QString notStored(const FileError &error) const;
    /// Tells the error; whether the user chose another file.
    bool goesElsewhere(const FileError &error);

    /// For the question that comes when another program changed the file meanwhile.
    struct ChangedMeanwhile
    {
        QWidget *asking; ///< the screen in front of the user
        QString kept;    ///< what the answer No leaves
    };

    /// Writes the table and lists it, or goes back to `before` when the old file is still there.
    /// Over what another program wrote meanwhile it goes only when the user says so.
    std::optional<FileError> writeBackOr(StipulationTable::Snapshot before,
                                         const ChangedMeanwhile &changed);

    Screens &m_screens;
    StipulationTable m_stipulations;
    StipulationListModel *m_model;
    ListBox *m_list;
};

} // namespace tarvold
