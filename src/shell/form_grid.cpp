#include "shell/form_grid.h"

#include "shell/combo_box.h"
#include "shell/screen.h"
#include "shell/text_box.h"

#include <QGridLayout>

namespace tarvold {
namespace {

QWidget *newControl(const Field &field)
{
    if (field.items.empty()) {
        auto *box = new TextBox;
        box->setText(QLatin1StringView(field.designText));
        return box;
    }
    auto *combo = new ComboBox;
    for (const char *item : field.items) {
        combo->addItem(QLatin1StringView(item));
    }
    return combo;
}

QLabel *newLabel(const Field &field)
{
    auto *label = new QLabel(QLatin1StringView(field.caption));
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

QGridLayout *FormGrid::build(Screen &screen, std::span<const Field> fields, HelpLine *help)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(6);
    // One width for all screens, so that the controls stand in the same place on each.
    grid->setColumnMinimumWidth(0, screen.fontMetrics().averageCharWidth() * 30);
    grid->setColumnStretch(1, 1);
    const char *lastLabel = "";
    for (const Field &field : fields) {
        QWidget *control = newControl(field);
        screen.add(control, field.control);
        control->setAccessibleName(
            QLatin1StringView(field.spokenName != nullptr ? field.spokenName : field.caption));
        if (qstrcmp(field.label, lastLabel) != 0) {
            QLabel *label = newLabel(field);
            label->setBuddy(control);
            screen.add(label, field.label);
            grid->addWidget(label, grid->rowCount(), 0);
            lastLabel = field.label;
        }
        grid->addWidget(control, grid->rowCount() - 1, 1);
        if (help != nullptr && field.help != nullptr) {
            help->explain(*control, QLatin1StringView(field.help), field.helpOn);
        }
    }
    return grid;
}

} // namespace tarvold
