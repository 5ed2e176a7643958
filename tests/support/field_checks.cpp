#include "support/field_checks.h"

#include "controls/combo_box.h"
#include "support/events.h"
#include "support/spoken.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

QStringList itemsOf(const QWidget &control)
{
    QStringList items;
    if (const auto *combo = qobject_cast<const ComboBox *>(&control)) {
        for (int row = 0; row < combo->count(); ++row) {
            items << combo->itemText(row);
        }
    }
    return items;
}

QStringList texts(const std::vector<const char *> &items)
{
    QStringList result;
    for (const char *item : items) {
        result << QLatin1StringView(item);
    }
    return result;
}

const QString kBefore = u"what was shown before"_s;

} // namespace

void expectFields(const Screen &screen, const ExpectedFields &fields)
{
    for (const ExpectedField &field : fields) {
        SCOPED_TRACE(field.control);
        QWidget &control = screen.control(field.control);
        EXPECT_EQ(screen.text(field.label), QLatin1StringView(field.caption));
        EXPECT_EQ(itemsOf(control), texts(field.items));
        EXPECT_EQ(qobject_cast<QLineEdit *>(&control) != nullptr, field.items.empty());
        if (control.isVisible()) {
            const QRect label = screen.control(field.label).geometry();
            EXPECT_TRUE(screen.control(field.label).isVisible());
            EXPECT_NEAR(label.center().y(), control.geometry().center().y(), 3);
            EXPECT_LT(label.right(), control.geometry().left());
        }
    }
}

void expectFreshTexts(const Screen &screen, const ExpectedFields &fields)
{
    for (const ExpectedField &field : fields) {
        SCOPED_TRACE(field.control);
        EXPECT_EQ(screen.text(field.control), QLatin1StringView(field.text));
    }
}

void expectHelpOnFocus(Screen &screen, const char *helpLabel, const ExpectedFields &fields)
{
    expectActive(screen);
    for (const ExpectedField &field : fields) {
        SCOPED_TRACE(field.control);
        if (!screen.control(field.control).isVisible()) {
            continue;
        }
        // Go to another control first, so that Tab really moves the focus to the field.
        tabTo(screen, "Command1");
        screen.setText(helpLabel, kBefore);
        tabTo(screen, field.control);
        EXPECT_EQ(screen.text(helpLabel), QLatin1StringView(field.help));
    }
}

void expectHelpOnClick(Screen &screen, const char *helpLabel, const ExpectedFields &fields)
{
    expectActive(screen);
    for (const ExpectedField &field : fields) {
        SCOPED_TRACE(field.control);
        QWidget &control = screen.control(field.control);
        if (!control.isVisible()) {
            continue;
        }
        control.setFocus(Qt::TabFocusReason);
        screen.setText(helpLabel, kBefore);
        click(control);
        EXPECT_EQ(screen.text(helpLabel),
                  field.helpOnClick ? QString(QLatin1StringView(field.help)) : kBefore);
    }
}

} // namespace tarvold::testing
