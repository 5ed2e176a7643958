#include "screens/details_screen.h"

#include "controls/combo_box.h"
#include "controls/push_button.h"
#include "screens/keys.h"

#include <QGridLayout>
#include <QShowEvent>

#include <algorithm>

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

void DetailsScreen::showFieldsOf(RecordFormat format)
{
    const auto setVisible = [this](const Field &field, bool visible) {
        control(field.control).setVisible(visible);
        control(field.label).setVisible(visible);
    };
    const auto isPart = [format](const Field &field) {
        return std::find(format.begin(), format.end(), field.field) != format.end();
    };
    // A label that two fields share is visible if one of them is.
    for (const Field &field : m_fields) {
        if (!isPart(field)) {
            setVisible(field, false);
        }
    }
    for (const Field &field : m_fields) {
        if (isPart(field)) {
            setVisible(field, true);
        }
    }
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
        // Where two controls share a place, the label belongs to the visible one.
        if (QWidget &shown = control(field.control); !shown.isHidden()) {
            control<QLabel>(field.label).setBuddy(&shown);
        }
    }
    Screen::showEvent(event);
    QWidget *first = firstField();
    if (first == nullptr || event->spontaneous()) {
        return;
    }
    // The first field gets the focus only when the desktop activates the window.
    m_help->showFor(*first);
}

} // namespace tarvold
