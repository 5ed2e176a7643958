#pragma once

#include "records/record.h"

#include <QString>

#include <vector>

/// A record as its readers see it.
namespace tarvold::records {

/// Names for the tags that a record's own conditions leave open. Kept for the run.
struct Cast
{
    struct Member
    {
        QString tag;  ///< such as "<recfullname>"
        QString text; ///< what it is filled with

        bool operator==(const Member &) const = default;
    };
    std::vector<Member> members;

    /// The example cast, which knows every tag of every kind.
    static Cast example();
    /// The cast that the user changes. It starts as the example and lasts as long as the program.
    static Cast &ofThisRun();
    QString textFor(const QString &tag) const;
    /// Fills a tag with another text.
    void setText(const QString &tag, const QString &text);

    bool operator==(const Cast &) const = default;
};

/// A stretch of a line that looks the same.
struct ShownPart
{
    enum class Type { Written, FilledIn, UnknownTag };
    Type type;
    QString text;
};
using ShownLine = std::vector<ShownPart>;

/// The commentary as the audience reads it: tags are filled from the record's own names where it
/// has them, else from the cast; "-BLANK-" lines are left out. Of a stipulation, what the results
/// screen shows.
std::vector<ShownLine> asShown(const Record &record, const Cast &cast);

/// The tags that asShown() fills from the cast, in the order of their first use.
QStringList openTags(const Record &record);

/// When the record is used, in one sentence without the fields that allow anything, such as "Tag
/// Team, Ladder Match, title on the line: Rocco Vance and Dex Vance win off the top rope against a
/// heel." A field that does not fit into the sentence follows it as it stands, so that nothing is
/// left out that a field says.
QString conditionsOf(const Record &record);

/// The telling columns of a kind's records, and a record's texts for them.
QStringList columnsOf(DataFileKind kind);
QStringList columnTexts(const Record &record);

} // namespace tarvold::records
