#pragma once

#include "datafiles/code_page.h"
#include "datafiles/stipulation_table.h"
#include "screens/screen.h"

#include <optional>
#include <vector>

namespace tarvold {

class Screens;

namespace stipulationform {
struct FormLine;
}

/// The form of one match stipulation.
///
/// It shows and checks; the list opens it, keeps the table and stores what the form submits. The
/// list's `listpos` says which stipulation is edited.
class Form3 : public Screen
{
    Q_OBJECT
public:
    static constexpr char kName[] = "Form3";

    /// The text of the list's `listpos` while a new stipulation is created.
    static constexpr char kNew[] = "NEW";

    explicit Form3(Screens &screens);

    /// Shows what a new stipulation starts from.
    /// \param table the stipulations to check against, kept by the caller while the form is open
    void showDefaults(const StipulationTable &table);

    /// Copies the stipulations that start at these indexes of the table into the form, one after
    /// the other: the last one is shown. Of those before it only the quality can remain, if the
    /// later ones have no known quality.
    void showRecords(const StipulationTable &table, const std::vector<int> &indexes);

    /// Shows a line of a stipulation; `false` for one that its control cannot show.
    bool show(const stipulationform::FormLine &line, QByteArrayView bytes);

signals:
    /// The user wants to save; the record has passed all checks.
    void submitted(const tarvold::StipulationTable::Record &record);

protected:
    QWidget *firstField() const override;
    void showEvent(QShowEvent *event) override;

private:
    void addForm();
    /// Says of an unknown quality what becomes of it, which differs between a new stipulation and
    /// an edited one.
    void warnOfQuality(const QString &warning);
    void addValueTable();
    void addButtons();
    /// Tells by the button which file it saves in.
    void showTarget();
    void showNumber(const char *control, const QString &text);
    /// What the form shows for a line.
    QString textFor(const stipulationform::FormLine &line) const;
    void save();
    bool passesChecks();
    int countDuplicates() const;
    /// A line of the edited stipulation, as it was loaded; none of a new one.
    /// \param offset behind its first line
    std::optional<QByteArrayView> loadedLine(int offset) const;
    /// A line as bytes. What nobody changed is what was loaded, even if a field would refuse it.
    codepage::Encoded encoded(int offset, const QString &line) const;
    /// The record to store. Tells the user when it cannot be written.
    std::optional<StipulationTable::Record> composed();

    Screens &m_screens;
    const StipulationTable *m_table = nullptr;
};

} // namespace tarvold
