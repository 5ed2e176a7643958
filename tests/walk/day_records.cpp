// What the author does in the records windows, beside a flow that may be under way.

#include "controls/combo_box.h"
#include "records/document.h"
#include "records/record_list_model.h"
#include "records/records_window.h"
#include "screens/main_menu.h"
#include "support/mouse.h"
#include "walk/checks.h"
#include "walk/day.h"
#include "walk/samples.h"
#include "walk/trace.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

#include <algorithm>
#include <numeric>

namespace tarvold::testing {

using namespace Qt::StringLiterals;
using records::RecordsWindow;

// clang-format off
const Day::RecordsAction Day::kRecordsActions[] = {
    {"choose a record",   12, &Day::chooseRecord},
    {"change a field",    14, &Day::changeField},
    {"press keys",        16, &Day::pressKeysIn},
    {"choose an entry",   10, &Day::chooseEntry},
    {"copy records",       2, &Day::copyRecords},
    {"write similar",      2, &Day::writeSimilar},
    {"search",             5, &Day::searchRecords},
    {"sort",               4, &Day::sortRecords},
    {"choose a kind",      2, &Day::chooseKind},
    {"press a button",     5, &Day::pressButtonIn},
    {"click anywhere",     5, &Day::clickIn},
    {"close",              2, &Day::closeRecords},
};
// clang-format on

namespace {

const QKeyCombination kRecordKeys[] = {
    Qt::Key_Up,
    Qt::Key_Down,
    Qt::Key_Down,
    Qt::Key_PageDown,
    Qt::Key_Home,
    Qt::Key_End,
    Qt::Key_Tab,
    Qt::SHIFT | Qt::Key_Backtab,
    Qt::Key_Return,
    Qt::Key_Escape,
    Qt::Key_Space,
    Qt::Key_Delete,
    Qt::Key_F5,
    Qt::Key_F8,
    Qt::SHIFT | Qt::Key_F8,
    Qt::SHIFT | Qt::Key_Down,
    Qt::CTRL | Qt::Key_1,
    Qt::CTRL | Qt::Key_2,
    Qt::CTRL | Qt::Key_A,
    Qt::CTRL | Qt::Key_D,
    Qt::CTRL | Qt::Key_F,
    Qt::CTRL | Qt::Key_S,
    Qt::CTRL | Qt::Key_X,
    Qt::CTRL | Qt::Key_V,
    Qt::CTRL | Qt::Key_Z,
    Qt::CTRL | Qt::Key_Z,
    Qt::CTRL | Qt::Key_Z,
    Qt::CTRL | Qt::Key_Y,
    Qt::CTRL | Qt::SHIFT | Qt::Key_Z,
    Qt::CTRL | Qt::SHIFT | Qt::Key_Up,
    Qt::CTRL | Qt::SHIFT | Qt::Key_Down,
};

void keyIn(RecordsWindow &window, QKeyCombination keys)
{
    if (QWindow *target = window.windowHandle(); target != nullptr && window.isVisible()) {
        const QString text = keys.key() == Qt::Key_Space ? u" "_s : QString();
        QTest::sendKeyEvent(QTest::Click, target, keys.key(), text, keys.keyboardModifiers());
    }
}

QTreeView &listIn(const RecordsWindow &window)
{
    return *window.findChild<QTreeView *>(u"list"_s);
}

const records::Document &documentIn(const RecordsWindow &window)
{
    return dynamic_cast<records::RecordListModel *>(listIn(window).model())->document();
}

QByteArray bytesOf(const records::Document &document)
{
    QByteArray bytes;
    for (int record = 0; record < document.count(); ++record) {
        bytes += document.entry(record).isDeleted ? QByteArray() : document.entry(record).bytes;
    }
    return bytes;
}

/// The controls of a type that a user could reach now.
template <class T>
QList<T *> usable(const RecordsWindow &window)
{
    QList<T *> found = window.findChildren<T *>();
    found.removeIf([](const T *one) { return !one->isVisible() || !one->isEnabled(); });
    return found;
}

void triggerIn(const RecordsWindow &window, const char *name)
{
    auto *action = window.findChild<QAction *>(QLatin1StringView(name));
    if (action->isEnabled() && action->isVisible()) {
        action->trigger();
    }
}

} // namespace

bool Day::openRecords()
{
    constexpr qsizetype kMostWindows = 3;
    if (screen().objectName() != u"Form1"_s || RecordsWindow::all().size() >= kMostWindows) {
        return false;
    }
    const DataFileKind kind = m_dice.pick(kDataFileKinds).kind;
    auto &box = screen().control<QLineEdit>(Form1::fileNameBox(kind).control);
    trace::note(u"look through "_s + box.text().left(60));
    box.setFocus(Qt::TabFocusReason);
    key(Qt::Key_O, Qt::ControlModifier);
    followRecords();
    return true;
}

/// Puts new windows beside the screens, where clicks tell them apart, and checks all that they
/// save.
void Day::followRecords()
{
    constexpr QPoint kBeside(4000, 0);
    for (RecordsWindow *window : RecordsWindow::all()) {
        if (window->property("followed").toBool()) {
            continue;
        }
        window->setProperty("followed", true);
        window->move(kBeside);
        const records::Document &document = documentIn(*window);
        connect(&document, &records::Document::saved, this, [this, &document] {
            trace::note(u"saved "_s + document.fileName());
            const QString wrong = m_ledger->checkReplaced(document.fileName(), bytesOf(document));
            if (!wrong.isEmpty()) {
                fail(wrong);
            }
        });
    }
}

bool Day::useRecords()
{
    const QList<RecordsWindow *> windows = RecordsWindow::all();
    if (windows.isEmpty() || QApplication::activePopupWidget() != nullptr) {
        return false;
    }
    const QPointer<RecordsWindow> window = m_dice.pick(windows);
    const auto before = checks::contents();
    m_mayChangeScreens = false;
    for (int more = 1 + m_dice.below(6); more > 0 && window != nullptr; --more) {
        window->raise();
        window->activateWindow();
        QCoreApplication::processEvents();
        actIn(*window);
        QCoreApplication::processEvents();
        while (QWidget *popup = QApplication::activePopupWidget()) {
            popup->close();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    for (const auto &[name, content] : m_mayChangeScreens ? decltype(before)() : before) {
        if (const QString now = checks::contents()[name]; now != content) {
            fail(
                u"a records window has changed %1 from \"%2\" to \"%3\""_s.arg(name, content, now));
        }
    }
    screen().activateWindow();
    return true;
}

void Day::actIn(RecordsWindow &window)
{
    static const int sum = std::accumulate(
        std::begin(kRecordsActions), std::end(kRecordsActions), 0,
        [](int before, const RecordsAction &action) { return before + action.weight; });
    int place = m_dice.below(sum);
    const RecordsAction *action = kRecordsActions;
    while (place >= action->weight) {
        place -= action->weight;
        ++action;
    }
    ++m_counts.actions[std::string("records: ") + action->name];
    trace::note(
        u"records of %1: %2"_s.arg(window.fileName().left(60), QLatin1StringView(action->name)));
    (this->*action->act)(window);
}

void Day::chooseRecord(RecordsWindow &window)
{
    QTreeView &list = listIn(window);
    if (!list.isVisible() || list.model()->rowCount() == 0) {
        return;
    }
    const QModelIndex index = list.model()->index(m_dice.below(list.model()->rowCount()), 0);
    list.scrollTo(index);
    mouse::click(list.viewport()->mapToGlobal(list.visualRect(index).center()));
}

/// Puts something into a field. It may stay pending.
void Day::changeField(RecordsWindow &window)
{
    keyIn(window, Qt::CTRL | Qt::Key_2);
    const QString name = u"field"_s + QString::number(1 + m_dice.below(44));
    auto *field = window.findChild<QWidget *>(name);
    if (field == nullptr || !field->isVisible() || !field->isEnabled()) {
        return;
    }
    const QString text = samples::text(m_dice);
    trace::note(u"into "_s + name);
    field->setFocus(Qt::TabFocusReason);
    if (m_dice.chance(60)) {
        keyIn(window, Qt::CTRL | Qt::Key_A);
    }
    QApplication::clipboard()->setText(text);
    keyIn(window, Qt::CTRL | Qt::Key_V);
    static const QKeyCombination ends[] = {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Escape,
                                           Qt::CTRL | Qt::Key_Z};
    if (m_dice.chance(60)) {
        keyIn(window, m_dice.pick(ends));
    }
}

void Day::pressKeysIn(RecordsWindow &window)
{
    const QPointer<RecordsWindow> alive(&window);
    for (int more = 1 + m_dice.below(4); more > 0 && alive != nullptr; --more) {
        const QKeyCombination keys = m_dice.pick(kRecordKeys);
        trace::note(u"key "_s + QKeySequence(keys).toString());
        keyIn(window, keys);
    }
}

void Day::chooseEntry(RecordsWindow &window)
{
    static constexpr const char *kEntries[] = {
        "save",      "save",     "saveAs",          "readAgain",        "undo",
        "undo",      "redo",     "delete",          "restore",          "duplicate",
        "moveUp",    "moveDown", "nextProblem",     "repairSelected",   "repairAll",
        "fileOrder", "find",     "previousProblem", "onlyProblemsEntry"};
    const char *entry = m_dice.pick(kEntries);
    trace::note(QLatin1StringView(entry));
    triggerIn(window, entry);
}

void Day::copyRecords(RecordsWindow &window)
{
    triggerIn(window, "copyTo");
    if (const QString wrong = m_ledger->checkGrown(); !wrong.isEmpty()) {
        fail(wrong);
    }
}

void Day::writeSimilar(RecordsWindow &window)
{
    m_mayChangeScreens = m_mayChangeScreens || screen().objectName() == u"Form1"_s;
    triggerIn(window, "writeSimilar");
}

void Day::searchRecords(RecordsWindow &window)
{
    auto *box = window.findChild<QLineEdit *>(u"search"_s);
    if (!box->isEnabled()) {
        return;
    }
    box->setFocus(Qt::TabFocusReason);
    keyIn(window, Qt::CTRL | Qt::Key_A);
    keyIn(window, Qt::Key_Delete);
    if (m_dice.chance(60)) {
        QApplication::clipboard()->setText(m_dice.chance(70) ? u"outside 3"_s
                                                             : samples::text(m_dice));
        keyIn(window, Qt::CTRL | Qt::Key_V);
    }
}

void Day::sortRecords(RecordsWindow &window)
{
    QHeaderView &heads = *listIn(window).header();
    if (heads.isVisible()) {
        const int place = m_dice.below(heads.width());
        mouse::click(heads.viewport()->mapToGlobal(QPoint(place, heads.height() / 2)));
    }
}

void Day::chooseKind(RecordsWindow &window)
{
    auto *kind = window.findChild<ComboBox *>(u"kind"_s);
    kind->setFocus(Qt::TabFocusReason);
    keyIn(window, Qt::Key_F4);
    for (int more = m_dice.below(6); more > 0; --more) {
        keyIn(window, Qt::Key_Down);
    }
    keyIn(window, m_dice.chance(70) ? Qt::Key_Return : Qt::Key_Escape);
}

void Day::pressButtonIn(RecordsWindow &window)
{
    if (const auto buttons = usable<QAbstractButton>(window); !buttons.isEmpty()) {
        const QAbstractButton *button = m_dice.pick(buttons);
        trace::note(u"press "_s + button->objectName());
        mouse::click(mouse::middleOf(*button));
    }
}

void Day::clickIn(RecordsWindow &window)
{
    const QPoint place = randomPosition(window);
    trace::note(u"click at %1,%2"_s.arg(place.x()).arg(place.y()));
    mouse::click(place);
}

void Day::closeRecords(RecordsWindow &window)
{
    window.close();
}

} // namespace tarvold::testing
