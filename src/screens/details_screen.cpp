#include "screens/details_screen.h"

#include "controls/combo_box.h"
#include "controls/push_button.h"
#include "screens/keys.h"

#include <QGridLayout>
#include <QShowEvent>

namespace tarvold {

using namespace Qt::StringLiterals;

DetailsScreen::DetailsScreen(const DetailsTable &table)
    : Screen(table.name)
    , m_fields(table.fields)
    , m_fills(table.fills)
    , m_help(new HelpLine(this))
{
    add(m_help, table.helpLabel);
    addHeading("Label1", table.heading);
    if (table.note != nullptr) {
        column().addWidget(newLabel(table.noteLabel, table.note));
    }
    column().addLayout(formgrid::build(*this, table.fields, m_help));
    column().addStretch();
    addFoot(m_help);
    addButtons();
}

void DetailsScreen::addButtons()
{
    PushButton *back = newBackButton("Command1");
    PushButton *next = newButton("Command2", ">>");
    next->setKeys(keys::next(), u"Next"_s);
    addButtonRow({back}, {next});
    connect(next, &QPushButton::clicked, this, &DetailsScreen::goOn);
}

void DetailsScreen::goOn()
{
    for (const Fill &fill : m_fills) {
        if (!text(fill.control).isEmpty()) {
            continue;
        }
        setText(fill.control, QLatin1StringView(fill.text));
        for (const char *name : fill.alsoToFirstItem) {
            auto &combo = control<ComboBox>(name);
            combo.setText(combo.itemText(0));
        }
    }
    emit nextPressed();
}

QWidget *DetailsScreen::firstField() const
{
    for (const Field &field : m_fields) {
        QWidget &first = control(field.control);
        if (!first.isHidden()) {
            return &first;
        }
    }
    return nullptr;
}

void DetailsScreen::showEvent(QShowEvent *event)
{
    for (const Field &field : m_fields) {
        // Where two controls share a place, the label is that of the one to be seen.
        if (QWidget &shown = control(field.control); !shown.isHidden()) {
            control<QLabel>(field.label).setBuddy(&shown);
        }
    }
    Screen::showEvent(event);
    QWidget *first = firstField();
    if (first == nullptr || event->spontaneous()) {
        return;
    }
    // The focus itself comes only when the desktop makes the window active.
    m_help->showFor(*first);
}

} // namespace tarvold
