#include "screens/commentary_hints.h"

#include "controls/announcement.h"
#include "screens/commentary_line.h"
#include "screens/hint_line.h"

#include <QApplication>

namespace tarvold {

using namespace Qt::StringLiterals;

CommentaryHints::CommentaryHints(QWidget *screen, Screens &screens,
                                 std::span<const CommentaryTag> tags)
    : m_screen(screen)
    , m_screens(screens)
    , m_tags(tags)
    , m_rules{.known = {}, .refusal = [this](const QString &tag) { return refusalOf(tag); }}
    , m_label(new HintLine(screen))
    , m_spoken(new Announcement(screen))
{
    for (const CommentaryTag &tag : tags) {
        m_rules.known << QLatin1StringView(tag.tag);
    }
    connect(qApp, &QApplication::focusChanged, this, &CommentaryHints::update);
}

void CommentaryHints::watch(CommentaryLine &line)
{
    m_lines.push_back(&line);
    connect(&line, &QLineEdit::textChanged, this, &CommentaryHints::update);
    connect(&line, &QLineEdit::cursorPositionChanged, this, &CommentaryHints::update);
    connect(&line, &CommentaryLine::editStarted, this, [this] { ++m_editsUnderWay; });
    connect(&line, &CommentaryLine::editEnded, this, [this] {
        --m_editsUnderWay;
        update();
    });
}

CommentaryHints::State CommentaryHints::state() const
{
    State now;
    for (const CommentaryLine *line : m_lines) {
        now.texts << line->text();
        if (line->isMarked()) {
            now.marked = line;
        }
        if (m_screen->focusWidget() == line) {
            now.focused = line;
            now.cursor = line->cursorPosition();
        }
    }
    return now;
}

void CommentaryHints::update()
{
    // One key press or click gives several signals.
    if (m_editsUnderWay == 0 && m_screen->isVisible() && state() != m_state) {
        refresh();
    }
}

void CommentaryHints::refresh()
{
    m_state = state();
    QStringList hints;
    QStringList all;
    for (const bool isMarked : {true, false}) {
        for (qsizetype line = 0; line < m_state.texts.size(); ++line) {
            const CommentaryLine *box = m_lines.at(std::size_t(line));
            if ((box == m_state.marked) == isMarked) {
                const QStringList inLine = hintsFor(line, std::nullopt);
                all << inLine;
                hints << (box == m_state.focused ? hintsFor(line, m_state.cursor) : inLine);
            }
        }
    }
    m_label->showHints(hints);
    m_told.removeIf([&all](const QString &hint) { return !all.contains(hint); });
    if (!hints.isEmpty() && !m_told.contains(hints.front())) {
        m_told << hints.front();
        m_spoken->tell(hints.front());
    }
}

void CommentaryHints::tell(const QString &text)
{
    m_label->showHints({text});
    m_spoken->tell(text);
}

QStringList CommentaryHints::hintsFor(qsizetype line, std::optional<qsizetype> cursor) const
{
    QStringList hints = tags::problemsIn(m_state.texts[line], m_rules, cursor);
    for (QString &each : hints) {
        each = u"Line %1: "_s.arg(line + 1) + each;
    }
    return hints;
}

QString CommentaryHints::refusalOf(const QString &tag) const
{
    for (const CommentaryTag &row : m_tags) {
        const bool isIt = tag == QLatin1StringView(row.tag);
        if (const Refusal *refusal = isIt ? row.refusalNow(m_screens) : nullptr) {
            return QLatin1StringView(refusal->message);
        }
    }
    return {};
}

} // namespace tarvold
