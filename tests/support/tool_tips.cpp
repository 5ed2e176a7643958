#include "support/tool_tips.h"

#include <QApplication>
#include <QHelpEvent>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <QWidget>

#include <gtest/gtest.h>

namespace tarvold::testing {
namespace {

QWidget *shownToolTip()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->inherits("QTipLabel")) {
            return window;
        }
    }
    return nullptr;
}

} // namespace

void askForToolTip(QWidget &widget)
{
    const QPoint place = widget.rect().center();
    QHelpEvent event(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &event);
}

std::optional<QString> toolTipOf(QWidget &widget, QSize *size)
{
    EXPECT_EQ(shownToolTip(), nullptr) << "a tooltip is still open";
    askForToolTip(widget);
    QWidget *shown = shownToolTip();
    if (shown == nullptr) {
        return std::nullopt;
    }
    if (size != nullptr) {
        *size = shown->size();
    }
    const QString text = QToolTip::text();
    shown->close();
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return shownToolTip() == nullptr; }));
    const QString plain =
        Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
    return QString(plain).remove(QChar(0x200B));
}

} // namespace tarvold::testing
