#pragma once

#include "screens/form_grid.h"
#include "screens/screen.h"

#include <span>
#include <vector>

namespace tarvold {

/// What ">>" puts into an empty box.
struct Fill
{
    const char *control;
    const char *text;
    std::vector<const char *> alsoToFirstItem = {}; ///< combo boxes that then show their first item
};

/// A screen of fields, as a table.
struct DetailsTable
{
    const char *name;
    const char *heading;
    std::span<const Field> fields;
    const char *helpLabel;
    std::span<const Fill> fills = {}; ///< what ">>" does, in this order
    const char *noteLabel = nullptr;  ///< a fixed note under the heading, if any
    const char *note = nullptr;
};

/// A screen that asks for details: fields with their help, "<<" (Command1) and ">>" (Command2).
class DetailsScreen : public Screen
{
    Q_OBJECT
public:
    explicit DetailsScreen(const DetailsTable &table);

    /// Shows the fields that are part of such a record, with their labels, and hides all others.
    /// A scroll bar's value label stays as it is.
    void showFieldsOf(RecordFormat format);

protected:
    QWidget *firstField() const override;
    void showEvent(QShowEvent *event) override;

private:
    void addButtons();
    void goOn();

    std::span<const Field> m_fields;
    std::span<const Fill> m_fills;
    HelpLine *m_help;
};

} // namespace tarvold
