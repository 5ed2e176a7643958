#include "walk/checks.h"

#include "endings/commentary_line.h"
#include "shell/combo_box.h"
#include "shell/screen.h"
#include "shell/scroll_bar.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>

#include <algorithm>
#include <map>

namespace tarvold::testing::checks {
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

/// The lists never change: nothing that is typed is put into them. Their index follows the text.
QString lists(const Screen &screen)
{
    static std::map<QString, QStringList> known;
    for (const QComboBox *combo : screen.findChildren<ComboBox *>()) {
        const auto [first, isNew] = known.try_emplace(nameOf(*combo), itemsOf(*combo));
        if (!isNew && first->second != itemsOf(*combo)) {
            return nameOf(*combo) + QStringLiteral(" has other items");
        }
        if (combo->currentIndex() != combo->findText(combo->currentText(), kExactly)) {
            return nameOf(*combo) + QStringLiteral(" has the index of another text");
        }
    }
    return {};
}

/// A field is one line. On the stipulation form it may hold what the file held.
QString fields(const Screen &screen)
{
    static const QRegularExpression lineBreak(QStringLiteral("[\\r\\n\\x{85}\\x{2028}\\x{2029}]"));
    if (screen.objectName() == QStringLiteral("Form3")) {
        return {};
    }
    for (const QLineEdit *field : screen.findChildren<QLineEdit *>()) {
        if (field->text().contains(lineBreak)) {
            return nameOf(*field) + QStringLiteral(" holds a line break");
        }
    }
    return {};
}

QString marks(const Screen &screen)
{
    const auto lines = screen.findChildren<CommentaryLine *>();
    const auto marked = std::count_if(lines.begin(), lines.end(),
                                      [](const CommentaryLine *line) { return line->isMarked(); });
    return marked > 1 ? QStringLiteral("more than one line is marked") : QString();
}

QString buttons(const Screen &screen)
{
    for (const QPushButton *button : screen.findChildren<QPushButton *>()) {
        if (!button->isEnabled() || button->isDown()) {
            return nameOf(*button) + QStringLiteral(" is disabled or stays down");
        }
    }
    return {};
}

QString bars(const Screen &screen)
{
    for (const QScrollBar *bar : screen.findChildren<ScrollBar *>()) {
        if (bar->value() < 1 || bar->value() > 100) {
            return nameOf(*bar) + QStringLiteral(" is out of its range");
        }
        if (bar->sliderPosition() != bar->value() || bar->isSliderDown()) {
            return nameOf(*bar) + QStringLiteral(" has its thumb apart from its value");
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
        return screen.objectName() + QStringLiteral(" has lost the focus to ") +
               (focused == nullptr ? QStringLiteral("nothing") : nameOf(*focused));
    }
    return {};
}

bool mayBeBeside(const QWidget &window)
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
        if (window->isVisible() && !mayBeBeside(*window)) {
            seen << window->objectName();
        }
    }
    if (seen.size() != 1 || visibleScreen() == nullptr) {
        return QStringLiteral("the windows to be seen are: ") + seen.join(u' ');
    }
    if (QApplication::activeModalWidget() != nullptr || QApplication::overrideCursor() != nullptr) {
        return QStringLiteral("the window cannot be used");
    }
    return visibleScreen()->windowTitle() == QStringLiteral("Tarvold 1.3 Data Editor")
               ? QString()
               : QStringLiteral("the window has another caption");
}

QString controls(const Screen &screen)
{
    for (const auto check : {lists, fields, marks, buttons, bars, focus}) {
        if (QString wrong = check(screen); !wrong.isEmpty()) {
            return wrong;
        }
    }
    return {};
}

} // namespace tarvold::testing::checks
