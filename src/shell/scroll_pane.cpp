#include "shell/scroll_pane.h"

#include "shell/sizes.h"

#include <QApplication>
#include <QVBoxLayout>

namespace tarvold {

ScrollPane::ScrollPane(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    auto *content = new QWidget;
    m_column = new QVBoxLayout(content);
    m_column->setContentsMargins({});
    m_column->setSpacing(kGap);
    setWidget(content);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now != nullptr && widget()->isAncestorOf(now)) {
            ensureWidgetVisible(now, 0, kGap);
        }
    });
}

QSize ScrollPane::sizeHint() const
{
    return widget()->sizeHint();
}

} // namespace tarvold
