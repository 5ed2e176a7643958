#pragma once

#include "datafiles/stipulation_table.h"
#include "shell/screen.h"

#include <optional>

namespace tarvold {

class Screens;

/// The form of one match stipulation.
///
/// It shows and checks; the list opens it, keeps the table and stores what the form submits. Which
/// stipulation is edited stands in the list's `listpos`.
class Form3 : public Screen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form3";

    explicit Form3(Screens &screens);

    /// Shows what a new stipulation starts from.
    /// \param table the stipulations to check against, kept by the caller while the form is open
    void showDefaults(const StipulationTable &table);

    /// Shows the stipulation that starts at an index of the table.
    void showRecord(const StipulationTable &table, int index);

signals:
    /// The user wants to save; the record has passed all checks.
    void submitted(const tarvold::StipulationTable::Record &record);

protected:
    QWidget *firstField() const override;

private:
    void addForm();
    void addValueTable();
    void addButtons();
    void showInjuryRisk(const QString &line);
    void showExclusive(const QString &line);
    void showQuality(const QString &line);
    void save();
    bool passesChecks();
    int countDuplicates() const;
    std::optional<QString> qualityLine() const;
    std::optional<StipulationTable::Record> composed();

    Screens &m_screens;
    const StipulationTable *m_table = nullptr;
};

} // namespace tarvold
