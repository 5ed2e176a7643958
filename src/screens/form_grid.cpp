#include "screens/form_grid.h"

#include "controls/combo_box.h"
#include "controls/controls.h"
#include "controls/scroll_bar.h"
#include "controls/sizes.h"
#include "controls/text_box.h"
#include "screens/screen.h"

#include <QGridLayout>

#include <algorithm>

namespace tarvold::formgrid {

using namespace Qt::StringLiterals;

namespace {

const char *captionOf(const Field &field)
{
    return field.caption != nullptr ? field.caption : field.field->name;
}

/// What to say of a text outside the list; empty where any other text may be right.
QString warningFor(const Field &field)
{
    if (field.field != nullptr && !codedTexts(field.field->coding).empty()) {
        return lackingLine();
    }
    const auto isYes = [](const char *item) { return qstrcmp(item, "Yes") == 0; };
    const bool isYesNo = std::any_of(field.items.begin(), field.items.end(), isYes);
    return isYesNo ? u"Not in the list."_s : QString();
}

QWidget *newBareControl(const Field &field)
{
    if (field.bar != nullptr) {
        return new ScrollBar(1, 100);
    }
    if (field.items.empty()) {
        auto *box = new TextBox;
        box->setText(QLatin1StringView(field.designText));
        return box;
    }
    auto *combo = new ComboBox;
    for (const char *item : field.items) {
        combo->addItem(QLatin1StringView(item));
    }
    if (const QString warning = warningFor(field); !warning.isEmpty()) {
        combo->markUnlisted(warning);
    }
    return combo;
}

/// A scroll bar with a label beside it that shows its value.
QWidget *withValueLabel(Screen &screen, const Bar &bar, ScrollBar &scrollBar)
{
    QLabel *label = screen.newLabel(bar.valueLabel, bar.designText);
    // A file may hold any text for this label; it must not widen the window.
    label->setFixedWidth(label->fontMetrics().horizontalAdvance(u" 100% "_s));
    const auto show = [label, &bar](int value) {
        label->setText(QLatin1StringView(bar.prefix) + QString::number(value) + u'%');
    };
    QObject::connect(&scrollBar, &QScrollBar::valueChanged, label, show);
    if (bar.followsDrag) {
        QObject::connect(&scrollBar, &QScrollBar::sliderMoved, label, show);
    }
    auto *place = new QWidget;
    auto *row = new QHBoxLayout(place);
    row->setContentsMargins({});
    row->addWidget(&scrollBar, 1);
    row->addWidget(label);
    return place;
}

} // namespace

QString lackingLine()
{
    return u"Not in the list. The file will lack this line."_s;
}

int labelWidth(const Screen &screen)
{
    constexpr int kCharacters = 33;
    return screen.fontMetrics().averageCharWidth() * kCharacters;
}

QWidget *newControl(Screen &screen, const Field &field)
{
    QWidget *control = newBareControl(field);
    screen.add(control, field.control);
    if (field.field != nullptr) {
        screen.addSource(*field.field, control);
    }
    controls::describe(*control, QLatin1StringView(field.spokenName != nullptr ? field.spokenName
                                                                               : captionOf(field)));
    return control;
}

QGridLayout *build(Screen &screen, std::span<const Field> fields, HelpLine *help)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kRowGap);
    grid->setColumnMinimumWidth(0, labelWidth(screen));
    grid->setColumnStretch(1, 1);
    const char *lastLabel = "";
    for (const Field &field : fields) {
        QWidget *control = newControl(screen, field);
        if (qstrcmp(field.label, lastLabel) != 0) {
            QLabel *label = screen.newLabel(field.label, captionOf(field));
            label->setBuddy(control);
            grid->addWidget(label, grid->rowCount(), 0);
            lastLabel = field.label;
        }
        auto *scrollBar = qobject_cast<ScrollBar *>(control);
        grid->addWidget(scrollBar != nullptr ? withValueLabel(screen, *field.bar, *scrollBar)
                                             : control,
                        grid->rowCount() - 1, 1);
        if (help != nullptr && field.help != nullptr) {
            help->explain(*control, QLatin1StringView(field.help), field.helpOn);
        }
    }
    return grid;
}

} // namespace tarvold::formgrid
