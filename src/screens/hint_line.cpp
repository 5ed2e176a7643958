#include "screens/hint_line.h"

#include "controls/long_text.h"

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
    setToolTip(hints.isEmpty() ? QString() : longtext::toolTip(hints.join(u'\n')));
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
