#include "records/clear_button.h"

#include "controls/sizes.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>

namespace tarvold::records {

using namespace Qt::StringLiterals;

ClearButton::ClearButton(QLineEdit &box, const QString &name, const QString &key)
    : QAbstractButton(&box)
    , m_box(box)
{
    setAccessibleName(name);
    setAccessibleDescription(key);
    setToolTip(u"%1 (%2)"_s.arg(name, key));
    setCursor(Qt::ArrowCursor);
    setFocusPolicy(Qt::NoFocus);
    setFixedSize(sizeHint());

    auto *row = new QHBoxLayout(&box);
    row->setContentsMargins(0, 0, (kControlHeight - kLeastTarget) / 2, 0);
    row->addStretch();
    row->addWidget(this);
    QMargins around = box.textMargins();
    around.setRight(kControlHeight); // always, else texts would move
    box.setTextMargins(around);
    connect(&box, &QLineEdit::textChanged, this, [this] { setVisible(!m_box.text().isEmpty()); });
    connect(this, &QAbstractButton::clicked, &box, [this] {
        m_box.clear();
        m_box.setFocus(Qt::MouseFocusReason);
    });
    setVisible(!box.text().isEmpty());
}

QSize ClearButton::sizeHint() const
{
    return {kLeastTarget, kLeastTarget};
}

void ClearButton::paintEvent(QPaintEvent * /*event*/)
{
    constexpr int kHalf = 5; // of the cross
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (underMouse() || isDown()) {
        QColor behind = palette().color(QPalette::Text);
        behind.setAlpha(isDown() ? 60 : 30);
        painter.setPen(Qt::NoPen);
        painter.setBrush(behind);
        painter.drawRoundedRect(rect(), 4, 4);
    }
    painter.setPen(QPen(palette().color(QPalette::Text), 2, Qt::SolidLine, Qt::RoundCap));
    painter.translate(QRectF(rect()).center());
    painter.drawLine(-kHalf, -kHalf, kHalf, kHalf);
    painter.drawLine(-kHalf, kHalf, kHalf, -kHalf);
}

} // namespace tarvold::records
