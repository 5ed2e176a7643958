#include "records/problem_list.h"

#include "controls/controls.h"
#include "controls/list_box.h"
#include "controls/push_button.h"
#include "controls/sizes.h"

#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

/// Rows as high as their whole text needs in the width of the list.
class WrappedRows : public ListRows
{
public:
    explicit WrappedRows(QListView &list) : ListRows(&list), m_list(list) {}

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        constexpr int kAround = 10; // what the style leaves on the left and right of a text
        const int width = m_list.viewport()->width();
        const QRect room(0, 0, std::max(width - kAround, 1), QWIDGETSIZE_MAX);
        const int height =
            option.fontMetrics.boundingRect(room, Qt::TextWordWrap, index.data().toString())
                .height();
        return {width, std::max(height + kRowGap, kLeastTarget)};
    }

private:
    QListView &m_list;
};

} // namespace

ProblemList::ProblemList(QWidget *parent)
    : QWidget(parent)
    , m_heading(new QLabel(this))
    , m_list(new ListBox(this))
    , m_offer(new QLabel(this))
    , m_repair(new PushButton(u"Repair"_s, this))
{
    addList();
    m_heading->setObjectName(u"problemheading"_s);
    m_offer->setObjectName(u"repairoffer"_s);
    m_offer->setWordWrap(true);
    m_repair->setObjectName(u"repair"_s);
    m_repair->setFocusPolicy(Qt::TabFocus); // a click leaves no editor: its text changes problems
    for (QLabel *label : {m_heading, m_offer}) {
        label->setTextFormat(Qt::PlainText);
    }
    auto *row = new QHBoxLayout;
    row->setSpacing(kGap);
    row->addWidget(m_offer, 1);
    row->addWidget(m_repair, 0, Qt::AlignTop);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(kRowGap);
    column->addWidget(m_heading);
    column->addWidget(m_list);
    column->addLayout(row);
    connect(m_repair, &QPushButton::pressed, this, [this] {
        const Problem *problem = selected();
        m_pressed = problem != nullptr ? std::optional(*problem) : std::nullopt;
    });
    connect(m_repair, &QPushButton::clicked, this, [this] {
        if (const auto problem = std::exchange(m_pressed, {})) {
            emit repairRequested(*problem);
        }
    });
    hide();
}

void ProblemList::addList()
{
    m_list->setObjectName(u"problems"_s);
    m_list->setModel(&m_texts);
    m_list->setItemDelegate(new WrappedRows(*m_list));
    m_list->setWordWrap(true);
    m_list->setTextElideMode(Qt::ElideNone);
    m_list->setUniformItemSizes(false);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->installEventFilter(this);
    m_list->viewport()->installEventFilter(this);
    controls::describe(*m_list, u"Problems"_s, u"Enter goes to the field."_s);
    connect(m_list, &QListView::clicked, this, &ProblemList::choose);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ProblemList::followSelection);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ProblemList::followSelection);
}

void ProblemList::setProblems(std::vector<Problem> problems)
{
    const Problem *before = selected();
    const QString text = before != nullptr ? before->text : QString();
    m_problems = std::move(problems);
    QStringList texts;
    for (const Problem &problem : m_problems) {
        texts << problem.text;
    }
    if (texts != m_texts.stringList()) {
        m_texts.setStringList(texts);
        m_list->setCurrentIndex(m_texts.index(int(std::max<qsizetype>(texts.indexOf(text), 0))));
    }
    m_heading->setText(texts.size() == 1 ? u"1 problem:"_s : u"%1 problems:"_s.arg(texts.size()));
    setVisible(!texts.isEmpty());
    followSelection();
    fitHeight();
}

void ProblemList::setEditable(bool editable)
{
    m_isEditable = editable;
    followSelection();
}

const Problem *ProblemList::selected() const
{
    const std::optional<int> row = m_list->selectedRow();
    return row && std::size_t(*row) < m_problems.size() ? &m_problems.at(std::size_t(*row))
                                                        : nullptr;
}

void ProblemList::choose()
{
    if (const Problem *problem = selected(); problem != nullptr) {
        emit chosen(Problem(*problem));
    }
}

void ProblemList::followSelection()
{
    const Problem *problem = selected();
    const bool isOffered = m_isEditable && problem != nullptr && !problem->repair.isEmpty();
    m_offer->setText(isOffered ? problem->repair : QString());
    m_offer->setVisible(isOffered);
    if (!isOffered && m_repair->hasFocus()) {
        m_list->setFocus(Qt::OtherFocusReason); // else Qt would pass the focus on to anything
    }
    m_repair->setVisible(isOffered);
    if (isOffered) {
        m_repair->setPurpose(problem->repair);
    }
}

bool ProblemList::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list->viewport() && event->type() == QEvent::Resize) {
        fitHeight(); // texts wrap in other places
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent &>(*event).key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            choose();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void ProblemList::fitHeight()
{
    constexpr int kMostRows = 4; // more scroll
    constexpr int kMostHeight = 160;
    int height = 0;
    for (int row = 0; row < std::min(m_texts.rowCount(), kMostRows); ++row) {
        height += m_list->sizeHintForIndex(m_texts.index(row)).height();
    }
    m_list->setFixedHeight(std::min(height, kMostHeight) + 2 * m_list->frameWidth());
}

} // namespace tarvold::records
