#include "controls/text_silence.h"

#include <QAccessible>
#include <QWidget>

#include <utility>

namespace tarvold {
namespace {

struct Silences
{
    TextSilence *innermost = nullptr;
    QAccessible::UpdateHandler others = nullptr; ///< whom events go to apart from this
};

Silences &silences()
{
    static Silences all;
    return all;
}

bool isOfText(QAccessible::Event type)
{
    switch (type) {
    case QAccessible::TextInserted:
    case QAccessible::TextRemoved:
    case QAccessible::TextUpdated:
    case QAccessible::TextCaretMoved:
    case QAccessible::TextSelectionChanged:
        return true;
    default:
        return false;
    }
}

void passOn(QAccessibleEvent *event)
{
    if (isOfText(event->type()) && TextSilence::isOver(event->object())) {
        return;
    }
    // Qt tells the system only if nobody else handles the event.
    QAccessible::installUpdateHandler(silences().others);
    QAccessible::updateAccessibility(event);
    QAccessible::installUpdateHandler(passOn);
}

} // namespace

TextSilence::TextSilence(const QWidget &box)
    : m_box(box)
    , m_outer(std::exchange(silences().innermost, this))
{
    if (m_outer == nullptr) {
        silences().others = QAccessible::installUpdateHandler(passOn);
    }
}

TextSilence::~TextSilence()
{
    silences().innermost = m_outer;
    if (m_outer == nullptr) {
        QAccessible::installUpdateHandler(silences().others);
    }
}

bool TextSilence::isOver(const QObject *object)
{
    for (const TextSilence *each = silences().innermost; each != nullptr; each = each->m_outer) {
        if (object == &each->m_box || object == each->m_box.focusProxy()) {
            return true;
        }
    }
    return false;
}

} // namespace tarvold
