#include "look/parts.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOption>
#include <QTabBar>

namespace tarvold::testing::parts {

using namespace Qt::StringLiterals;

namespace {

bool isInsideAnother(const QWidget &widget)
{
    const QWidget *parent = widget.parentWidget();
    return qobject_cast<const QComboBox *>(parent) != nullptr ||
           qobject_cast<const QAbstractScrollArea *>(parent) != nullptr ||
           qobject_cast<const QLineEdit *>(parent) != nullptr ||
           (parent != nullptr && parent->inherits("QComboBoxPrivateContainer"));
}

/// The rectangle of a text of this size, vertically centred in `place`.
QRect textIn(const QRect &place, const QSize &text, Qt::Alignment across = Qt::AlignLeft)
{
    return QStyle::alignedRect(Qt::LeftToRight, across | Qt::AlignVCenter,
                               text.boundedTo(place.size()), place);
}

QSize sizeOfLine(const QWidget &widget, const QString &text)
{
    return {widget.fontMetrics().horizontalAdvance(text), widget.fontMetrics().height()};
}

} // namespace

QList<QWidget *> focusable(const QWidget &window)
{
    QList<QWidget *> found = visible<QWidget>(window);
    found.removeIf([](const QWidget *widget) {
        return (widget->focusPolicy() & Qt::TabFocus) == 0 || !widget->isEnabled() ||
               widget->focusProxy() != nullptr || // which has the focus in its place
               qobject_cast<QComboBox *>(widget->parentWidget()) != nullptr;
    });
    return found;
}

QList<QWidget *> items(const QWidget &window)
{
    QList<QWidget *> found = visible<QWidget>(window);
    found.removeIf([](const QWidget *widget) {
        const auto *label = qobject_cast<const QLabel *>(widget);
        const bool isItem = (label != nullptr && !label->text().isEmpty()) ||
                            qobject_cast<const QLineEdit *>(widget) != nullptr ||
                            qobject_cast<const QComboBox *>(widget) != nullptr ||
                            qobject_cast<const QAbstractButton *>(widget) != nullptr ||
                            qobject_cast<const QAbstractItemView *>(widget) != nullptr ||
                            qobject_cast<const QScrollBar *>(widget) != nullptr;
        const QWidget *parent = widget->parentWidget();
        const bool isOfAScrollArea = parent != nullptr &&
                                     parent->objectName().startsWith(u"qt_scrollarea_"_s) &&
                                     qobject_cast<const QScrollBar *>(widget) != nullptr;
        return !isItem || isOfAScrollArea || isInsideAnother(*widget);
    });
    return found;
}

QString nameOf(const QWidget &widget)
{
    if (!widget.objectName().isEmpty()) {
        return widget.objectName();
    }
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        return u"label \""_s + label->text().left(30) + u'"';
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) {
        return u"button "_s + button->text();
    }
    const QString parent =
        widget.parentWidget() != nullptr ? widget.parentWidget()->objectName() + u'/' : QString();
    return parent + QLatin1StringView(widget.metaObject()->className());
}

void reveal(QWidget &widget)
{
    for (QWidget *above = widget.parentWidget(); above != nullptr; above = above->parentWidget()) {
        auto *area = qobject_cast<QScrollArea *>(above);
        if (area != nullptr && area->widget() != nullptr && area->widget()->isAncestorOf(&widget)) {
            const QPoint middle = widget.mapTo(area->widget(), widget.rect().center());
            area->ensureVisible(middle.x(), middle.y(), 8, widget.height() / 2 + 8);
        }
    }
    QCoreApplication::processEvents();
}

QRect placeOf(const QWidget &widget)
{
    return placeOf(widget, widget.rect());
}

QRect placeOf(const QWidget &widget, const QRect &inside)
{
    return {widget.mapTo(widget.window(), inside.topLeft()), inside.size()};
}

QRect frameOf(const QWidget &control)
{
    if (const auto *tabs = qobject_cast<const QTabBar *>(&control)) {
        return tabs->tabRect(tabs->currentIndex());
    }
    if (qobject_cast<const QCheckBox *>(&control) == nullptr) {
        return control.rect();
    }
    QStyleOptionButton option;
    option.initFrom(&control);
    return control.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &control);
}

QRect textOf(const QLabel &label)
{
    const int margin = label.margin();
    const QRect room = label.contentsRect().adjusted(margin, margin, -margin, -margin);
    const int wrap = label.wordWrap() ? int(Qt::TextWordWrap) : 0;
    const QRect text =
        label.fontMetrics().boundingRect(room, int(label.alignment()) | wrap, label.text());
    return placeOf(label, text & label.rect());
}

QRect textOf(const QPushButton &button)
{
    return placeOf(button, textIn(button.rect().adjusted(4, 4, -4, -4),
                                  sizeOfLine(button, button.text()), Qt::AlignHCenter));
}

QRect roomOf(const QLineEdit &box)
{
    constexpr int kInner = 2; // space that Qt leaves on each side of the text
    QStyleOptionFrame option;
    option.initFrom(&box);
    option.lineWidth =
        box.hasFrame() ? box.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &box) : 0;
    const QRect inside = box.style()->subElementRect(QStyle::SE_LineEditContents, &option, &box);
    return (inside & box.rect()).marginsRemoved(box.textMargins()).adjusted(kInner, 0, -kInner, 0);
}

QRect textOf(const QLineEdit &box)
{
    // Smaller than the text and so than a selection, and without the cursor.
    const QRect text = textIn(roomOf(box), sizeOfLine(box, box.displayText()));
    return placeOf(box, text.adjusted(1, 2, -3, -2));
}

QRect rowTextOf(const QAbstractItemView &list, int row)
{
    const QModelIndex index = list.model()->index(row, 0);
    const QRect room = list.visualRect(index).adjusted(3, 3, -3, -3) & list.viewport()->rect();
    const QRect text = textIn(room, sizeOfLine(list, index.data().toString()));
    return placeOf(*list.viewport(), text);
}

QRect partOf(const QComboBox &combo, QStyle::SubControl part)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = combo.isEditable();
    option.frame = combo.hasFrame();
    option.subControls = QStyle::SC_All;
    return combo.style()->subControlRect(QStyle::CC_ComboBox, &option, part, &combo);
}

QRect partOf(const QScrollBar &bar, QStyle::SubControl part)
{
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.subControls = QStyle::SC_All;
    option.orientation = bar.orientation();
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.pageStep = bar.pageStep();
    option.singleStep = bar.singleStep();
    option.sliderPosition = bar.sliderPosition();
    option.sliderValue = bar.value();
    option.upsideDown = bar.invertedAppearance();
    option.state.setFlag(QStyle::State_Horizontal, bar.orientation() == Qt::Horizontal);
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar);
}

} // namespace tarvold::testing::parts
