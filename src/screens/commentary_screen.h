#pragma once

#include "datafiles/data_file_kind.h"
#include "screens/screen.h"

#include <array>
#include <span>

namespace tarvold {

class Announcement;
class CommentaryLine;
class Screens;
class TagList;

/// Why a tag cannot be inserted now.
struct Refusal
{
    ControlRef box;                     ///< the field that decides
    bool (*isRefused)(const QString &); ///< by the text in that field
    const char *message;                ///< tells the user so
    const char *title;                  ///< of the message box
};

/// An item of a tag list.
struct CommentaryTag
{
    const char *item;
    const char *tag;                  ///< what it inserts
    const Refusal *refusal = nullptr; ///< none: never refused
};

/// A commentary screen, as a table.
struct CommentaryTable
{
    const char *name;
    const char *heading;
    const char *instructions;
    std::span<const CommentaryTag> tags;
    const char *addCaption;
    const char *missingMessage; ///< told when the first line is empty
    const char *question;       ///< asked before the record is written
    DataFileKind kind;
    const RecordLayout &(*layout)();
};

/// A screen with ten lines of commentary, a list of tags to insert into them, "Add ..." (Command1),
/// which appends the record of the whole flow to its file, and "<<" (Command2).
///
/// The line that receives tags is the one whose background is yellow; the tag that was last
/// accepted is the text of `hiddenlabel`. Neither is stored anywhere else. The yellow line has the
/// focus after each pick and whenever the screen comes back.
class CommentaryScreen : public Screen
{
    Q_OBJECT
public:
    /// \param table its texts and tags must outlive the screen
    CommentaryScreen(Screens &screens, const CommentaryTable &table);

    /// What the screen is made of.
    const CommentaryTable &table() const { return m_table; }

    /// Makes all lines white, so that none receives tags.
    void whitenboxes();

    /// Empties and whitens all lines for a new record. The last accepted tag stays.
    void startAfresh();

protected:
    QWidget *firstField() const override;
    void showEvent(QShowEvent *event) override;

private:
    void addTagList();
    void addInstructions();
    void addLines();
    void addButtons();
    void mark(CommentaryLine &line);
    void insertTag();
    /// Gives the marked line, if there is one, the focus, so that the user can type on at its end.
    void goToMarkedLine();
    /// Whether the tag can be inserted now; tells the user when it cannot.
    bool accepts(const CommentaryTag &tag);
    /// Adds the tag to the marked line; says in words what came of it.
    QString append(const QString &tag);
    void save();
    bool write();

    Screens &m_screens;
    CommentaryTable m_table;
    TagList *m_tags;
    Announcement *m_announcement;
    std::array<CommentaryLine *, 10> m_lines{};
};

} // namespace tarvold
