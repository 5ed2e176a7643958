#pragma once

#include "datafiles/data_file_kind.h"
#include "datafiles/record_fields.h"
#include "screens/commentary_hints.h"
#include "screens/commentary_tag.h"
#include "screens/flow.h"
#include "screens/screen.h"

#include <array>
#include <span>

namespace tarvold {

class Announcement;
class CommentaryLine;
class Screens;
class TagList;

/// A commentary screen, as a table.
struct CommentaryTable
{
    const char *name;
    const char *heading;
    const char *instructions;
    std::span<const CommentaryTag> tags;
    const char *addCaption;
    const char *missingMessage;      ///< shown if the first line is empty
    const char *question;            ///< asked before the record is written
    DataFileKind kind;               ///< of the record
    std::span<const FlowStep> chain; ///< the flow that ends here, whose screens feed the record
};

/// A screen with ten lines of commentary, a list of tags to insert into them, "Add ..." (Command1),
/// which appends the record of the whole flow to its file, and "<<" (Command2).
///
/// Tags go into the line with the yellow background; the last accepted tag is the text of
/// `hiddenlabel`. Neither is stored anywhere else. The yellow line gets the focus after each pick
/// and whenever the screen is shown.
///
/// Below the lines, the label `taghint` says what is wrong with the tags in them, first in the
/// yellow line. It is only a hint: anything can be saved.
class CommentaryScreen : public Screen
{
    Q_OBJECT
public:
    /// \param table its texts and tags must outlive the screen
    CommentaryScreen(Screens &screens, const CommentaryTable &table);
    ~CommentaryScreen() override;
    Q_DISABLE_COPY_MOVE(CommentaryScreen)

    /// What the screen is made of.
    const CommentaryTable &table() const { return m_table; }

    /// The control whose text is saved as a field of the record: on this screen or on one before it
    /// in its flow. A field that none of them has ends the program; a test walks every format.
    QWidget &source(const RecordField &field);

    /// Makes all lines white, so that none receives tags.
    void whitenboxes();

    /// Clears and whitens all lines for a new record. The last accepted tag stays.
    void startAfresh();

protected:
    QWidget *firstField() const override;
    void showEvent(QShowEvent *event) override;

private:
    void addTagList();
    void addInstructions();
    void addLines();
    void addButtons();
    /// Tells screen readers what happened to the lines by a key or a paste.
    void announce(CommentaryLine &line);
    /// The number of a line, from 1.
    qsizetype numberOf(const CommentaryLine &line) const;
    void mark(CommentaryLine &line);
    void insertTag();
    /// Focuses the end of the marked line, if there is one, so that the user can go on typing.
    void goToMarkedLine();
    /// Whether the tag can be inserted now; shows the message if not.
    bool accepts(const CommentaryTag &tag);
    /// Adds the tag to the marked line; returns what happened, in words.
    QString append(const QString &tag);
    /// Tells by the button which file it adds to.
    void showTarget();
    void save();
    bool write();

    Screens &m_screens;
    CommentaryTable m_table;
    TagList *m_tags;
    Announcement *m_announcement;
    CommentaryHints m_hints;
    std::array<CommentaryLine *, fields::kCommentary.size()> m_lines{};
};

} // namespace tarvold
