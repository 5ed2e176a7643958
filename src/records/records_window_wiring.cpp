#include "controls/push_button.h"
#include "controls/text_box.h"
#include "records/kind_box.h"
#include "records/list_place.h"
#include "records/notice_line.h"
#include "records/path_label.h"
#include "records/problem_scan.h"
#include "records/record_list_model.h"
#include "records/record_list_view.h"
#include "records/record_pane.h"
#include "records/records_actions.h"
#include "records/records_file.h"
#include "records/records_repair.h"
#include "records/records_tasks.h"
#include "records/records_window_parts.h"
#include "records/window_words.h"
#include "screens/file_facts.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QShortcut>
#include <QStackedWidget>

#include <functional>
#include <utility>

namespace tarvold::records {

using namespace Qt::StringLiterals;

void RecordsWindow::Parts::connectFile()
{
    QObject::connect(file, &RecordsFile::loaded, &window, [this] { showRecords(); });
    QObject::connect(file, &RecordsFile::failed, &window,
                     [this](const QString &text) { showFailure(text); });
    QObject::connect(file, &RecordsFile::kindWanted, &window, [this](const QString &question) {
        showFailure(question);
        showKindBox(true);
        kind->setFocus();
    });
    QObject::connect(file, &RecordsFile::said, notice, &NoticeLine::tell);
    QObject::connect(file, &RecordsFile::noticed, notice, &NoticeLine::notice);
    QObject::connect(file, &RecordsFile::kindDoubted, &window,
                     [this](const QString &text) { showKindNote(text); });
    QObject::connect(file, &RecordsFile::renamed, &window, [this] { showTitle(); });
    QObject::connect(notice, &NoticeLine::reloadRequested, file, &RecordsFile::reload);
    QObject::connect(kind, &KindBox::kindChosen, file, &RecordsFile::chooseKind);
    QObject::connect(
        &document.undoStack(), &QUndoStack::cleanChanged, &window, [this](bool isClean) {
            if (!isClean) {
                notice->tell({}); // no longer true, such as "Saved"
            } else {              // a change on the disk may have waited for that
                QMetaObject::invokeMethod(file, &RecordsFile::follow, Qt::QueuedConnection);
            }
            showTitle();
        });
}

void RecordsWindow::Parts::showPlaceholder()
{
    list->setPlaceholder(document.count() == 0 ? u"This file has no records."_s
                                               : u"No record is like that."_s);
}

void RecordsWindow::Parts::showRecords()
{
    showKindBox(true);
    kind->show(document.kind());
    pages->setCurrentIndex(0);
    showPlaceholder();
    list->showBeside(model->problemColumn(), RecordListModel::Number + 1);
    if (model->sortColumn() < 0 && list->header()->sortIndicatorSection() >= 0) {
        list->showFileOrder(); // another kind ends the sort
    }
    if (std::exchange(shownKind, document.kind()) != document.kind()) {
        // All but the commentary, which is as long as can be.
        list->fitColumns(RecordListModel::Telling,
                         std::max(int(RecordListModel::Telling), model->problemColumn() - 2));
        fillSortMenu();
    }
    if (tasks->current() < 0 && model->rowCount() > 0 && !place->isAwaited()) {
        list->goTo(0);
    }
    showTitle();
    showCounts();
    enableActions();
}

void RecordsWindow::Parts::showFailure(const QString &text)
{
    kind->show({});
    if (failure->text() != text) {
        failure->setText(text);
        failure->setAccessibleName(text);
    }
    pages->setCurrentIndex(1);
    showKindBox(false);
    showKindNote({});
    notice->focusReload();
    showTitle();
    showCounts();
    enableActions();
}

void RecordsWindow::Parts::showKindBox(bool isShown)
{
    kindLabel->setVisible(isShown);
    kind->setVisible(isShown);
}

void RecordsWindow::Parts::showKindNote(const QString &text)
{
    if (kindNote->text() != text) {
        kindNote->setText(text);
        notice->announce(text);
    }
    kindNote->setVisible(!text.isEmpty());
}

void RecordsWindow::Parts::showTitle()
{
    const QString name = file->name();
    const QString whole = filefacts::wholePath(name);
    path->show(whole.isEmpty() ? name : whole);
    // The mark of changes is written as "[*]", and so can be a file's name.
    const QString shown = QFileInfo(name).fileName().replace(u"[*]"_s, u"[*][*]"_s);
    window.setWindowTitle(shown + u"[*] - Tarvold Data Editor"_s);
    window.setWindowModified(file->isLoaded() && (document.isChanged() || pane->hasPending()));
}

void RecordsWindow::Parts::showCounts()
{
    const int problems = scan->total();
    onlyProblems->setText(u"Only With Problems (%1)"_s.arg(problems));
    counts->setText(countsText());
}

QString RecordsWindow::Parts::countsText() const
{
    if (!file->isLoaded()) {
        return {};
    }
    if (!file->isAllRead()) {
        return u"Reading..."_s;
    }
    const QString all = words::countOf(document.count());
    const int shown = model->rowCount();
    return shown == document.count() ? all : u"%1 of %2"_s.arg(QString::number(shown), all);
}

void RecordsWindow::Parts::connectSearch()
{
    const auto onKey = [this](Qt::Key key, const std::function<void()> &act) {
        auto *shortcut = new QShortcut(key, search);
        shortcut->setContext(Qt::WidgetShortcut);
        QObject::connect(shortcut, &QShortcut::activated, search, act);
    };
    onKey(Qt::Key_Escape, [this] { search->clear(); });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
        onKey(key, [this] { list->setFocus(Qt::ShortcutFocusReason); });
    }
    QObject::connect(search, &QLineEdit::textChanged, model.get(), &RecordListModel::setSearch);
    QObject::connect(search, &QLineEdit::textChanged, pane, &RecordPane::setSearch);
    QObject::connect(search, &QLineEdit::textChanged, &window, [this] { enableActions(); });
    QObject::connect(onlyProblems, &QCheckBox::toggled, model.get(),
                     &RecordListModel::setOnlyProblems);
}

void RecordsWindow::Parts::connectList()
{
    QObject::connect(tasks, &RecordsTasks::said, notice, &NoticeLine::tell);
    QObject::connect(list->selectionModel(), &QItemSelectionModel::currentRowChanged, &window,
                     [this] { enableActions(); });
    QObject::connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, &window,
                     [this] { enableActions(); });
    for (const auto &signal : {&RecordListModel::rearranged, &RecordListModel::settled}) {
        QObject::connect(model.get(), signal, &window, [this] { followRows(); });
    }
    for (const auto &signal : {&RecordListModel::rowsInserted, &RecordListModel::rowsRemoved}) {
        QObject::connect(model.get(), signal, &window, [this] { showCounts(); });
    }
    // After the list's place is found again.
    QObject::connect(&document, &Document::reset, &window, [this] { showReset(); });
    QObject::connect(list, &RecordListView::allWanted, file, &RecordsFile::readRest);
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(list, &QWidget::customContextMenuRequested, &window,
                     [this](const QPoint &where) {
                         actions->recordMenu().popup(list->viewport()->mapToGlobal(where));
                     });
    QObject::connect(list, &QAbstractItemView::activated, &window, [this] { pane->goToField(0); });
    QObject::connect(pane, &RecordPane::said, notice, &NoticeLine::tell);
    QObject::connect(pane, &RecordPane::pendingChanged, &window, [this] {
        const bool isNew = pane->hasPending() && !window.isWindowModified();
        if (isNew) {
            notice->tell({}); // no longer true, such as "Saved"
        }
        window.setWindowModified(file->isLoaded() && (document.isChanged() || pane->hasPending()));
    });
}

void RecordsWindow::Parts::showReset()
{
    showPlaceholder();
    if (!list->currentIndex().isValid()) {
        followRows();
    }
    showCounts();
}

/// After a search or a sort the chosen record is in sight again.
void RecordsWindow::Parts::followRows()
{
    if (list->currentIndex().isValid()) {
        list->scrollTo(list->currentIndex());
    } else if (model->rowCount() > 0 && !isPlaceAwaited()) {
        list->goTo(0);
    }
    showCounts();
    enableActions();
}

/// Whether the record that was the current one may still come into the list.
bool RecordsWindow::Parts::isPlaceAwaited() const
{
    return place->isAwaited() && (!scan->isFinished() || model->isSearching());
}

void RecordsWindow::Parts::connectScan()
{
    QObject::connect(scan.get(), &ProblemScan::progress, &window, [this] { showProgress(); });
    QObject::connect(scan.get(), &ProblemScan::found, &window, [this] { showCounts(); });
    QObject::connect(scan.get(), &ProblemScan::finished, &window, [this] {
        showProgress();
        if (!list->currentIndex().isValid()) {
            followRows();
        }
    });
    // A save asks with the bytes in hand that it is about to write.
    tasks->repair().setMustWait([this] { return file->isAsking(); });
    QObject::connect(&tasks->repair(), &RecordsRepair::progress, &window,
                     [this](int done, int count) {
                         repaired = {done, count};
                         showProgress();
                         enableActions();
                     });
    QObject::connect(stop, &QPushButton::clicked, &window, [this] {
        if (tasks->repair().isRunning()) {
            tasks->repair().stop();
        } else if (scan->isRunning()) {
            scan->stop();
        } else {
            scan->start();
        }
        showProgress();
    });
}

/// A repair, which the user waits for, is shown before the search for problems.
void RecordsWindow::Parts::showProgress()
{
    const bool isRepairing = tasks->repair().isRunning();
    const bool isChecked = scan->isFinished();
    progress->setVisible(isRepairing || !isChecked);
    stop->setVisible(isRepairing || !isChecked);
    const auto show = [this](const QString &name, const QString &format, int value, int count) {
        progress->setAccessibleName(name);
        progress->setFormat(format);
        progress->setRange(0, count);
        progress->setValue(value);
    };
    if (isRepairing) {
        show(u"Records looked at for repairs"_s, u"Repairing: %p %"_s, repaired.first,
             repaired.second);
        stop->setText(u"Stop"_s);
        stop->setPurpose(u"Stops the repairs. No record is changed then."_s);
    } else {
        show(u"Records checked"_s, u"Checking: %p %"_s, scan->checked(), document.count());
        stop->setText(scan->isRunning() ? u"Stop"_s : u"Go On"_s);
        stop->setPurpose(scan->isRunning() ? u"Stops the search for problems."_s
                                           : u"Goes on with the search for problems."_s);
    }
    showCounts();
}

} // namespace tarvold::records
