#include "controls/controls.h"
#include "controls/list_box.h"
#include "screens/main_menu.h"
#include "support/mouse.h"
#include "walk/checks.h"
#include "walk/day.h"
#include "walk/samples.h"
#include "walk/trace.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <array>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// A screen whose "Saved OK." means a new record.
struct Saving
{
    const char *screen;
    DataFileKind kind;
    std::array<const char *, 3> finishers = {}; ///< screens whose "Combo7" may write no line
};

constexpr Saving kSavings[] = {
    {"Form7", DataFileKind::NormalEndings, {"Form5", "Form6"}},
    {"Form9", DataFileKind::RunInEndings, {"Form5", "Form6", "Form8"}},
    {"Form11", DataFileKind::TurnEndings, {"Form5", "Form6"}},
    {"Form13", DataFileKind::Interviews},
    {"Form15", DataFileKind::TalkShows},
};

const std::pair<const char *, DataFileKind> kImports[] = {
    {"Normal Matches", DataFileKind::NormalEndings}, {"Run-In Matches", DataFileKind::RunInEndings},
    {"Stipulations", DataFileKind::Stipulations},    {"Turn Matches", DataFileKind::TurnEndings},
    {"Interviews", DataFileKind::Interviews},        {"Talk Shows", DataFileKind::TalkShows}};

bool isOneOf(const QString &text, std::initializer_list<const char *> words)
{
    return std::any_of(words.begin(), words.end(),
                       [&text](const char *word) { return text == QLatin1StringView(word); });
}

/// The kind of a box for the statistics: its text without file names.
std::string kindOf(const QMessageBox &box)
{
    return box.text().section(u'"', 0, 0).section(u'\n', 0, 0).left(56).trimmed().toStdString();
}

/// A key for a box that is visible and not active yet would be taken for a shortcut of the window
/// behind. On a desktop that window gets no keys then. So the box is closed instead.
int possibleWay(int way, const QMessageBox &box)
{
    const bool isKey = way >= 1 && way <= 3;
    return isKey && !box.isActiveWindow() ? 0 : way;
}

} // namespace

void Day::handleDialogs()
{
    auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
    if (dialog != nullptr && QApplication::activeWindow() == dialog) {
        handleFileDialog(*dialog);
        return;
    }
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (box != nullptr && box->isVisible()) {
        m_dialogTimer.stop(); // the following processes events
        handleBox(*box);
        m_dialogTimer.start(1);
    }
}

void Day::handleBox(QMessageBox &box)
{
    ++m_counts.boxes[kindOf(box)];
    trace::note(u"box "_s + box.windowTitle() + u": "_s + box.text().left(300).simplified());
    const Screen *behind = checks::visibleScreen();
    if (behind == nullptr || box.parentWidget() == nullptr || !box.parentWidget()->isVisible()) {
        fail(u"the message box has no visible parent"_s);
    }
    if (const QString wrong = checkMessageBox(box); !wrong.isEmpty()) {
        fail(wrong);
    }
    answer(box);
}

/// Answers the file dialog after a failed save.
void Day::handleFileDialog(QFileDialog &dialog)
{
    auto &field = *dialog.findChild<QLineEdit *>(u"fileNameEdit"_s);
    const QString name =
        samples::fileName(m_dice).remove(QChar::Null); // which Qt's dialog would warn about
    // The dialog may be in another folder, from which this would lead out of what is checked.
    const bool leadsOut = name.startsWith(u".."_s) && dialog.directory() != QDir::current();
    const bool saves = m_dice.chance(70) && !leadsOut;
    trace::note(u"other file %1, saves %2"_s.arg(name).arg(saves));
    field.setText(name);
    QTest::keyClick(&field, saves ? Qt::Key_Return : Qt::Key_Escape);
    ++m_counts.answers[dialog.isVisible() || !saves ? "no file" : "a file"];
    if (dialog.isVisible()) {
        dialog.reject(); // it refuses some names
    }
}

void Day::answer(QMessageBox &box)
{
    if (m_dice.chance(10)) {
        mouse::click(randomPosition(*box.parentWidget())); // blocked by the box
    }
    const QPointer<QMessageBox> asked(&box);
    while (asked != nullptr && asked->isVisible()) {
        const auto buttons = asked->buttons();
        const int way = possibleWay(m_dice.below(10), *asked);
        trace::note(u"answer %1"_s.arg(way));
        if (way == 0) {
            asked->close();
        } else if (way == 1) {
            QTest::keyClick(asked->windowHandle(), Qt::Key_Escape);
        } else if (way == 2) {
            QTest::keyClick(asked->windowHandle(), Qt::Key_Return);
        } else if (way == 3) {
            QTest::keyClick(asked->windowHandle(), Qt::Key_Tab);
        } else {
            QAbstractButton *yes = asked->button(QMessageBox::Yes);
            mouse::click(mouse::middleOf(
                *(yes != nullptr && m_dice.chance(50) ? yes : m_dice.pick(buttons))));
        }
    }
    const QAbstractButton *pressed = asked->clickedButton();
    ++m_counts.answers[pressed != nullptr ? pressed->text().remove(u'&').toStdString() : "none"];
}

/// Checks that what the box says about the folder is true.
QString Day::checkMessageBox(const QMessageBox &box)
{
    if (box.text() == u"Saved OK."_s) {
        return checkAdded();
    }
    if (box.text() == u"Saved OK!"_s) {
        return checkStored();
    }
    if (box.text() == u"Import Complete."_s) {
        return checkImported();
    }
    if (box.text() == u"Stipulation Deleted."_s) {
        return m_ledger->checkDeleted(nameIn(Form1::fileNameBox(DataFileKind::Stipulations)),
                                      nameIn({"Form16", "listpos"}).toInt());
    }
    return checkFolder();
}

QString Day::checkAdded()
{
    const auto *saving =
        std::find_if(std::begin(kSavings), std::end(kSavings), [this](const Saving &row) {
            return screen().objectName() == QLatin1StringView(row.screen);
        });
    if (saving == std::end(kSavings)) {
        return u"this screen saves nothing"_s;
    }
    int lines = rowOf(saving->kind).linesPerRecord();
    for (const char *finisher : saving->finishers) {
        const bool isKnown =
            finisher == nullptr ||
            isOneOf(nameIn({finisher, "Combo7"}), {"Any", "Pin", "Submission", "Top Rope"});
        lines -= isKnown ? 0 : 1; // an unknown finisher writes no line
    }
    QStringList commentary;
    for (int line = 1; line <= 10; ++line) {
        const QByteArray box = "Text" + QByteArray::number(line);
        const QString text = screen().text(box.constData());
        commentary << (text.isEmpty() ? u"-BLANK-"_s : text);
    }
    return m_ledger->checkAdded(nameIn(Form1::fileNameBox(saving->kind)), lines, commentary);
}

QString Day::checkStored()
{
    const QString position = nameIn({"Form16", "listpos"});
    const bool isNew = position == u"NEW"_s;
    const bool rates =
        isOneOf(nameIn({"Form3", "matchquality"}),
                {"Just Standard Ability", "Just Hardcore Ability", "50% Standard, 50% Hardcore"});
    return m_ledger->checkStored(
        nameIn(Form1::fileNameBox(DataFileKind::Stipulations)),
        isNew ? std::nullopt : std::optional(position.toInt()), rates ? 19 : 18,
        {nameIn({"Form3", "matchtype"}), nameIn({"Form3", "stipulation"})});
}

QString Day::checkImported()
{
    const auto *list = screen().findChild<ListBox *>();
    const QModelIndexList rows = list->selectionModel()->selectedIndexes();
    const QString chosen = nameIn({"Form2", "whatimport"});
    const auto *import =
        std::find_if(std::begin(kImports), std::end(kImports),
                     [&chosen](const auto &row) { return chosen == QLatin1StringView(row.first); });
    if (rows.isEmpty() || import == std::end(kImports)) {
        return u"no import was selected"_s;
    }
    return m_ledger->checkImported(rows.front().data().toString(), nameIn({"Form2", "Text1"}),
                                   import->second);
}

} // namespace tarvold::testing
