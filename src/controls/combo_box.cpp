#include "controls/combo_box.h"

#include "controls/announcement.h"
#include "controls/contrast.h"
#include "controls/list_box.h"
#include "controls/text_box.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStandardItemModel>
#include <QWheelEvent>

#include <utility>

namespace tarvold {

namespace {

constexpr int kMarkSize = 16;

/// A triangle with an exclamation mark, so that it is not told by its colour alone.
class WarningMark : public QWidget
{
public:
    explicit WarningMark(QWidget *parent) : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFixedSize(kMarkSize, kMarkSize);
        hide();
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        const QColor behind = palette().color(QPalette::Base);
        const QColor amber(0xC0, 0x70, 0x00);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(contrast::visible(amber, {behind}, contrast::kFocus));
        painter.drawPolygon(QPolygonF({{8, 1}, {15.5, 15}, {0.5, 15}}));
        painter.setBrush(behind);
        painter.drawRect(QRectF(7, 5, 2, 5));
        painter.drawRect(QRectF(7, 11.5, 2, 2));
    }
};

} // namespace

/// The items of the list.
class ComboBox::Items : public QStandardItemModel
{
public:
    using QStandardItemModel::QStandardItemModel;

    /// Invalidates all persistent copies of this index.
    void forget(const QModelIndex &index) { changePersistentIndex(index, {}); }
};

ComboBox::ComboBox(QWidget *parent)
    : QComboBox(parent)
    , m_items(new Items(this))
    , m_box(new TextBox)
{
    setModel(m_items);
    setLineEdit(m_box);
    connect(m_box, &QLineEdit::textEdited, this, &ComboBox::followText);
    setCompleter(nullptr);
    setInsertPolicy(NoInsert);
    setMaxVisibleItems(25);
    setItemDelegate(new ListRows(this));
    setFocusPolicy(Qt::StrongFocus); // no focus by wheel: the user may just be scrolling past
    setMinimumContentsLength(1);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
}

void ComboBox::checkQt()
{
    ComboBox().connectToList();
}

void ComboBox::connectToList()
{
    if (m_isListConnected) {
        return;
    }
    // Only this signal distinguishes a pick from typed text that equals an item: Qt emits
    // activated() for both. Qt's own handler is disconnected because it would clear the undo
    // history. The signal is private, so another Qt version may lack it.
    const QObject *list = view()->parentWidget();
    const char *picked = SIGNAL(itemSelected(QModelIndex));
    m_isListConnected = disconnect(list, picked, this, nullptr) &&
                        bool(connect(list, picked, this, SLOT(choose(QModelIndex))));
    if (!m_isListConnected) {
        qFatal("Qt %s has no signal itemSelected() of a combo box's list, so picks would be lost",
               qVersion());
    }
}

void ComboBox::setText(const QString &text)
{
    setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    setEditText(text);
}

void ComboBox::markUnlisted(const QString &warning)
{
    m_warning = warning;
    m_mark = new WarningMark(m_box);
    m_announcement = new Announcement(this);
    connect(m_box, &QLineEdit::textChanged, this, [this] { updateMark(isBeingTyped()); });
    connect(m_box, &TextBox::typingEnded, this, [this] { updateMark(false); });
    updateMark(isBeingTyped());
}

bool ComboBox::isBeingTyped() const
{
    return m_box->hasFocus() && m_box->isModified();
}

bool ComboBox::isUnlisted(bool isTyping) const
{
    if (findText(currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive) >= 0) {
        return false;
    }
    return !isTyping || findText(currentText(), Qt::MatchStartsWith | Qt::MatchCaseSensitive) < 0;
}

void ComboBox::updateMark(bool isTyping)
{
    if (const bool isMarked = isUnlisted(isTyping); isMarked != m_isMarked) {
        showMark(isMarked);
    }
    if (!isTyping) { // a change would be read out at each key, and the mark is announced
                     // already
        describeMark();
    }
}

void ComboBox::showMark(bool isMarked)
{
    m_isMarked = isMarked;
    constexpr int kGapToText = 4;
    const int room = kMarkSize + kGapToText;
    QMargins margins = m_box->textMargins();
    margins.setRight(margins.right() + (isMarked ? room : -room));
    m_box->setTextMargins(margins);
    m_box->setNote(isMarked ? m_warning : QString());
    placeMark();
    m_mark->setVisible(isMarked);
    if (isMarked && isVisible() && m_box->isModified()) { // not what another control has put there
        m_announcement->tell(m_warning);
    }
}

void ComboBox::describeMark()
{
    if (m_isMarked == m_isMarkDescribed) {
        return;
    }
    m_isMarkDescribed = m_isMarked;
    for (QWidget *spoken : {static_cast<QWidget *>(this), static_cast<QWidget *>(m_box)}) {
        QString purpose = spoken->accessibleDescription();
        if (m_isMarked) {
            purpose = purpose.isEmpty() ? m_warning : m_warning + u' ' + purpose;
        } else if (purpose.startsWith(m_warning)) {
            purpose = purpose.mid(m_warning.size()).trimmed();
        }
        spoken->setAccessibleDescription(purpose);
    }
}

void ComboBox::placeMark()
{
    if (m_mark != nullptr) {
        m_mark->move(m_box->width() - kMarkSize - 3, (m_box->height() - kMarkSize) / 2);
    }
}

void ComboBox::resizeEvent(QResizeEvent *event)
{
    QComboBox::resizeEvent(event);
    placeMark();
}

void ComboBox::showPopup()
{
    connectToList();
    m_isListOpen = true;
    QComboBox::showPopup();
    // Select the item that the box shows, or none if its text is not in the list. This must not set
    // the box's text, even to the same text, as that would clear its undo history.
    const int row = findText(currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    view()->setCurrentIndex(model()->index(row, modelColumn()));
    if (row >= 0) {
        // Qt announces only the list, not its current item.
        QAccessibleEvent item(view(), QAccessible::Focus);
        item.setChild(row);
        QAccessible::updateAccessibility(&item);
    }
}

void ComboBox::choose(const QModelIndex &item)
{
    // While assistive technology listens, Qt delivers each key twice, as it asks the accessibility
    // bus first. Without this check the closed list would report the same pick again.
    if (!std::exchange(m_isListOpen, false)) {
        return;
    }
    if (const QString picked = itemText(item.row()); picked != currentText()) {
        m_box->replaceAsOneStep(picked);
    }
    m_box->end(false);
    describeMark();
    emit chosen();
}

void ComboBox::followText()
{
    const int row = findText(currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (row >= 0) {
        setCurrentIndex(row); // the box already shows this text, so its undo history is kept
    } else if (currentIndex() >= 0) {
        // setCurrentIndex(-1) would clear the text.
        m_items->forget(m_items->index(currentIndex(), modelColumn()));
    }
}

bool ComboBox::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip &&
        m_box->showWholeText(static_cast<QHelpEvent *>(event)->globalPos())) {
        return true;
    }
    return QComboBox::event(event);
}

void ComboBox::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_F4:
        if (event->modifiers() != Qt::NoModifier) { // Alt+F4 closes windows
            event->ignore();
            return;
        }
        showPopup();
        return;
    case Qt::Key_Down:
        showPopup();
        return;
    case Qt::Key_Up:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return;
    default:
        QComboBox::keyPressEvent(event);
    }
}

void ComboBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

} // namespace tarvold
