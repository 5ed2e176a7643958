#include "records/notice_line.h"

#include "controls/announcement.h"
#include "controls/push_button.h"
#include "controls/sizes.h"
#include "screens/hint_line.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace tarvold::records {

using namespace Qt::StringLiterals;

NoticeLine::NoticeLine(QWidget *parent)
    : QWidget(parent)
    , m_line(new HintLine(this))
    , m_reload(new PushButton(u"Reload"_s, this))
    , m_announcement(new Announcement(this))
{
    m_line->setObjectName(u"notice"_s);
    m_reload->setObjectName(u"reload"_s);
    m_reload->setPurpose(u"Reads the file again."_s);
    m_reload->hide();
    setMinimumHeight(m_reload->sizeHint().height());

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(kGap);
    row->addWidget(m_line, 1);
    row->addWidget(m_reload);
    connect(m_reload, &QPushButton::clicked, this, &NoticeLine::reloadRequested);
}

void NoticeLine::notice(const QString &text, bool offersReload)
{
    m_reload->setVisible(offersReload);
    const QString before = std::exchange(m_notice, text);
    show();
    if (text != before) {
        announceInsteadOf(before, text);
    }
}

void NoticeLine::tell(const QString &text)
{
    const QString before = std::exchange(m_told, text);
    show();
    announceInsteadOf(before, text);
}

void NoticeLine::announce(const QString &text)
{
    announceInsteadOf({}, text);
}

void NoticeLine::announceInsteadOf(const QString &before, const QString &text)
{
    if (m_unsaid == before) {
        m_unsaid.clear(); // no longer true
    }
    if (text.isEmpty()) {
        return;
    }
    if (isActiveWindow()) {
        m_announcement->tell(text);
    } else {
        m_unsaid = text; // who works in another window is not to be interrupted
    }
}

bool NoticeLine::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate) {
        // After the window itself and the control with the focus.
        QTimer::singleShot(0, this, [this] {
            if (isActiveWindow() && !m_unsaid.isEmpty()) {
                m_announcement->tell(std::exchange(m_unsaid, {}));
            }
        });
    }
    return QWidget::event(event);
}

void NoticeLine::focusReload()
{
    m_reload->setFocus();
}

void NoticeLine::show()
{
    const bool isNotice = !m_notice.isEmpty();
    QFont font = this->font();
    font.setBold(isNotice);
    m_line->setFont(font);
    QStringList hints = {m_told, m_notice};
    if (isNotice) {
        std::reverse(hints.begin(), hints.end());
    }
    hints.removeAll(QString());
    m_line->showHints(hints.mid(0, 1));
}

} // namespace tarvold::records
