#include "records/record_pane.h"

#include "controls/announcement.h"
#include "controls/long_text.h"
#include "controls/sizes.h"
#include "records/pane_scroll.h"
#include "records/preview.h"
#include "records/problem_list.h"
#include "records/record_tabs.h"
#include "records/shown_view.h"

#include <QLabel>
#include <QShortcut>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>
#include <tuple>
#include <utility>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostShown = 2000; ///< of the sentence; names may be of any length

/// What is announced when a change has made other problems.
QString announcementOf(std::size_t problems)
{
    if (problems == 0) {
        return u"No problems."_s;
    }
    return problems == 1 ? u"1 problem."_s : u"%1 problems."_s.arg(problems);
}

} // namespace

RecordPane::RecordPane(QWidget *parent)
    : QWidget(parent)
    , m_conditions(new QLabel)
    , m_problems(new ProblemList)
    , m_tabs(new RecordTabs)
    , m_shown(new ShownView)
    , m_fields(new RecordFieldsView)
    , m_scroll(new PaneScroll(this))
    , m_announcement(new Announcement(this))
{
    setObjectName(u"record"_s);
    m_conditions->setObjectName(u"conditions"_s);
    m_conditions->setTextFormat(Qt::PlainText);
    m_conditions->setWordWrap(true);
    m_conditions->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_scroll);
    m_scroll->setObjectName(u"pane"_s);
    m_scroll->column().addWidget(m_conditions);
    m_scroll->column().addWidget(m_problems);
    m_scroll->column().addWidget(m_tabs, 1);
    connect(m_scroll, &PaneScroll::heightChanged, this,
            [this] { m_tabs->setRoom(m_scroll->viewport()->height()); });
    addTabs();
    connect(m_problems, &ProblemList::chosen, this, &RecordPane::goTo);
    connect(m_problems, &ProblemList::repairRequested, this, [this](const Problem &problem) {
        if (commit()) {
            repair(problem);
        }
    });
    connect(m_fields, &RecordFieldsView::lineEdited, this, &RecordPane::lineEdited);
    connect(m_fields, &RecordFieldsView::pendingChanged, this, &RecordPane::pendingChanged);
    connect(m_fields, &RecordFieldsView::refused, this, [this] { setView(View::AsWritten); });
    clear();
}

/// What was typed until now may have ended the problem, and is a part of its repair if it did not.
void RecordPane::repair(const Problem &wanted)
{
    const auto identity = [](const Problem &problem) {
        return std::tie(problem.type, problem.field, problem.line, problem.text);
    };
    const std::vector<Problem> now = m_problems->problems(); // a repair changes the list
    const auto found = std::find_if(now.begin(), now.end(), [&](const Problem &problem) {
        return identity(problem) == identity(wanted);
    });
    if (found != now.end() && !found->repair.isEmpty()) {
        const Problem &problem = *found;
        const RecordFieldsView::Lines before = m_fields->lines();
        emit repairRequested(problem);
        showRepaired(problem, before);
    }
}

/// Goes to the line that a repair has put there or changed. Where it changed none, such as by
/// another line end or by taking a line away, the view stays as it is.
void RecordPane::showRepaired(const Problem &problem, const RecordFieldsView::Lines &before)
{
    const std::optional<int> field = m_fields->differenceTo(before, problem.field);
    if (!field) {
        emit said(u"Repaired."_s);
        return;
    }
    goToField(*field);
    emit said(
        u"Repaired line %1, %2."_s.arg(QString::number(*field + 1), m_fields->captionOf(*field)));
}

RecordPane::~RecordPane()
{
    m_fields->disconnect(this);
}

void RecordPane::addTabs()
{
    m_tabs->setObjectName(u"views"_s);
    m_tabs->setAccessibleName(u"Record"_s); // the focus is always in its bar
    m_tabs->tabBar()->setObjectName(u"viewtabs"_s);
    m_tabs->tabBar()->setAccessibleName(u"Views of the record"_s);
    m_tabs->setDocumentMode(true); // no frame: the pages stand on the window's own background
    const struct
    {
        QWidget *page;
        QString caption;
        QKeySequence keys;
    } tabs[] = {{m_shown, u"As Shown"_s, Qt::CTRL | Qt::Key_1},
                {m_fields, u"As Written"_s, Qt::CTRL | Qt::Key_2}};
    for (const auto &[page, caption, keys] : tabs) {
        page->layout()->setContentsMargins(0, kRowGap, 0, 0);
        const int index = m_tabs->addTab(page, caption);
        m_tabs->setTabToolTip(index, keys.toString(QKeySequence::NativeText));
        auto *shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this, [this, index] {
            setView(View(index));
            m_tabs->tabBar()->setFocus(Qt::ShortcutFocusReason);
        });
    }
}

void RecordPane::tell(const Record &record)
{
    const QString sentence = longtext::quoted(conditionsOf(record), kMostShown);
    m_conditions->setText(longtext::breakable(sentence));
    m_tabs->tabBar()->setAccessibleDescription(sentence);
    m_tabs->show();
}

void RecordPane::showRecord(const Record &record)
{
    m_areProblemsNew = true;
    m_scroll->change([this, &record] {
        tell(record);
        m_shown->showRecord(record);
        m_fields->showRecord(record);
    });
}

void RecordPane::updateRecord(const Record &record)
{
    m_scroll->change([this, &record] {
        tell(record);
        m_shown->updateRecord(record);
        m_fields->updateRecord(record);
    });
}

void RecordPane::prepare()
{
    m_fields->prepare();
}

void RecordPane::clear()
{
    m_areProblemsNew = true;
    m_conditions->setText(u"No record is chosen."_s);
    m_problems->setProblems({});
    m_shown->clear();
    m_fields->clear();
    m_tabs->hide();
}

void RecordPane::setProblems(const std::vector<Problem> &problems)
{
    const std::size_t before = m_problems->problems().size();
    m_scroll->change([this, &problems] {
        m_problems->setProblems(problems);
        m_fields->setProblems(problems);
    });
    if (!std::exchange(m_areProblemsNew, false) && problems.size() != before && isActiveWindow()) {
        m_announcement->tell(announcementOf(problems.size()));
    }
}

void RecordPane::setEditable(bool editable)
{
    m_fields->setEditable(editable);
    m_problems->setEditable(editable);
}

bool RecordPane::commit()
{
    return m_fields->commit();
}

bool RecordPane::hasPending() const
{
    return m_fields->hasPending();
}

RecordPane::View RecordPane::view() const
{
    return View(m_tabs->currentIndex());
}

void RecordPane::setView(View view)
{
    m_tabs->setCurrentIndex(int(view));
}

void RecordPane::goToField(int field)
{
    setView(View::AsWritten);
    m_fields->goToField(field);
    m_scroll->reveal(*m_tabs);
}

void RecordPane::setSearch(const QString &text)
{
    m_fields->setSearch(text);
}

bool RecordPane::goToNextMatch()
{
    const std::optional<int> field = m_fields->nextMatch();
    if (field) {
        goToField(*field);
    }
    return field.has_value();
}

void RecordPane::goTo(const Problem &problem)
{
    setView(View::AsWritten);
    if (problem.field >= 0) {
        m_fields->goToField(problem.field);
    } else {
        m_fields->goToLine(problem.line);
    }
    m_scroll->reveal(*m_tabs); // the view has scrolled to the place
}

QSize RecordPane::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 70, fontMetrics().height() * 35};
}

} // namespace tarvold::records
