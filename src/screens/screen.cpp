#include "screens/screen.h"

#include "controls/bounded_column.h"
#include "controls/controls.h"
#include "controls/push_button.h"
#include "controls/scroll_pane.h"
#include "controls/sizes.h"
#include "screens/keys.h"

#include <QCloseEvent>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QWindow>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

constexpr double kHeadingScale = 1.4;

/// One size for all screens, so that moving through them feels like one window. It follows the
/// user's text size and has room for the longest form.
QSize standardSize(const QWidget &screen)
{
    constexpr int kRows = 13;
    constexpr int kLeastRest = 146; // the space around the rows: gaps do not shrink with the text
    const QFontMetrics metrics = screen.fontMetrics();
    const int row = std::max(kControlHeight, metrics.lineSpacing() + 10) + kRowGap;
    return {metrics.averageCharWidth() * 100,
            kRows * row + std::max(kLeastRest, metrics.lineSpacing() * 9)};
}

/// The size that a new window gets: the standard size, if the display has that much room.
QSize startSize(const QWidget &screen)
{
    constexpr QSize kFrame(16, 48); // the largest window frame that a desktop draws
    return standardSize(screen).boundedTo(screen.screen()->availableSize() - kFrame);
}

/// In a taller window than this, the buttons would be too far from the fields.
int tallest(const QWidget &screen)
{
    return standardSize(screen).height() * 5 / 4;
}

} // namespace

Screen::Screen(const char *name)
    : m_whole(new BoundedColumn(this))
    , m_head(new BoundedColumn)
    , m_pane(new ScrollPane)
    , m_foot(new BoundedColumn)
{
    setObjectName(QLatin1StringView(name));
    setWindowTitle(u"Tarvold 1.3 Data Editor"_s);
    m_whole->addLayout(m_head);
    m_whole->addWidget(m_pane, 1);
    m_whole->addLayout(m_foot);
    setGrowsInHeight(false);
    for (BoundedColumn *part : {m_head, &m_pane->column(), m_foot}) {
        part->setMost({readableWidth(), QWIDGETSIZE_MAX});
    }
    resize(startSize(*this));
    fitGaps();
}

int Screen::readableWidth() const
{
    return standardSize(*this).width() - 2 * kMargin;
}

void Screen::growInWidth()
{
    m_pane->column().setMost({QWIDGETSIZE_MAX, QWIDGETSIZE_MAX});
}

void Screen::setGrowsInHeight(bool grows)
{
    m_whole->setMost({QWIDGETSIZE_MAX, grows ? QWIDGETSIZE_MAX : tallest(*this)});
}

void Screen::resizeEvent(QResizeEvent *event)
{
    fitGaps();
    m_whole->activate(); // at once, and not after the window was drawn with the old gaps
    QWidget::resizeEvent(event);
}

void Screen::fitGaps()
{
    // By the height alone and not by the content, so that nothing moves from screen to screen.
    const bool isLow = height() < standardSize(*this).height();
    const int margin = isLow ? kTightMargin : kMargin;
    m_whole->setContentsMargins(kMargin, margin, kMargin, margin);
    for (BoundedColumn *part : {m_whole, m_head, m_foot}) {
        part->setSpacing(isLow ? kRowGap : kGap);
    }
}

QVBoxLayout &Screen::head()
{
    return *m_head;
}

QVBoxLayout &Screen::column()
{
    return m_pane->column();
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
        // Without the frames: how wide they are is unknown until the desktop reports it.
        setGeometry(other.geometry());
        if (QWindow *window = windowHandle()) {
            window->setGeometry(geometry()); // else the desktop may place the window again
        }
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

PushButton *Screen::newButton(const char *name, const char *caption)
{
    auto *button = new PushButton(QLatin1StringView(caption), this);
    add(button, name);
    return button;
}

PushButton *Screen::newBackButton(const char *name)
{
    PushButton *button = newButton(name, "<<");
    button->setKeys(keys::back(), u"Back"_s);
    connect(button, &QPushButton::clicked, this, &Screen::backPressed);
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
    m_head->addWidget(heading);
    setSpokenTitle(heading->text());
}

void Screen::setSpokenTitle(const QString &title)
{
    setAccessibleName(title + u" - "_s + windowTitle());
}

void Screen::addRule(const char *name)
{
    auto *rule = new QFrame(this);
    rule->setFrameShape(QFrame::HLine);
    add(rule, name);
    m_whole->insertWidget(1, rule); // as wide as what is below it
}

void Screen::addButtonRow(std::initializer_list<PushButton *> left,
                          std::initializer_list<PushButton *> right)
{
    auto *row = new QHBoxLayout;
    for (PushButton *button : left) {
        row->addWidget(button);
    }
    row->addStretch();
    for (PushButton *button : right) {
        row->addWidget(button);
    }
    m_foot->addLayout(row);
}

void Screen::addFoot(QWidget *widget)
{
    m_foot->addWidget(widget);
}

void Screen::showEvent(QShowEvent *event)
{
    QWidget *first = event->spontaneous() ? nullptr : firstField();
    if (first != nullptr) {
        first->setFocus(Qt::OtherFocusReason);
        if (QLineEdit *box = controls::textBoxOf(*first)) {
            box->selectAll(); // as Tab does, so that typing replaces the text
        }
    }
    QWidget::showEvent(event);
}

void Screen::closeEvent(QCloseEvent *event)
{
    // The flow decides what closing means; the window itself lives for the whole run.
    event->ignore();
    emit closeRequested();
}

} // namespace tarvold
