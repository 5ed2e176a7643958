#include "records/path_label.h"

#include "controls/long_text.h"

#include <QHelpEvent>
#include <QToolTip>

namespace tarvold::records {

using namespace Qt::StringLiterals;

PathLabel::PathLabel(QWidget *parent) : QLabel(parent)
{
    setObjectName(u"path"_s);
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void PathLabel::show(const QString &path)
{
    m_path = path;
    setAccessibleName(u"File "_s + path);
    elide();
}

QSize PathLabel::sizeHint() const
{
    return {0, fontMetrics().lineSpacing()};
}

QSize PathLabel::minimumSizeHint() const
{
    return sizeHint();
}

bool PathLabel::event(QEvent *event)
{
    // Not by setToolTip(): assistive technology would read out its markup as the description.
    if (event->type() == QEvent::ToolTip && !m_path.isEmpty()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), longtext::toolTip(m_path),
                           this);
        return true;
    }
    return QLabel::event(event);
}

void PathLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    elide();
}

void PathLabel::elide()
{
    setText(fontMetrics().elidedText(m_path, Qt::ElideMiddle, contentsRect().width()));
}

} // namespace tarvold::records
