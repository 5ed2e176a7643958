#include "screens/hint_line.h"

#include "controls/long_text.h"

#include <QHelpEvent>
#include <QToolTip>

namespace tarvold {

using namespace Qt::StringLiterals;

HintLine::HintLine(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void HintLine::showHints(const QStringList &hints)
{
    if (hints == m_hints) {
        return;
    }
    m_hints = hints;
    m_hint = hints.value(0);
    m_more = hints.size() > 1 ? u" (%1 more)"_s.arg(hints.size() - 1) : QString();
    setAccessibleName(m_hint + m_more);
    setAccessibleDescription(hints.mid(1).join(u'\n'));
    elide();
}

QSize HintLine::sizeHint() const
{
    return {0, fontMetrics().lineSpacing()};
}

QSize HintLine::minimumSizeHint() const
{
    return sizeHint();
}

bool HintLine::event(QEvent *event)
{
    // Not by setToolTip(): assistive technology would read out its markup as the description.
    if (event->type() == QEvent::ToolTip && !m_hints.isEmpty()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                           longtext::toolTip(m_hints.join(u'\n')), this);
        return true;
    }
    return QLabel::event(event);
}

void HintLine::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    elide();
}

void HintLine::elide()
{
    const int room = contentsRect().width() - fontMetrics().horizontalAdvance(m_more);
    setText(fontMetrics().elidedText(m_hint, Qt::ElideRight, room) + m_more);
}

} // namespace tarvold
