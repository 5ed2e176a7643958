#include "records/notice_line.h"

#include "controls/announcement.h"
#include "controls/push_button.h"
#include "controls/sizes.h"
#include "screens/hint_line.h"

#include <QHBoxLayout>

#include <algorithm>

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
    const bool isNew = text != m_notice;
    m_reload->setVisible(offersReload);
    m_notice = text;
    show();
    if (isNew && !text.isEmpty()) {
        m_announcement->tell(text);
    }
}

void NoticeLine::tell(const QString &text)
{
    m_told = text;
    show();
    if (!text.isEmpty()) {
        m_announcement->tell(text);
    }
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
