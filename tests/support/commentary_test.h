#pragma once

#include "support/flow_test.h"

#include <span>

namespace tarvold::testing {

/// When a tag is refused.
struct RefusalRow
{
    ControlRef box; ///< the field that decides
    const char *message;
    const char *title;
    QStringList refused;  ///< texts of that field for which the tag is refused
    QStringList accepted; ///< texts for which it is accepted
};

/// An item of a tag list.
struct TagRow
{
    const char *item;
    const char *tag;
    const RefusalRow *refusal = nullptr; ///< null if never refused
};

/// The program, showing the commentary screen of a flow.
class CommentaryTest : public FlowTest
{
protected:
    explicit CommentaryTest(const FlowPath &flow);

    void chooseTag(const char *item);

    /// Clears the first line, marks it, chooses the tag, and returns the new text of the line.
    QString insertedBy(const char *item);

    QString line(const char *name) { return text(m_screen, name); }
    void typeLine(const char *name, const QString &text) { type(m_screen, name, text); }
    QString pending() { return text(m_screen, "hiddenlabel"); }
    void expectRefusal(const RefusalRow &refusal);

    void expectFixedTexts(const char *heading, const char *instructions, const char *addCaption);
    void expectList(std::span<const TagRow> tags);

    /// Chooses every tag, with every text of the deciding field that allows it, and expects it to
    /// be inserted.
    void expectEveryTagInserted(std::span<const TagRow> tags);

    /// Chooses every tag that can be refused, with every text that excludes it: the message is
    /// shown, and the tag that was accepted before is inserted again.
    void expectEveryRefusal(std::span<const TagRow> tags);

    /// Fails the test unless a tag chosen while no line is marked is only remembered.
    void expectRememberedWhenNothingIsMarked(const TagRow &first, const TagRow &second);

    /// Saving: the first line, the question, the record, the success message, the main menu.
    void expectEmptyFirstLineIsRefused();
    void expectNoWritesNothing();
    void expectOneSpaceIsSaved();
    void expectNothingIsClearedByASave();
    void expectTheFileBoxCountsWhenSaving();

    const FlowPath &m_flow;
    const char *m_screen;
};

} // namespace tarvold::testing
