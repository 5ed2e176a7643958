#include "records/records_window_parts.h"

#include "controls/controls.h"
#include "controls/push_button.h"
#include "controls/sizes.h"
#include "controls/text_box.h"
#include "records/chosen_record.h"
#include "records/clear_button.h"
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
#include "records/records_tasks.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

QLabel *newLabel(const QString &text, QWidget *buddy = nullptr)
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setBuddy(buddy);
    return label;
}

} // namespace

RecordsWindow::Parts::Parts(RecordsWindow &whole)
    : window(whole)
    , scan(std::make_unique<ProblemScan>(document))
    , model(std::make_unique<RecordListModel>(document, *scan))
{
    auto *content = new QWidget(&window);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(kMargin, kTightMargin, kMargin, kTightMargin);
    column->setSpacing(kRowGap);
    column->addLayout(newHead());
    kindNote = newLabel({});
    kindNote->setObjectName(u"kindNote"_s);
    kindNote->setWordWrap(true);
    kindNote->hide();
    column->addWidget(kindNote);
    column->addWidget(newSearchRow());
    column->addWidget(newPages(), 1);
    column->addLayout(newFoot());
    window.setCentralWidget(content);

    const Typing typing = {[this] { return pane->commit(); },
                           [this] { return pane->hasPending(); }};
    file = new RecordsFile(document, window, typing);
    tasks = new RecordsTasks(document, *model, *scan, *list, typing);
    tasks->setParent(&window);
    actions = new RecordsActions(window, *list);
    connectFile();
    place = new ListPlace(document, *model, *list);
    new ChosenRecord(document, *scan, *model, *list, *pane);
    connectSearch();
    connectList();
    connectScan();
    connectActions();
}

RecordsWindow::Parts::~Parts()
{
    // The undo stack tells of its end, when the list that the actions ask is gone already.
    document.undoStack().disconnect();
}

QLayout *RecordsWindow::Parts::newHead()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(kGap);
    path = new PathLabel;
    kind = new KindBox;
    kindLabel = newLabel(u"Kind"_s, kind);
    row->addWidget(path, 1);
    row->addWidget(kindLabel);
    row->addWidget(kind);
    return row;
}

QWidget *RecordsWindow::Parts::newSearchRow()
{
    searchRow = new QWidget;
    auto *row = new QHBoxLayout(searchRow);
    row->setContentsMargins({});
    row->setSpacing(kGap);
    search = new TextBox;
    search->setObjectName(u"search"_s);
    controls::describe(
        *search, u"Search"_s,
        u"Shows the records that hold this text in any field or line. Escape shows all "
        "again."_s);
    auto *clear = new ClearButton(*search, u"Clear The Search"_s, u"Esc"_s);
    clear->setObjectName(u"clearSearch"_s);
    onlyProblems = new QCheckBox(u"Only With Problems"_s);
    onlyProblems->setObjectName(u"onlyProblems"_s);
    onlyProblems->setMinimumHeight(kLeastTarget);
    row->addWidget(newLabel(u"Search"_s, search));
    row->addWidget(search, 1);
    row->addWidget(onlyProblems);
    return searchRow;
}

QWidget *RecordsWindow::Parts::newPages()
{
    auto *splitter = new QSplitter(Qt::Horizontal);
    splitter->setObjectName(u"splitter"_s);
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(kLeastTarget);
    list = new RecordListView;
    list->setModel(model.get());
    pane = new RecordPane;
    splitter->addWidget(list);
    splitter->addWidget(pane);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({QWIDGETSIZE_MAX / 2, QWIDGETSIZE_MAX / 2}); // the same for both

    failure = newLabel({});
    failure->setObjectName(u"failure"_s);
    failure->setWordWrap(true);
    failure->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    failure->setTextInteractionFlags(Qt::TextSelectableByMouse); // without a blinking cursor
    failure->setAccessibleName(u"Why the file can't be shown"_s);
    pages = new QStackedWidget;
    pages->addWidget(splitter);
    pages->addWidget(failure);
    return pages;
}

QLayout *RecordsWindow::Parts::newFoot()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(kGap);
    counts = newLabel({});
    counts->setObjectName(u"counts"_s);
    notice = new NoticeLine;
    progress = new QProgressBar;
    progress->setObjectName(u"progress"_s);
    stop = new PushButton(u"Stop"_s);
    stop->setObjectName(u"stop"_s);
    progress->hide();
    stop->hide();
    row->addWidget(counts);
    row->addWidget(notice, 1);
    row->addWidget(progress);
    row->addWidget(stop);
    return row;
}

} // namespace tarvold::records
