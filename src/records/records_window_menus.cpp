#include "controls/text_box.h"
#include "records/notice_line.h"
#include "records/problem_scan.h"
#include "records/record_list_model.h"
#include "records/record_list_view.h"
#include "records/record_pane.h"
#include "records/records_actions.h"
#include "records/records_file.h"
#include "records/records_repair.h"
#include "records/records_tasks.h"
#include "records/records_window_parts.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>

#include <functional>

namespace tarvold::records {

using namespace Qt::StringLiterals;

void RecordsWindow::Parts::connectActions()
{
    const auto onAtOnce = [this](Act act, const std::function<void()> &doIt) {
        QObject::connect(&(*actions)[act], &QAction::triggered, &window, doIt);
    };
    const auto on = [this, onAtOnce](Act act, const std::function<void()> &doIt) {
        onAtOnce(act, [this, doIt] {
            if (file->readRest()) {
                doIt();
            }
        });
    };
    on(Act::Save, [this] { file->save(); });
    on(Act::SaveAs, [this] { file->saveAs(); });
    onAtOnce(Act::Reload, [this] { file->reload(); });
    onAtOnce(Act::Close, [this] { window.close(); });
    on(Act::Undo, [this] { tasks->undo(); });
    on(Act::Redo, [this] { tasks->redo(); });
    onAtOnce(Act::Find, [this] {
        search->setFocus(Qt::ShortcutFocusReason);
        search->selectAll();
    });
    on(Act::FindNext, [this] {
        if (pane->commit() && !pane->goToNextMatch()) {
            notice->tell(u"No line of this record holds the text of the search."_s);
        }
    });
    on(Act::Delete, [this] { tasks->remove(); });
    on(Act::Restore, [this] { tasks->restore(); });
    on(Act::Duplicate, [this] { tasks->duplicate(); });
    on(Act::MoveUp, [this] { tasks->move(-1); });
    on(Act::MoveDown, [this] { tasks->move(1); });
    on(Act::CopyTo, [this] { file->copy(tasks->selected()); });
    on(Act::NextProblem, [this] { tasks->goToProblem(1); });
    on(Act::PreviousProblem, [this] { tasks->goToProblem(-1); });
    on(Act::RepairSelected, [this] { tasks->repairSelected(); });
    on(Act::RepairAll, [this] { tasks->repairAll(); });
    onAtOnce(Act::FileOrder, [this] { list->showFileOrder(); });
    on(Act::WriteSimilar, [this] { writeSimilar(); });
    QAction &only = (*actions)[Act::OnlyProblems];
    QObject::connect(&only, &QAction::toggled, onlyProblems, &QCheckBox::setChecked);
    QObject::connect(onlyProblems, &QCheckBox::toggled, &only, &QAction::setChecked);
    for (const QAction *menu : window.menuBar()->actions()) {
        // A menu does not take the focus from an editor, so "Undo" would not know of its text.
        QObject::connect(menu->menu(), &QMenu::aboutToShow, pane, [this] { pane->commit(); });
    }
    QUndoStack &stack = document.undoStack();
    QObject::connect(&stack, &QUndoStack::indexChanged, &window, [this] { enableActions(); });
    enableActions();
}

void RecordsWindow::Parts::writeSimilar()
{
    const int record = tasks->current();
    if (record >= 0 && pane->commit()) {
        emit window.writeSimilarRequested(document.entry(record).bytes, document.kind());
    }
}

void RecordsWindow::Parts::enableActions()
{
    if (actions == nullptr) {
        return;
    }
    const bool isLoaded = file->isLoaded();
    const int current = isLoaded ? tasks->current() : -1;
    const bool isOne = current >= 0;
    const bool isDeleted = isOne && document.entry(current).isDeleted;
    const RecordsTasks::Selection selection =
        isLoaded ? tasks->selection() : RecordsTasks::Selection();
    const bool mayRepair = !tasks->repair().isRunning();
    const QUndoStack &stack = document.undoStack();
    const std::pair<Act, bool> enabled[] = {
        {Act::Save, isLoaded},
        {Act::SaveAs, isLoaded},
        {Act::Undo, isLoaded && stack.canUndo()},
        {Act::Redo, isLoaded && stack.canRedo()},
        {Act::Find, isLoaded},
        {Act::FindNext, isOne && !search->text().isEmpty()},
        // Without a selection it says so.
        {Act::Delete, selection.hasKept || (isOne && !selection.hasDeleted)},
        {Act::Restore, selection.hasDeleted},
        {Act::Duplicate, isOne && !isDeleted},
        {Act::MoveUp, current > 0},
        {Act::MoveDown, isOne && current + 1 < document.count()},
        {Act::CopyTo, isOne},
        {Act::WriteSimilar, isOne && !isDeleted},
        {Act::NextProblem, isLoaded},
        {Act::PreviousProblem, isLoaded},
        {Act::RepairSelected, isOne && mayRepair},
        {Act::RepairAll, isLoaded && mayRepair},
        {Act::OnlyProblems, isLoaded},
        {Act::FileOrder, isLoaded},
    };
    for (const auto &[act, isEnabled] : enabled) {
        (*actions)[act].setEnabled(isEnabled);
    }
    searchRow->setVisible(isLoaded);
    actions->sortMenu().setEnabled(isLoaded);
}

void RecordsWindow::Parts::fillSortMenu()
{
    QMenu &menu = actions->sortMenu();
    menu.clear();
    for (int column = 0; column < model->columnCount(); ++column) {
        const QString head = model->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        QAction *action = menu.addAction(QString(head).replace(u'&', u"&&"_s));
        QObject::connect(action, &QAction::triggered, list, [this, column] {
            const bool isSorted = list->header()->sortIndicatorSection() == column &&
                                  list->header()->sortIndicatorOrder() == Qt::AscendingOrder;
            list->sortByColumn(column, isSorted ? Qt::DescendingOrder : Qt::AscendingOrder);
        });
    }
}

} // namespace tarvold::records
