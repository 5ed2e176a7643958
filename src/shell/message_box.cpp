#include "shell/message_box.h"

#include <QAbstractButton>
#include <QMessageBox>

namespace tarvold::messagebox {
namespace {

/// A message may quote a line of a file, which can be of any length: the toolkit would lay out some
/// megabytes for minutes, and show the buttons below the screen.
QString shortened(const QString &text)
{
    constexpr qsizetype kMost = 5000;
    if (text.size() <= kMost) {
        return text;
    }
    return text.left(kMost / 2) + QStringLiteral(" [...] ") + text.right(kMost / 2);
}

QMessageBox::StandardButton ask(QWidget *parent, const QString &title, const QString &text,
                                QMessageBox::StandardButtons buttons,
                                QMessageBox::StandardButton enter,
                                QMessageBox::StandardButton escape)
{
    QMessageBox box(QMessageBox::NoIcon, title, shortened(text), buttons, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(enter);
    box.setEscapeButton(escape);
    for (QAbstractButton *button : box.buttons()) {
        button->setIcon({}); // some desktops draw a tick and a cross that say nothing
    }
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

void notice(QWidget *parent, const QString &title, const QString &text)
{
    ask(parent, title, text, QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok);
}

bool question(QWidget *parent, const QString &title, const QString &text, EnterMeans enter)
{
    const auto enterButton = enter == EnterMeans::Yes ? QMessageBox::Yes : QMessageBox::No;
    return ask(parent, title, text, QMessageBox::Yes | QMessageBox::No, enterButton,
               QMessageBox::No) == QMessageBox::Yes;
}

} // namespace tarvold::messagebox
