#pragma once

#include "datafiles/tags.h"
#include "screens/commentary_tag.h"

#include <QObject>
#include <QStringList>

#include <optional>
#include <span>
#include <vector>

class QWidget;

namespace tarvold {

class Announcement;
class CommentaryLine;
class HintLine;

/// Says below the lines of commentary what is wrong with the tags in them, first in the yellow one.
/// Screen readers are told each hint once: those of the yellow line as they appear, and another one
/// when it comes first. A hint that moves to another line with its text is not told again. These
/// are only hints: anything can be saved.
class CommentaryHints : public QObject
{
    Q_OBJECT
public:
    /// \param screen owns the label of the hints; nothing is told while it is hidden
    /// \param tags what the lines may have; must live as long as this
    CommentaryHints(QWidget *screen, Screens &screens, std::span<const CommentaryTag> tags);

    /// The label of the hints, to be laid out.
    HintLine *label() const { return m_label; }

    /// Adds the next line, from the top, that the hints are about.
    void watch(CommentaryLine &line);

    /// Brings the hints up to date if a line, the mark, the focus or the cursor has changed.
    void update();

    /// Brings the hints up to date in any case: other screens decide what is refused.
    void refresh();

    /// Shows a text, and tells it to screen readers, until the hints change.
    void tell(const QString &text);

private:
    /// What the hints depend on, on this screen.
    struct State
    {
        QStringList texts;
        const CommentaryLine *marked = nullptr;
        const CommentaryLine *focused = nullptr;
        int cursor = 0; ///< in the focused line

        bool operator==(const State &) const = default;
    };

    struct Hint
    {
        std::size_t line; ///< from 0
        QString text;

        bool operator==(const Hint &) const = default;
    };

    State state() const;
    /// What is wrong with the tags of a line.
    /// \param cursor where the user is typing, if in this line
    std::vector<Hint> hintsFor(std::size_t line, std::optional<qsizetype> cursor) const;
    /// A hint with the number of its line.
    static QString wordsOf(const Hint &hint);
    /// Forgets hints that are no more, and finds again those that moved to another line.
    /// \param before the texts of the lines then
    void followTold(const std::vector<Hint> &all, const QStringList &before);
    /// Tells screen readers what they have not heard yet.
    void tellNew(const std::vector<Hint> &shown);
    /// Why a tag would be refused now; empty if it would not.
    QString refusalOf(const QString &tag) const;

    QWidget *m_screen;
    Screens &m_screens;
    std::span<const CommentaryTag> m_tags;
    tags::Rules m_rules;
    std::vector<CommentaryLine *> m_lines;
    HintLine *m_label;
    Announcement *m_spoken;
    State m_state; ///< that the hints are for
    /// Those of the hints that screen readers were told, also where the cursor hides one for now.
    std::vector<Hint> m_told;
    int m_editsUnderWay = 0; ///< which may change several lines: one update comes after them
};

} // namespace tarvold
