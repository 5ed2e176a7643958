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
/// `listpos` holds "NEW" while a new stipulation is created, else the index of the first line of
/// the one that was last edited or deleted.
class Form16 : public Screen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form16";

    explicit Form16(Screens &screens);

    /// Loads the file that the main menu names, and replaces the menu by the list. If the name or
    /// the file cannot be used, says why on the menu.
    void enter();

    /// Replaces the list by the form, for a new stipulation.
    void createNew();

protected:
    QWidget *firstField() const override;

private:
    void addList();
    void addButtons();
    Form3 &form();
    QString fileName() const;
    Result<void> load(const QString &name);
    void edit();
    void remove();
    /// Where all stipulations start that look like the selected one, in the order of the file. The
    /// last is the one to edit or delete. Empty when none is selected, which the user is told.
    std::vector<int> findSelected();
    int listPosition() const;
    /// Whether the form can show the stipulation at `listpos`; tells the user when it cannot.
    bool fitsTheForm();
    /// Stores what the form submitted, in another file if the user wants that.
    void store(const StipulationTable::Record &record);
    /// Appends a record that is new, or replaces the one at `listpos`.
    void put(const StipulationTable::Record &record, StipulationTable &table) const;
    /// Changes the file and the list, or neither. If another program changed the file meanwhile,
    /// asks the user whether to overwrite that.
    /// \param asking the screen in front of the user
    /// \param kept what the answer No leaves
    Result<void> change(QWidget &asking, const QString &kept, const StipulationTable::Edit &edit);

    Screens &m_screens;
    StipulationTable m_stipulations;
    StipulationListModel *m_model;
    ListBox *m_list;
};

} // namespace tarvold
