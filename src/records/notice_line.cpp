#include "records/notice_line.h"

#include "controls/announcement.h"
#include "controls/push_button.h"
#include "controls/sizes.h"
#include "screens/hint_line.h"

#include <QHBoxLayout>

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
    QFont bold = m_line->font();
    bold.setBold(true);
    m_line->setFont(bold);
    QSizePolicy policy = m_reload->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_reload->setSizePolicy(policy);
    m_reload->hide();

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(kGap);
    row->addWidget(m_line, 1);
    row->addWidget(m_reload);
    connect(m_reload, &QPushButton::clicked, this, &NoticeLine::reloadRequested);
}

void NoticeLine::show(const QString &text, bool offersReload)
{
    m_reload->setVisible(offersReload);
    if (text == m_text) {
        return;
    }
    m_text = text;
    m_line->showHints(text.isEmpty() ? QStringList() : QStringList(text));
    if (!text.isEmpty()) {
        m_announcement->tell(text);
    }
}

} // namespace tarvold::records
