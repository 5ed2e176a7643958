#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "screens/commentary_screen.h"
#include "screens/main_menu.h"
#include "support/events.h"
#include "support/mouse.h"
#include "walk/day.h"
#include "walk/samples.h"
#include "walk/trace.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QTest>
#include <QWindow>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

struct Keys
{
    int code;
    Qt::KeyboardModifiers modifiers = {};
};

const Keys kKeys[] = {
    {Qt::Key_Tab},
    {Qt::Key_Tab},
    {Qt::Key_Backtab, Qt::ShiftModifier},
    {Qt::Key_Up},
    {Qt::Key_Down},
    {Qt::Key_Left},
    {Qt::Key_Right},
    {Qt::Key_PageUp},
    {Qt::Key_PageDown},
    {Qt::Key_Home},
    {Qt::Key_End},
    {Qt::Key_Return},
    {Qt::Key_Enter, Qt::KeypadModifier},
    {Qt::Key_Escape},
    {Qt::Key_Space},
    {Qt::Key_F4},
    {Qt::Key_Down, Qt::AltModifier},
    {Qt::Key_Menu},
    {Qt::Key_Backspace},
    {Qt::Key_Delete},
    {Qt::Key_A, Qt::ControlModifier},
    {Qt::Key_C, Qt::ControlModifier},
    {Qt::Key_X, Qt::ControlModifier},
    {Qt::Key_V, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier},
    {Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier},
    {Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier},
    {Qt::Key_Insert, Qt::ShiftModifier},
    {Qt::Key_K, Qt::ControlModifier},
    {Qt::Key_Backspace, Qt::ControlModifier},
    {Qt::Key_End, Qt::ShiftModifier},
};

const Keys kListKeys[] = {{Qt::Key_Up},     {Qt::Key_Down}, {Qt::Key_Down},
                          {Qt::Key_PageUp}, {Qt::Key_Home}, {Qt::Key_PageDown},
                          {Qt::Key_End},    {Qt::Key_N},    {Qt::Key_S}};
const Keys kListEnds[] = {{Qt::Key_Return}, {Qt::Key_Return}, {Qt::Key_Escape}, {Qt::Key_Tab}};

constexpr int kLongestTyped = 300; ///< longer texts are pasted

QString nameOf(const QWidget &control)
{
    const QWidget &named =
        control.objectName().startsWith(u"qt_"_s) || control.objectName().isEmpty()
            ? *control.parentWidget()
            : control;
    return control.window()->objectName() + u'.' + named.objectName();
}

/// The initial text of a file name box.
QString defaultNameOf(const QLineEdit &field)
{
    for (const DataFileKindRow &kind : kDataFileKinds) {
        if (field.objectName() == QLatin1StringView(Form1::fileNameBox(kind.kind).control)) {
            return QLatin1StringView(kind.defaultName);
        }
    }
    return u"mine.tvd"_s;
}

/// Whether the widget's context menu runs its own event loop, which would block this walk.
bool hasBlockingMenu(const QWidget *widget)
{
    return qobject_cast<const QScrollBar *>(widget) != nullptr;
}

QString abbreviated(const QString &text)
{
    constexpr qsizetype kMost = 60;
    return u'"' + QString::fromUtf8(text.left(kMost).toUtf8().toPercentEncoding(" <>%\"")) + u'"' +
           (text.size() > kMost ? u" (%1 characters)"_s.arg(text.size()) : QString());
}

} // namespace

template <class T>
QList<T *> Day::shown() const
{
    QList<T *> controls = screen().findChildren<T *>();
    controls.removeIf([](const T *control) { return !control->isVisible(); });
    return controls;
}

QPushButton *Day::randomButton()
{
    const auto buttons = shown<QPushButton>();
    QPushButton *button = m_dice.pick(buttons);
    // Mostly pick a button that goes forward: otherwise few walks would reach a save.
    static const QStringList leaving = {u"Exit"_s, u"<<"_s, u"Back"_s, u"Back To Menu"_s,
                                        u"Cancel"_s};
    const int stays = m_shown == u"Form2"_s ? 20 : 75;
    return leaving.contains(button->text()) && m_dice.chance(stays) ? m_dice.pick(buttons) : button;
}

QPoint Day::randomPosition(const QWidget &widget)
{
    return widget.mapToGlobal(QPoint(m_dice.below(widget.width()), m_dice.below(widget.height())));
}

void Day::key(int code, Qt::KeyboardModifiers modifiers, const QString &text)
{
    QTest::sendKeyEvent(QTest::Click, screen().windowHandle(), static_cast<Qt::Key>(code), text,
                        modifiers);
}

bool Day::pressButton()
{
    const QPushButton *button = randomButton();
    trace::note(u"press "_s + nameOf(*button) + u' ' + button->text());
    mouse::click(randomPosition(*button));
    return true;
}

bool Day::pressByKeyboard()
{
    QPushButton *button = randomButton();
    trace::note(u"press by keyboard "_s + nameOf(*button) + u' ' + button->text());
    button->setFocus(Qt::TabFocusReason);
    const bool isSpace = m_dice.chance(50);
    key(isSpace ? Qt::Key_Space : Qt::Key_Return, {}, u" "_s);
    return true;
}

bool Day::doubleClick()
{
    const bool isButton = m_dice.chance(50);
    const QPoint place = isButton ? mouse::middleOf(*randomButton()) : randomPosition(screen());
    trace::note(u"double click at %1,%2"_s.arg(place.x()).arg(place.y()));
    mouse::doubleClick(place);
    return true;
}

bool Day::clickAnywhere()
{
    static constexpr Qt::MouseButton kButtons[] = {Qt::LeftButton, Qt::LeftButton, Qt::RightButton,
                                                   Qt::MiddleButton};
    const QPoint place = randomPosition(screen());
    const Qt::MouseButton drawn = m_dice.pick(kButtons);
    const bool waits = hasBlockingMenu(QApplication::widgetAt(place));
    const Qt::MouseButton button = waits ? Qt::LeftButton : drawn;
    trace::note(u"click at %1,%2 with %3"_s.arg(place.x()).arg(place.y()).arg(int(button)));
    mouse::click(place, button);
    return true;
}

void Day::putText(QLineEdit &field, const QString &text)
{
    mouse::click(mouse::middleOf(field));
    if (m_dice.chance(60)) {
        key(Qt::Key_A, Qt::ControlModifier);
    }
    trace::note(u"into "_s + nameOf(field) + u' ' + abbreviated(text));
}

bool Day::type()
{
    const auto fields = shown<QLineEdit>();
    const bool isMenu = m_shown == u"Form1"_s; // nameFile() handles its boxes
    if (fields.isEmpty() || (isMenu && m_dice.chance(90))) {
        return false;
    }
    const QString text = samples::text(m_dice).left(kLongestTyped);
    putText(*m_dice.pick(fields), text);
    for (const uint character : text.toUcs4()) {
        const char32_t typed = character;
        key(Qt::Key_unknown, {}, QString::fromUcs4(&typed, 1));
    }
    return true;
}

bool Day::paste()
{
    const auto fields = shown<QLineEdit>();
    const bool isMenu = m_shown == u"Form1"_s; // nameFile() handles its boxes
    if (fields.isEmpty() || (isMenu && m_dice.chance(90))) {
        return false;
    }
    const QString text = samples::text(m_dice);
    putText(*m_dice.pick(fields), text);
    QApplication::clipboard()->setText(text);
    key(Qt::Key_V, Qt::ControlModifier);
    return true;
}

bool Day::compose()
{
    if (qobject_cast<QLineEdit *>(QApplication::focusWidget()) == nullptr &&
        qobject_cast<QComboBox *>(QApplication::focusWidget()) == nullptr) {
        return false;
    }
    const QString text = samples::text(m_dice);
    trace::note(u"compose "_s + abbreviated(text));
    QInputMethodEvent begun(text.left(3), {});
    QApplication::sendEvent(QApplication::focusWidget(), &begun);
    QInputMethodEvent committed;
    committed.setCommitString(text);
    QApplication::sendEvent(QApplication::focusWidget(), &committed);
    return true;
}

bool Day::pickByMouse()
{
    const auto combos = shown<ComboBox>();
    if (combos.isEmpty()) {
        return false;
    }
    const ComboBox *combo = m_dice.pick(combos);
    QStyleOptionComboBox option;
    option.initFrom(combo);
    option.editable = true;
    const QRect arrow = combo->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                       QStyle::SC_ComboBoxArrow, combo);
    const QModelIndex item = combo->model()->index(m_dice.below(combo->count()), 0);
    trace::note(u"pick in "_s + nameOf(*combo) + u' ' + item.data().toString());
    mouse::click(combo->mapToGlobal(arrow.center()));
    QAbstractItemView *list = combo->view();
    if (list->isVisible() && m_dice.chance(90)) {
        list->scrollTo(item);
        mouse::click(list->viewport()->mapToGlobal(list->visualRect(item).center()));
    }
    return true;
}

bool Day::pickByKeyboard()
{
    const auto combos = shown<ComboBox>();
    if (combos.isEmpty()) {
        return false;
    }
    ComboBox *combo = m_dice.pick(combos);
    trace::note(u"pick by keyboard in "_s + nameOf(*combo));
    combo->setFocus(Qt::TabFocusReason);
    key(m_dice.chance(50) ? Qt::Key_F4 : Qt::Key_Down);
    for (int more = m_dice.below(6); more > 0; --more) {
        key(m_dice.pick(kListKeys).code);
    }
    key(m_dice.pick(kListEnds).code);
    return true;
}

bool Day::pressKeys()
{
    for (int more = 1 + m_dice.below(4); more > 0; --more) {
        const Keys &keys = m_dice.pick(kKeys);
        if (keys.code == Qt::Key_Menu && hasBlockingMenu(QApplication::focusWidget())) {
            continue;
        }
        trace::note(u"key "_s + QKeySequence(keys.code | int(keys.modifiers.toInt())).toString());
        key(keys.code, keys.modifiers, keys.code == Qt::Key_Space ? u" "_s : QString());
    }
    return true;
}

bool Day::turnTheWheel()
{
    QWidget *widget = QApplication::widgetAt(randomPosition(screen()));
    if (widget == nullptr) {
        return false;
    }
    trace::note(u"wheel"_s);
    turnWheel(*widget, m_dice.chance(50) ? 1 : -3);
    return true;
}

bool Day::drag()
{
    const QPoint from = randomPosition(screen());
    const QPoint to = randomPosition(screen());
    trace::note(u"drag from %1,%2 to %3,%4"_s.arg(from.x()).arg(from.y()).arg(to.x()).arg(to.y()));
    mouse::drag(from, to);
    return true;
}

bool Day::selectInList()
{
    const auto lists = shown<ListBox>();
    if (lists.isEmpty() || lists.front()->model()->rowCount() == 0) {
        return false;
    }
    ListBox *list = lists.front();
    const int row = m_dice.below(list->model()->rowCount());
    trace::note(u"select in "_s + nameOf(*list) + u' ' + QString::number(row));
    const QModelIndex index = list->model()->index(row, 0);
    list->scrollTo(index);
    mouse::click(list->viewport()->mapToGlobal(list->visualRect(index).center()));
    return true;
}

bool Day::closeWindow()
{
    trace::note(u"close "_s + screen().objectName());
    screen().close();
    return true;
}

bool Day::resize()
{
    trace::note(u"resize"_s);
    if (m_dice.chance(20)) {
        screen().showMaximized();
    } else {
        screen().showNormal();
        screen().resize(300 + m_dice.below(900), 200 + m_dice.below(700));
    }
    return true;
}

bool Day::writeFirstLine()
{
    if (qobject_cast<CommentaryScreen *>(&screen()) == nullptr) {
        return false;
    }
    putText(screen().control<QLineEdit>("Text1"), u"The end."_s);
    key(Qt::Key_unknown, {}, u"The end."_s);
    return true;
}

bool Day::nameFile()
{
    static const QStringList screens = {u"Form1"_s, u"Form2"_s};
    const auto fields = shown<QLineEdit>();
    if (!screens.contains(screen().objectName()) || fields.isEmpty()) {
        return false;
    }
    QLineEdit *field = m_dice.pick(fields);
    const QString name = m_dice.chance(40) ? defaultNameOf(*field) : samples::fileName(m_dice);
    putText(*field, name);
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_Delete);
    QApplication::clipboard()->setText(name);
    key(Qt::Key_V, Qt::ControlModifier);
    return true;
}

} // namespace tarvold::testing
