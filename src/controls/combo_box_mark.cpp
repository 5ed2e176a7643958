#include "controls/announcement.h"
#include "controls/combo_box.h"
#include "controls/contrast.h"
#include "controls/text_box.h"

#include <QPainter>

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

void ComboBox::markUnlisted(const QString &warning)
{
    if (m_mark != nullptr) {
        describeMark(false); // in the old words
        m_warning = warning;
        m_box->setNote(m_isMarked ? m_warning : QString());
        describeMark();
        return;
    }
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

void ComboBox::describeMark(bool isMarked)
{
    if (isMarked == m_isMarkDescribed) {
        return;
    }
    m_isMarkDescribed = isMarked;
    for (QWidget *spoken : {static_cast<QWidget *>(this), static_cast<QWidget *>(m_box)}) {
        QString purpose = spoken->accessibleDescription();
        if (isMarked) {
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

} // namespace tarvold
