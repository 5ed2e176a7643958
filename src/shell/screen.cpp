#include "shell/screen.h"

#include "shell/controls.h"
#include "shell/sizes.h"

#include <QCloseEvent>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarvold {
namespace {

constexpr double kHeadingScale = 1.4;

/// One size for all screens, so that moving through them feels like one window. It follows the
/// user's text size and has room for the rows of the longest form that a flow shows.
QSize standardSize(const QFontMetrics &metrics)
{
    constexpr int kRows = 12;
    constexpr int kGap = 6;
    const int row = std::max(kTargetHeight, metrics.lineSpacing() + 10) + kGap;
    return {metrics.averageCharWidth() * 100, kRows * row + metrics.lineSpacing() * 9};
}

} // namespace

Screen::Screen(const char *name) : m_column(new QVBoxLayout(this))
{
    setObjectName(QLatin1StringView(name));
    setWindowTitle(QStringLiteral("Tarvold 1.3 Data Editor"));
    m_column->setContentsMargins(18, 14, 18, 14);
    m_column->setSpacing(10);
    resize(standardSize(fontMetrics()));
}

QWidget &Screen::control(const char *name) const
{
    QWidget *found = m_controls.value(QByteArray::fromRawData(name, qsizetype(qstrlen(name))));
    if (found == nullptr) {
        qFatal("%s has no control %s", qPrintable(objectName()), name);
    }
    return *found;
}

QString Screen::text(const char *control) const
{
    return controls::textOf(this->control(control));
}

void Screen::setText(const char *control, const QString &text)
{
    controls::setTextOf(this->control(control), text);
}

void Screen::replace(Screen &other)
{
    if (other.isMaximized() || other.isFullScreen()) {
        setWindowState(other.windowState());
    } else {
        setWindowState(Qt::WindowNoState);
        resize(other.size());
        move(other.pos());
    }
    show();
    raise();
    activateWindow();
    other.hide();
}

void Screen::add(QWidget *control, const char *name)
{
    control->setObjectName(QLatin1StringView(name));
    m_controls.insert(name, control);
}

QLabel *Screen::newLabel(const char *name, const char *text)
{
    auto *label = new QLabel(QLatin1StringView(text), this);
    label->setTextFormat(Qt::PlainText);
    add(label, name);
    return label;
}

QLabel *Screen::addHiddenLabel(const char *name, const QString &text)
{
    QLabel *label = newLabel(name, "");
    label->setText(text);
    label->hide();
    return label;
}

QPushButton *Screen::newButton(const char *name, const char *caption)
{
    auto *button = new QPushButton(QLatin1StringView(caption), this);
    const int padding = 2 * kTargetHeight;
    const int width = button->fontMetrics().horizontalAdvance(button->text());
    button->setMinimumSize(width + padding, kTargetHeight);
    button->setAutoDefault(true); // so that Enter presses the button that has the focus
    add(button, name);
    return button;
}

void Screen::addHeading(const char *name, const char *text)
{
    QLabel *heading = newLabel(name, text);
    QFont font = heading->font();
    font.setBold(true);
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * kHeadingScale);
    } else {
        font.setPixelSize(static_cast<int>(font.pixelSize() * kHeadingScale));
    }
    heading->setFont(font);
    m_column->addWidget(heading);
}

void Screen::addRule(const char *name)
{
    auto *rule = new QFrame(this);
    rule->setFrameShape(QFrame::HLine);
    add(rule, name);
    m_column->addWidget(rule);
}

void Screen::addButtonRow(std::initializer_list<QPushButton *> left,
                          std::initializer_list<QPushButton *> right)
{
    auto *row = new QHBoxLayout;
    for (QPushButton *button : left) {
        row->addWidget(button);
    }
    row->addStretch();
    for (QPushButton *button : right) {
        row->addWidget(button);
    }
    m_column->addLayout(row);
}

void Screen::showEvent(QShowEvent *event)
{
    QWidget *first = event->spontaneous() ? nullptr : firstField();
    if (first != nullptr) {
        first->setFocus(Qt::OtherFocusReason);
        if (QLineEdit *box = controls::textBoxOf(*first)) {
            box->selectAll(); // as Tab does, so that typing replaces what is there
        }
    }
    QWidget::showEvent(event);
}

void Screen::closeEvent(QCloseEvent *event)
{
    // What closing means is for the flow to say; the window itself lives for the whole run.
    event->ignore();
    emit closeRequested();
}

} // namespace tarvold
