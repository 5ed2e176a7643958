#include "look/checks.h"
#include "look/parts.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyleOption>

#include <gtest/gtest.h>

namespace tarvold::testing::checks {
namespace {

std::string at(const Scene &scene, const QWidget &part)
{
    const QString place = scene.name + u' ' + parts::nameOf(part);
    return place.toStdString();
}

void expectRoom(const Scene &scene, const QWidget &part, const QSize &room, const QSize &text)
{
    EXPECT_GE(room.width(), text.width()) << at(scene, part) << " is too narrow for its text";
    EXPECT_GE(room.height(), text.height()) << at(scene, part) << " is too low for its text";
}

void expectButton(const Scene &scene, const QPushButton &button)
{
    constexpr int kPadding = 6; // on each side, so that the caption stays clear of the outline
    const QFontMetrics metrics = button.fontMetrics();
    const QSize text(metrics.size(Qt::TextShowMnemonic, button.text()).width() + 2 * kPadding,
                     metrics.height() + 4);
    expectRoom(scene, button, button.size(), text);
}

void expectBox(const Scene &scene, const QLineEdit &box)
{
    const QFontMetrics metrics = box.fontMetrics();
    const auto *combo = qobject_cast<const QComboBox *>(box.parentWidget());
    int width = metrics.horizontalAdvance(box.displayText());
    for (int item = 0; combo != nullptr && item < combo->count(); ++item) {
        width = std::max(width, metrics.horizontalAdvance(combo->itemText(item)));
    }
    const QWidget &part = combo != nullptr ? static_cast<const QWidget &>(*combo) : box;
    expectRoom(scene, part, parts::roomOf(box).size(),
               {width, metrics.ascent() + metrics.descent()});
}

/// The scroll area that contains the part, or null.
const QWidget *areaOf(const QWidget &part)
{
    for (const QWidget *above = part.parentWidget(); above != nullptr;
         above = above->parentWidget()) {
        if (qobject_cast<const QScrollArea *>(above) != nullptr) {
            return above;
        }
    }
    return nullptr;
}

} // namespace

void expectNotCut(const Scene &scene, const QLabel &label)
{
    const int margin = label.margin();
    const QRect room = label.contentsRect().adjusted(margin, margin, -margin, -margin);
    const int wrap = label.wordWrap() ? int(Qt::TextWordWrap) : 0;
    const QRect endless(0, 0, label.wordWrap() ? room.width() : QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    expectRoom(scene, label, room.size(),
               label.fontMetrics().boundingRect(endless, wrap, label.text()).size());
}

void expectNothingCut(const Scene &scene)
{
    for (const QLabel *label : parts::visible<QLabel>(scene.window)) {
        expectNotCut(scene, *label);
    }
    for (const QPushButton *button : parts::visible<QPushButton>(scene.window)) {
        expectButton(scene, *button);
    }
    for (const QLineEdit *box : parts::visible<QLineEdit>(scene.window)) {
        expectBox(scene, *box);
    }
}

void expectAllOnScreen(const Scene &scene)
{
    constexpr int kFrame = 30; // height of a title bar
    const QSize screen = scene.window.screen()->availableGeometry().size();
    EXPECT_LE(scene.window.width(), screen.width()) << scene.name.toStdString() << " is too wide";
    EXPECT_LE(scene.window.height() + kFrame, screen.height())
        << scene.name.toStdString() << " is too tall";
    for (QWidget *part : parts::items(scene.window)) {
        parts::reveal(*part);
        EXPECT_EQ(part->visibleRegion().boundingRect(), part->rect())
            << at(scene, *part) << " is not fully visible";
    }
}

void expectInScreen(const Scene &popup)
{
    const QRect place = popup.window.geometry();
    EXPECT_EQ(place & popup.window.screen()->availableGeometry(), place)
        << popup.name.toStdString() << " is partly off the screen";
}

void expectNoOverlaps(const Scene &scene)
{
    const QList<QWidget *> items = parts::items(scene.window);
    for (qsizetype one = 0; one < items.size(); ++one) {
        for (qsizetype other = one + 1; other < items.size(); ++other) {
            // Scrolled content is clipped by its area, so it does not overlap what is outside.
            if (areaOf(*items[one]) == areaOf(*items[other])) {
                EXPECT_FALSE(parts::placeOf(*items[one]).intersects(parts::placeOf(*items[other])))
                    << at(scene, *items[one]) << " and "
                    << parts::nameOf(*items[other]).toStdString() << " overlap";
            }
        }
    }
}

} // namespace tarvold::testing::checks
