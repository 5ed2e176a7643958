#include "look/checks.h"
#include "look/parts.h"
#include "look/picture.h"
#include "support/contrast.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace tarvold::testing::checks {
namespace {

void clearFocus(const QWidget &window)
{
    if (QWidget *focused = window.focusWidget()) {
        focused->clearFocus();
    }
    QCoreApplication::processEvents();
}

/// Focuses a control. Undoes the selection that Tab makes, as it would change pixels too.
void giveFocus(QWidget &control)
{
    control.setFocus(Qt::TabFocusReason);
    auto *combo = qobject_cast<QComboBox *>(&control);
    auto *box = combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit *>(&control);
    if (box != nullptr) {
        box->deselect();
    }
    QCoreApplication::processEvents();
}

/// The contrast between unfocused and focused, reached by as many pixels as a line of one
/// device-independent pixel around the control has; 1 if fewer pixels change.
double contrastOfMark(const Scene &scene, QWidget &control)
{
    constexpr int kMost = 4; // pixels around the control that a mark may use
    clearFocus(scene.window);
    parts::reveal(control);
    const QRect place = parts::placeOf(control).adjusted(-kMost, -kMost, kMost, kMost);
    const Picture before(scene.window, place);
    giveFocus(control);
    EXPECT_EQ(parts::placeOf(control).adjusted(-kMost, -kMost, kMost, kMost), place)
        << parts::nameOf(control).toStdString() << " moves when it gets the focus";
    const Picture after(scene.window, place);
    const std::vector<double> changes = before.changesTo(after);
    const QSize frame = parts::frameOf(control).size();
    const double perimeter = 2.0 * (frame.width() + frame.height()) - 4;
    const auto asked = std::size_t(perimeter * before.scale() * before.scale());
    return changes.size() < asked ? 1 : changes[asked - 1];
}

} // namespace

void expectFocusMarks(const Scene &scene)
{
    for (QWidget *control : parts::focusable(scene.window)) {
        figures::expectAtLeast(scene, "Focus mark", parts::nameOf(*control),
                               contrastOfMark(scene, *control), contrast::kControl);
    }
}

} // namespace tarvold::testing::checks
