#include "support/spoken.h"

#include "support/events.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QWidget>

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

namespace tarvold::testing {
namespace {

/// The text box and the list of a combo box are part of it.
bool isInsideComboBox(const QWidget &control)
{
    for (const QWidget *outer = control.parentWidget(); outer != nullptr;
         outer = outer->parentWidget()) {
        if (qobject_cast<const QComboBox *>(outer) != nullptr) {
            return true;
        }
    }
    return false;
}

/// The position of a control in its window, even if other widgets contain it.
QRect placeOf(const QWidget *control)
{
    return {control->mapTo(control->window(), QPoint()), control->size()};
}

bool isBefore(const QWidget *one, const QWidget *other)
{
    const QPoint here = placeOf(one).topLeft();
    const QPoint there = placeOf(other).topLeft();
    return std::pair(here.y(), here.x()) < std::pair(there.y(), there.x());
}

} // namespace

QString spokenName(QWidget &control)
{
    // For a combo box, Qt reports its text as its name, so use the accessible name if there is one.
    if (!control.accessibleName().isEmpty()) {
        return control.accessibleName();
    }
    const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&control);
    return interface == nullptr ? QString() : interface->text(QAccessible::Name);
}

QList<QWidget *> focusableControls(const QWidget &window)
{
    QList<QWidget *> controls;
    for (QWidget *control : window.findChildren<QWidget *>()) {
        if ((control->focusPolicy() & Qt::TabFocus) != 0 && !isInsideComboBox(*control)) {
            controls << control;
        }
    }
    return controls;
}

void expectOwnNames(const QWidget &window)
{
    QStringList names;
    for (QWidget *control : focusableControls(window)) {
        const QString name = spokenName(*control);
        EXPECT_FALSE(name.trimmed().isEmpty()) << control->objectName().toStdString();
        EXPECT_FALSE(names.contains(name)) << name.toStdString() << " is the name of two controls";
        names << name;
        if (const auto *combo = qobject_cast<QComboBox *>(control)) {
            // In an editable combo box this text box has the focus, so its name is spoken.
            EXPECT_EQ(spokenName(*combo->lineEdit()), name);
        }
    }
    EXPECT_FALSE(names.isEmpty());
}

QList<QWidget *> tabStops(QWidget &window)
{
    expectActive(window);
    QList<QWidget *> stops;
    constexpr qsizetype kMany = 100;
    while (stops.size() < kMany && !stops.contains(QApplication::focusWidget())) {
        stops << QApplication::focusWidget();
        QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    }
    EXPECT_EQ(QApplication::focusWidget(), stops.front());
    return stops;
}

void expectReadingOrder(QWidget &window)
{
    QList<QWidget *> stops = tabStops(window);
    const auto first = std::min_element(stops.begin(), stops.end(), isBefore);
    std::rotate(stops.begin(), first, stops.end());
    qsizetype reachable = 0;
    for (const QWidget *control : focusableControls(window)) {
        reachable += control->isVisible() && control->isEnabled() ? 1 : 0;
    }
    EXPECT_EQ(stops.size(), reachable);
    for (qsizetype stop = 1; stop < stops.size(); ++stop) {
        const QRect before = placeOf(stops[stop - 1]);
        const QRect here = placeOf(stops[stop]);
        const bool below = here.top() > before.bottom();
        const bool beside = here.left() > before.right() && here.bottom() >= before.top();
        EXPECT_TRUE(below || beside) << stops[stop]->objectName().toStdString() << " after "
                                     << stops[stop - 1]->objectName().toStdString();
    }
}

void tabTo(QWidget &window, const char *name)
{
    expectActive(window);
    for (int presses = 0; presses < 100; ++presses) {
        if (QApplication::focusWidget()->objectName() == QLatin1StringView(name)) {
            return;
        }
        QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    }
    ADD_FAILURE() << "Tab does not reach " << name;
}

} // namespace tarvold::testing
