#include "records/shown_view.h"

#include "controls/bounded_column.h"
#include "controls/contrast.h"
#include "controls/controls.h"
#include "controls/long_text.h"
#include "controls/push_button.h"
#include "controls/scroll_pane.h"
#include "controls/sizes.h"
#include "controls/text_box.h"

#include <QEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextEdit>

#include <algorithm>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

/// A text that the user may drag to a box.
class DraggableText : public QTextEdit
{
public:
    using QTextEdit::QTextEdit;

protected:
    void mouseMoveEvent(QMouseEvent *event) override
    {
        QTextEdit::mouseMoveEvent(event);
        // A drag ends in there, and takes the release of the button with it. Qt would go on to
        // scroll, and begin a new drag that the next click drops.
        if (event->buttons().testFlag(Qt::LeftButton) &&
            !QGuiApplication::mouseButtons().testFlag(Qt::LeftButton)) {
            QMouseEvent release(QEvent::MouseButtonRelease, event->position(),
                                event->globalPosition(), Qt::LeftButton, Qt::NoButton,
                                event->modifiers());
            mouseReleaseEvent(&release);
        }
    }
};

QTextCharFormat formatOf(ShownPart::Type type, const QPalette &palette)
{
    const QColor behind = palette.color(QPalette::Base);
    QTextCharFormat format;
    format.setForeground(palette.color(QPalette::Text));
    if (type == ShownPart::Type::FilledIn) {
        format.setUnderlineStyle(QTextCharFormat::DotLine); // a plain blue one would be a link
    } else if (type == ShownPart::Type::UnknownTag) {
        format.setForeground(contrast::visible(Qt::red, {behind}, contrast::kText));
        format.setFontWeight(QFont::Bold);
    }
    return format;
}

/// Of a line that nobody has typed, such as of another kind of file, only the beginning.
void insertLine(QTextCursor &cursor, const ShownLine &line, const QPalette &palette)
{
    constexpr std::size_t kMostParts = 500;
    qsizetype room = 20'000; // characters; a long text takes seconds to be laid out
    std::size_t part = 0;
    for (; part < std::min(line.size(), kMostParts) && room > 0; ++part) {
        const QString &text = line.at(part).text;
        cursor.insertText(longtext::quoted(text, room), formatOf(line.at(part).type, palette));
        room -= text.size();
    }
    if (part < line.size()) {
        cursor.insertText(u" [...]"_s, formatOf(ShownPart::Type::Written, palette));
    }
}

bool has(const std::vector<ShownLine> &lines, ShownPart::Type type)
{
    return std::any_of(lines.begin(), lines.end(), [type](const ShownLine &line) {
        return std::any_of(line.begin(), line.end(),
                           [type](const ShownPart &part) { return part.type == type; });
    });
}

QString meaningOf(const Catalog &catalog, const QString &tag)
{
    const auto known = std::find_if(catalog.tags().begin(), catalog.tags().end(),
                                    [&tag](const KnownTag &row) { return row.tag == tag; });
    return known == catalog.tags().end() ? tag : known->meaning;
}

QLabel *newLabel(const char *name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1StringView(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

ShownView::ShownView(QWidget *parent)
    : QWidget(parent)
    , m_text(new DraggableText(this))
    , m_legend(newLabel("legend", this))
    , m_castHeading(newLabel("castheading", this))
    , m_castRestore(new PushButton(u"Example Names Again"_s, this))
    , m_castPane(new ScrollPane(this))
    , m_castGrid(new QGridLayout)
{
    m_text->setObjectName(u"shown"_s);
    m_text->setReadOnly(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setTabChangesFocus(true);
    controls::describe(*m_text, u"The record as shown"_s);
    addCast();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_text, 1);
    column->addWidget(m_legend);
    auto *castHead = new QHBoxLayout;
    castHead->setSpacing(kGap);
    castHead->addWidget(m_castHeading, 1);
    castHead->addWidget(m_castRestore, 0, Qt::AlignTop);
    column->addLayout(castHead);
    column->addWidget(m_castPane);
    clear();
}

void ShownView::addCast()
{
    m_castHeading->setText(u"Names that the record leaves open (an example, for this run only):"_s);
    m_castRestore->setObjectName(u"exampleAgain"_s);
    m_castRestore->setPurpose(u"Fills all names with the example again."_s);
    connect(m_castRestore, &QPushButton::clicked, this, &ShownView::restoreCast);
    m_castPane->setObjectName(u"cast"_s);
    m_castPane->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    m_castPane->column().addLayout(m_castGrid);
    m_castPane->column().addStretch();
    m_castGrid->setHorizontalSpacing(kGap);
    m_castGrid->setVerticalSpacing(kRowGap);
    m_castGrid->setColumnStretch(0, 2);
    m_castGrid->setColumnStretch(1, 3);
}

void ShownView::showRecord(const Record &record)
{
    updateRecord(record);
    m_text->verticalScrollBar()->setValue(0);
    m_castPane->verticalScrollBar()->setValue(0);
}

void ShownView::updateRecord(const Record &record)
{
    const QByteArray &bytes = record.bytes();
    // A file that is loaded anew takes its bytes away.
    m_record.emplace(QByteArray(bytes.constData(), bytes.size()), record.catalog());
    write();
    fillCast();
}

void ShownView::clear()
{
    m_record.reset();
    m_text->clear();
    m_legend->hide();
    m_castHeading->hide();
    m_castRestore->hide();
    m_castPane->hide();
}

void ShownView::write()
{
    m_cast = Cast::ofThisRun();
    m_castRestore->setEnabled(m_cast != Cast::example());
    const std::vector<ShownLine> lines = asShown(*m_record, m_cast);
    const int scrolled = m_text->verticalScrollBar()->value();
    m_text->clear();
    QTextCursor cursor(m_text->document());
    QTextBlockFormat apart; // else a line that wraps would look like two
    apart.setBottomMargin(kRowGap);
    cursor.setBlockFormat(apart);
    for (const ShownLine &line : lines) {
        if (&line != lines.data()) {
            cursor.insertBlock();
        }
        insertLine(cursor, line, palette());
    }
    m_text->verticalScrollBar()->setValue(scrolled);
    writeLegend(has(lines, ShownPart::Type::FilledIn), has(lines, ShownPart::Type::UnknownTag));
}

void ShownView::writeLegend(bool hasFilledIn, bool hasUnknown)
{
    QStringList told;
    if (hasFilledIn) {
        told << u"Words underlined with dots are filled in."_s;
    }
    if (hasUnknown) {
        told << u"Bold red words are no known tags."_s;
    }
    m_legend->setText(told.join(u' '));
    m_legend->setVisible(!told.isEmpty());
}

void ShownView::newCastRow()
{
    const auto row = int(m_castRows.size());
    auto *label = newLabel("", this);
    auto *box = new TextBox(this);
    box->setObjectName(u"cast%1"_s.arg(row + 1));
    m_castGrid->addWidget(label, row, 0);
    m_castGrid->addWidget(box, row, 1);
    QWidget *before = m_castRestore;
    if (!m_castRows.empty()) {
        before = m_castRows.back().box;
    }
    setTabOrder(before, box);
    m_castRows.push_back({label, box, {}});
    connect(box, &QLineEdit::textEdited, this, [this, row](const QString &text) {
        Cast::ofThisRun().setText(m_castRows.at(std::size_t(row)).tag, text);
        write();
    });
}

void ShownView::fillCast()
{
    const QStringList tags = openTags(*m_record);
    while (qsizetype(m_castRows.size()) < tags.size()) {
        newCastRow();
    }
    for (qsizetype row = 0; row < qsizetype(m_castRows.size()); ++row) {
        CastRow &castRow = m_castRows.at(std::size_t(row));
        castRow.tag = tags.value(row);
        castRow.label->setVisible(row < tags.size());
        castRow.box->setVisible(row < tags.size());
        if (row < tags.size()) {
            const QString meaning = meaningOf(m_record->catalog(), castRow.tag);
            castRow.label->setText(meaning);
            controls::describe(*castRow.box, meaning, castRow.tag);
            const QString text = Cast::ofThisRun().textFor(castRow.tag);
            if (castRow.box->text() != text) {
                castRow.box->setText(text);
            }
        }
    }
    m_castHeading->setVisible(!tags.isEmpty());
    m_castRestore->setVisible(!tags.isEmpty());
    m_castPane->setVisible(!tags.isEmpty());
}

void ShownView::restoreCast()
{
    if (m_castRestore->hasFocus()) {
        m_castRows.front().box->setFocus(Qt::OtherFocusReason); // the button can't keep it
    }
    Cast::ofThisRun() = Cast::example();
    followCast();
}

void ShownView::followCast()
{
    write();
    fillCast();
}

bool ShownView::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate && m_record && m_cast != Cast::ofThisRun()) {
        followCast();
    }
    return QWidget::event(event);
}

void ShownView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_record) {
        write(); // in colours that can be read on the new background
    }
}

} // namespace tarvold::records
