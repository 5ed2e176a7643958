#include "screens/help_line.h"

#include "controls/combo_box.h"
#include "controls/controls.h"

#include <QFocusEvent>
#include <QLineEdit>

namespace tarvold {
namespace {

/// Enough for the longest help of any screen at the default window size.
constexpr int kLeastLines = 4;

/// Whether a field got the focus other than from its own list.
bool isEntry(const QEvent &event)
{
    return event.type() == QEvent::FocusIn &&
           static_cast<const QFocusEvent &>(event).reason() != Qt::PopupFocusReason;
}

} // namespace

HelpLine::HelpLine(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignTop | Qt::AlignLeft);
    setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Sunken));
    setMargin(6);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void HelpLine::explain(QWidget &control, const QString &help, HelpOn on)
{
    controls::describe(control, control.accessibleName(), help);
    m_helps.insert(&control, {help, on});
    control.installEventFilter(this);
    if (auto *combo = qobject_cast<ComboBox *>(&control); combo != nullptr && on != HelpOn::Focus) {
        // Clicks go to the box inside the combo box or to an item of its list.
        m_helps.insert(combo->lineEdit(), {help, on});
        combo->lineEdit()->installEventFilter(this);
        connect(combo, &ComboBox::chosen, this, [this, combo] { showFor(*combo); });
    }
    updateGeometry();
}

void HelpLine::showFor(const QWidget &control)
{
    if (const auto found = m_helps.constFind(&control); found != m_helps.constEnd()) {
        setText(found->text);
    }
}

int HelpLine::heightForWidth(int width) const
{
    const int frame = 2 * (frameWidth() + margin());
    int height = fontMetrics().lineSpacing() * kLeastLines;
    for (const Help &help : m_helps) {
        const QRect room(0, 0, width - frame, QWIDGETSIZE_MAX);
        height = std::max(height,
                          fontMetrics().boundingRect(room, Qt::TextWordWrap, help.text).height());
    }
    return height + frame;
}

QSize HelpLine::sizeHint() const
{
    // The base class would ask for the height of the current text, and the window would grow with
    // it.
    const int width = fontMetrics().averageCharWidth() * 90;
    return {width, heightForWidth(width)};
}

QSize HelpLine::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 40, fontMetrics().lineSpacing() + 2 * margin()};
}

bool HelpLine::eventFilter(QObject *watched, QEvent *event)
{
    if (const auto found = m_helps.constFind(watched); found != m_helps.constEnd()) {
        const bool clicked = event->type() == QEvent::MouseButtonPress;
        if (isEntry(*event) || (clicked && found->on == HelpOn::FocusAndClick)) {
            setText(found->text);
        }
    }
    return QLabel::eventFilter(watched, event);
}

} // namespace tarvold
