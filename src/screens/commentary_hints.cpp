#include "screens/commentary_hints.h"

#include "controls/announcement.h"
#include "screens/commentary_line.h"
#include "screens/hint_line.h"

#include <QApplication>

#include <algorithm>
#include <utility>

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
    const QStringList before = std::exchange(m_state, state()).texts;
    std::vector<Hint> shown;
    std::vector<Hint> all;
    for (const bool isMarked : {true, false}) {
        for (std::size_t line = 0; line < m_lines.size(); ++line) {
            const CommentaryLine *box = m_lines.at(line);
            if ((box == m_state.marked) == isMarked) {
                const std::vector<Hint> inLine = hintsFor(line, std::nullopt);
                all.insert(all.end(), inLine.begin(), inLine.end());
                const bool isFocused = box == m_state.focused;
                const auto now = isFocused ? hintsFor(line, m_state.cursor) : inLine;
                shown.insert(shown.end(), now.begin(), now.end());
            }
        }
    }
    QStringList hints;
    for (const Hint &hint : shown) {
        hints << wordsOf(hint);
    }
    m_label->showHints(hints);
    followTold(all, before);
    tellNew(shown);
}

QString CommentaryHints::wordsOf(const Hint &hint)
{
    return u"Line %1: "_s.arg(hint.line + 1) + hint.text;
}

void CommentaryHints::followTold(const std::vector<Hint> &all, const QStringList &before)
{
    const auto isIn = [](const std::vector<Hint> &hints, const Hint &hint) {
        return std::find(hints.begin(), hints.end(), hint) != hints.end();
    };
    std::vector<Hint> kept;
    std::vector<Hint> gone;
    for (const Hint &hint : m_told) {
        (isIn(all, hint) ? kept : gone).push_back(hint);
    }
    for (const Hint &hint : all) {
        // A swap moves it with the text of its line.
        const auto from = std::find_if(gone.begin(), gone.end(), [&](const Hint &each) {
            const QString text = m_state.texts.value(qsizetype(hint.line));
            return each.text == hint.text && text == before.value(qsizetype(each.line)) &&
                   text != before.value(qsizetype(hint.line));
        });
        if (from != gone.end() && !isIn(m_told, hint)) {
            gone.erase(from);
            kept.push_back(hint);
        }
    }
    m_told = std::move(kept);
}

void CommentaryHints::tellNew(const std::vector<Hint> &shown)
{
    QStringList told;
    for (const Hint &hint : shown) {
        const bool isTold = std::find(m_told.begin(), m_told.end(), hint) != m_told.end();
        const bool isMarked = m_lines.at(hint.line) == m_state.marked;
        if (!isTold && (isMarked || &hint == shown.data())) {
            m_told.push_back(hint);
            told << wordsOf(hint);
        }
    }
    if (!told.isEmpty()) {
        m_spoken->tell(told.join(u' '));
    }
}

void CommentaryHints::tell(const QString &text)
{
    m_label->showHints({text});
    m_spoken->tell(text);
}

std::vector<CommentaryHints::Hint> CommentaryHints::hintsFor(std::size_t line,
                                                             std::optional<qsizetype> cursor) const
{
    std::vector<Hint> hints;
    for (const QString &text : tags::problemsIn(m_state.texts[qsizetype(line)], m_rules, cursor)) {
        hints.push_back({line, text});
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
