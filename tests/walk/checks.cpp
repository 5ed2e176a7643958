#include "walk/checks.h"

#include "controls/combo_box.h"
#include "controls/scroll_bar.h"
#include "records/records_window.h"
#include "screens/commentary_line.h"
#include "screens/screen.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>

#include <algorithm>
#include <map>

namespace tarvold::testing::checks {

using namespace Qt::StringLiterals;

namespace {

QString nameOf(const QWidget &control)
{
    return control.window()->objectName() + u'.' + control.objectName();
}

QStringList itemsOf(const QComboBox &combo)
{
    QStringList items;
    for (int row = 0; row < combo.count(); ++row) {
        items << combo.itemText(row);
    }
    return items;
}

constexpr auto kExactly = Qt::MatchExactly | Qt::MatchCaseSensitive;

/// The items never change, as typed text is not added. The index follows the text.
QString lists(const Screen &screen)
{
    static std::map<QString, QStringList> known;
    for (const QComboBox *combo : screen.findChildren<ComboBox *>()) {
        const auto [first, isNew] = known.try_emplace(nameOf(*combo), itemsOf(*combo));
        if (!isNew && first->second != itemsOf(*combo)) {
            return nameOf(*combo) + u" has changed its items"_s;
        }
        if (combo->currentIndex() != combo->findText(combo->currentText(), kExactly)) {
            return nameOf(*combo) + u" has the wrong index for its text"_s;
        }
    }
    return {};
}

/// A field is one line. On the stipulation form it may hold what was in the file.
QString fields(const Screen &screen)
{
    static const QRegularExpression lineBreak(u"[\\r\\n\\x{85}\\x{2028}\\x{2029}]"_s);
    if (screen.objectName() == u"Form3"_s) {
        return {};
    }
    for (const QLineEdit *field : screen.findChildren<QLineEdit *>()) {
        if (field->text().contains(lineBreak)) {
            return nameOf(*field) + u" holds a line break"_s;
        }
    }
    return {};
}

/// What an edit of several lines leaves in their undo histories must never be seen.
bool hasEditMark(const QString &text)
{
    return text.contains(QChar(0xFDD0)) || text.contains(QChar(0xFDD1));
}

QString editMarks(const Screen &screen)
{
    for (const QLineEdit *field : screen.findChildren<QLineEdit *>()) {
        if (hasEditMark(field->text())) {
            return nameOf(*field) + u" holds the mark of an edit"_s;
        }
    }
    for (const QLabel *label : screen.findChildren<QLabel *>()) {
        if (hasEditMark(label->text()) || hasEditMark(label->accessibleName())) {
            return nameOf(*label) + u" shows the mark of an edit"_s;
        }
    }
    return {};
}

QString marks(const Screen &screen)
{
    const auto lines = screen.findChildren<CommentaryLine *>();
    const auto marked = std::count_if(lines.begin(), lines.end(),
                                      [](const CommentaryLine *line) { return line->isMarked(); });
    return marked > 1 ? u"more than one line is marked"_s : QString();
}

QString buttons(const Screen &screen)
{
    for (const QPushButton *button : screen.findChildren<QPushButton *>()) {
        if (!button->isEnabled() || button->isDown()) {
            return nameOf(*button) + u" is disabled or stays down"_s;
        }
    }
    return {};
}

QString bars(const Screen &screen)
{
    for (const QScrollBar *bar : screen.findChildren<ScrollBar *>()) {
        if (bar->value() < 1 || bar->value() > 100) {
            return nameOf(*bar) + u" is out of its range"_s;
        }
        if (bar->sliderPosition() != bar->value() || bar->isSliderDown()) {
            return nameOf(*bar) + u" has its thumb off its value"_s;
        }
    }
    return {};
}

QString focus(const Screen &screen)
{
    if (QApplication::activePopupWidget() != nullptr) {
        return {};
    }
    const QWidget *focused = QApplication::focusWidget();
    if (focused == nullptr || focused->window() != &screen || !focused->isVisible()) {
        return screen.objectName() + u" has lost the focus to "_s +
               (focused == nullptr ? u"nothing"_s : nameOf(*focused));
    }
    return {};
}

bool isPopup(const QWidget &window)
{
    return window.windowType() == Qt::Popup || window.windowType() == Qt::ToolTip;
}

} // namespace

Screen *visibleScreen()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *screen = qobject_cast<Screen *>(window);
            screen != nullptr && window->isVisible()) {
            return screen;
        }
    }
    return nullptr;
}

QString windows()
{
    QStringList seen;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        const bool isBeside = qobject_cast<const records::RecordsWindow *>(window) != nullptr;
        if (window->isVisible() && !isPopup(*window) && !isBeside) {
            seen << window->objectName();
        }
    }
    if (seen.size() != 1 || visibleScreen() == nullptr) {
        return u"the visible windows are: "_s + seen.join(u' ');
    }
    if (QApplication::activeModalWidget() != nullptr || QApplication::overrideCursor() != nullptr) {
        return u"the window cannot be used"_s;
    }
    return visibleScreen()->windowTitle() == u"Tarvold 1.3 Data Editor"_s
               ? QString()
               : u"the window has the wrong title"_s;
}

std::map<QString, QString> contents()
{
    std::map<QString, QString> all;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        const auto *screen = qobject_cast<const Screen *>(window);
        if (screen == nullptr) {
            continue;
        }
        all[screen->objectName()] = screen->isVisible() ? u"visible"_s : u"hidden"_s;
        for (const QLineEdit *field : screen->findChildren<QLineEdit *>()) {
            const auto *line = qobject_cast<const CommentaryLine *>(field);
            all[nameOf(*field->parentWidget()) + u'/' + field->objectName()] =
                field->text() + (line != nullptr && line->isMarked() ? u" yellow"_s : QString());
        }
        for (const QScrollBar *bar : screen->findChildren<ScrollBar *>()) {
            all[nameOf(*bar)] = QString::number(bar->value());
        }
        for (const QLabel *tag : screen->findChildren<QLabel *>(u"hiddenlabel"_s)) {
            all[nameOf(*tag)] = tag->text();
        }
    }
    return all;
}

QString controls(const Screen &screen)
{
    for (const auto check : {lists, fields, editMarks, marks, buttons, bars, focus}) {
        if (QString wrong = check(screen); !wrong.isEmpty()) {
            return wrong;
        }
    }
    return {};
}

} // namespace tarvold::testing::checks
