#include "support/events.h"

#include "controls/combo_box.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QStyleOptionComboBox>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace tarvold::testing {
namespace {

QWidget &clickTarget(QWidget &control)
{
    auto *combo = qobject_cast<QComboBox *>(&control);
    const bool hasText =
        combo != nullptr && !combo->lineEdit()->testAttribute(Qt::WA_TransparentForMouseEvents);
    return hasText ? *combo->lineEdit() : control;
}

int rowOf(const QComboBox &combo, const QString &item)
{
    const int row = combo.findText(item, Qt::MatchExactly | Qt::MatchCaseSensitive);
    EXPECT_GE(row, 0) << "no such item: " << item.toStdString();
    return row;
}

} // namespace

void expectReachable(const QWidget &control)
{
    const QWidget *modal = QApplication::activeModalWidget();
    ASSERT_TRUE(control.isVisible()) << control.objectName().toStdString() << " is not visible";
    ASSERT_TRUE(control.isEnabled()) << control.objectName().toStdString() << " is not enabled";
    ASSERT_TRUE(modal == nullptr || modal == control.window()) << "blocked by a message box";
    expectActive(*control.window());
}

void expectActive(QWidget &window)
{
    if (!window.isActiveWindow()) {
        // A window manager would restore the focus after a message box; offscreen there is none.
        window.activateWindow();
    }
    // qWaitForWindowActive() also accepts a dialog whose parent is active.
    ASSERT_TRUE(QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; }));
}

void click(QWidget &control)
{
    expectReachable(control);
    QTest::mouseClick(&clickTarget(control), Qt::LeftButton);
}

void typeOver(QWidget &box, const QString &text)
{
    click(box);
    QTest::keySequence(box.window()->windowHandle(), QKeySequence::SelectAll);
    QTest::keyClick(box.window()->windowHandle(), Qt::Key_Delete);
    for (const QChar character : text) {
        QTest::keyClick(box.window()->windowHandle(), character.toLatin1());
    }
}

void paste(QWidget &box, const QString &text)
{
    expectReachable(box);
    QApplication::clipboard()->setText(text);
    QTest::keySequence(box.window()->windowHandle(), QKeySequence::Paste);
}

void turnWheel(QWidget &control, int notches)
{
    strokeTouchpad(control, notches * QWheelEvent::DefaultDeltasPerStep);
}

void strokeTouchpad(QWidget &control, int eighths)
{
    const QPointF place = control.rect().center();
    QWheelEvent event(place, control.mapToGlobal(place), {}, {0, eighths}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&control, &event);
}

void pick(ComboBox &combo, const QString &item)
{
    expectReachable(combo);
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = true;
    const QRect arrow = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxArrow, &combo);
    QTest::mouseClick(&combo, Qt::LeftButton, {}, arrow.center());
    ASSERT_TRUE(combo.view()->isVisible()) << "the list did not open";
    const QModelIndex index = combo.model()->index(rowOf(combo, item), 0);
    combo.view()->scrollTo(index);
    const QPoint place = combo.view()->visualRect(index).center();
    QTest::mouseMove(combo.view()->viewport(), place);
    QTest::mouseClick(combo.view()->viewport(), Qt::LeftButton, {}, place);
}

void pickByKeyboard(ComboBox &combo, const QString &item)
{
    expectReachable(combo);
    ASSERT_TRUE(combo.hasFocus());
    QTest::keyClick(&combo, Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(combo.view()->isVisible()) << "the list did not open";
    const int row = rowOf(combo, item);
    QTest::keyClick(combo.view(), Qt::Key_Home);
    while (combo.view()->currentIndex().row() < row) {
        QTest::keyClick(combo.view(), Qt::Key_Down);
    }
    QTest::keyClick(combo.view(), Qt::Key_Return);
}

} // namespace tarvold::testing
