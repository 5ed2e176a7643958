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
    if (m_screen->isVisible() && state() != m_state) {
        refresh();
    }
}

void CommentaryHints::refresh()
{
    m_state = state();
    QStringList hints;
    for (const bool isMarked : {true, false}) {
        for (qsizetype line = 0; line < m_state.texts.size(); ++line) {
            if ((m_lines.at(std::size_t(line)) == m_state.marked) == isMarked) {
                hints << hintsFor(line);
            }
        }
    }
    m_label->showHints(hints);
    if (hints.value(0) != m_told && !hints.isEmpty()) {
        m_spoken->tell(hints.front());
    }
    m_told = hints.value(0);
}

void CommentaryHints::tell(const QString &text)
{
    m_label->showHints({text});
    m_spoken->tell(text);
}

QStringList CommentaryHints::hintsFor(qsizetype line) const
{
    const bool isTyping = m_lines.at(std::size_t(line)) == m_state.focused;
    const auto cursor = isTyping ? std::optional<qsizetype>(m_state.cursor) : std::nullopt;
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
