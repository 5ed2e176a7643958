// Tags that no commentary knows, that are not closed, or that the record's conditions refuse.

#include "datafiles/code_page.h"
#include "datafiles/tags.h"
#include "records/checks.h"
#include "records/edits.h"
#include "records/wording.h"

#include <algorithm>
#include <utility>

namespace tarvold::records::checks {

using namespace Qt::StringLiterals;
using namespace wording;

namespace {

constexpr int kMostOfLine = 10; ///< as many as the commentary screens tell

/// Why a tag is refused in this record; empty if it is not.
QString refusalOf(const Examined &examined, const KnownTag &tag)
{
    const bool isRefused = tag.isRefused != nullptr && tag.decider >= 0 &&
                           tag.isRefused(examined.record.shownText(tag.decider));
    return isRefused ? tag.message : QString();
}

/// Whether all tags of a line are known, closed and not refused. Looks at the bytes: no code page
/// has "<" or ">" as the second byte of a character.
bool areTagsRight(const Examined &examined, QByteArrayView line)
{
    for (qsizetype from = line.indexOf('<'); from >= 0; from = line.indexOf('<', from + 1)) {
        const qsizetype end = line.indexOf('>', from);
        const KnownTag *tag =
            end < 0 ? nullptr : examined.rules.tag(line.sliced(from, end - from + 1));
        if (tag == nullptr || !refusalOf(examined, *tag).isEmpty()) {
            return false;
        }
    }
    return true;
}

/// A stretch of a line, and the tags that may have been meant by it.
struct Meant
{
    qsizetype length = 0;
    QStringList tags;

    /// Whether a repair may put the tag there: no other is as close, and it has the same digits,
    /// as "<wrestler5>" is no misspelling of another wrestler.
    bool isSure(const QString &text) const
    {
        return tags.size() == 1 &&
               tags::digitsOf(tags.front()) == tags::digitsOf(text.first(length));
    }
};

/// What was meant by a tag that is not closed: the known one that it begins with, or else the
/// closest to its letters.
Meant meantByUnclosed(const QString &text, const QStringList &known)
{
    const auto isPart = [](QChar character) {
        return character.unicode() < 0x80 && character.isLetterOrNumber();
    };
    const auto end = std::find_if_not(text.begin() + 1, text.end(), isPart);
    const QString begun = text.left(end - text.begin());
    Meant meant;
    for (const QString &tag : known) {
        const qsizetype length = tag.size() - 1;
        if (begun.startsWith(tag.chopped(1), Qt::CaseInsensitive) && length > meant.length) {
            meant = {.length = length, .tags = {tag}};
        }
    }
    return meant.tags.isEmpty()
               ? Meant{.length = begun.size(), .tags = tags::allNearest(begun + u'>', known)}
               : meant;
}

Meant meantBy(const tags::Tag &tag, const QStringList &known)
{
    QStringList nearest = tag.isClosed ? tags::allNearest(tag.text, known) : QStringList();
    // A ">" may also stand in the text behind a tag that is not closed.
    return nearest.isEmpty() ? meantByUnclosed(tag.text, known)
                             : Meant{.length = tag.text.size(), .tags = std::move(nearest)};
}

/// Asks whether a tag was meant, or one of several.
QString didYouMean(QStringList tags)
{
    constexpr qsizetype kMostTags = 4;
    if (tags.isEmpty() || tags.size() > kMostTags) {
        return {};
    }
    const QString last = tags.takeLast();
    return u" Did you mean %1?"_s.arg(tags.isEmpty() ? last
                                                     : tags.join(u", "_s) + u" or "_s + last);
}

/// A line of commentary and where it stands.
struct CommentaryLine
{
    int field;
    int line;
    QString text;
};

Problem wrongTag(const Examined &examined, const CommentaryLine &line, const tags::Tag &tag)
{
    const QString what =
        quoted(tag.text) + (tag.isClosed ? u" is not a tag."_s : u" is not closed with \">\"."_s);
    Problem problem = {.type =
                           tag.isClosed ? Problem::Type::UnknownTag : Problem::Type::UnclosedTag,
                       .field = line.field,
                       .line = line.line,
                       .text = captionOf(examined.known(line.field)) + u": "_s + what};
    const Meant meant = meantBy(tag, examined.rules.tags());
    problem.text += didYouMean(meant.tags);
    if (!meant.isSure(tag.text)) {
        return problem;
    }
    QString repaired = line.text;
    repaired.replace(tag.from, meant.length, meant.tags.front());
    if (const codepage::Encoded encoded = codepage::encode(repaired); !encoded.missing) {
        problem.repair = u"Put %1 there"_s.arg(meant.tags.front());
        problem.repaired = edits::withText(examined.record, line.line, encoded.bytes);
    }
    return problem;
}

std::optional<Problem> problemOf(const Examined &examined, const CommentaryLine &line,
                                 const tags::Tag &tag)
{
    const KnownTag *known = tag.isClosed ? examined.rules.tag(tag.text.toLatin1()) : nullptr;
    if (known == nullptr) {
        return wrongTag(examined, line, tag);
    }
    const QString refusal = refusalOf(examined, *known);
    if (refusal.isEmpty()) {
        return std::nullopt;
    }
    return Problem{
        .type = Problem::Type::RefusedTag,
        .field = line.field,
        .line = line.line,
        .text = u"%1: %2: %3"_s.arg(captionOf(examined.known(line.field)), tag.text, refusal)};
}

void checkLine(const Examined &examined, const CommentaryLine &line, Problems &problems)
{
    int told = 0;
    for (auto tag = tags::nextTag(line.text, 0); tag && told < kMostOfLine;
         tag = tags::nextTag(line.text, tag->end())) {
        if (std::optional<Problem> problem = problemOf(examined, line, *tag)) {
            problems.push_back(*std::move(problem));
            ++told;
        }
    }
}

} // namespace

void checkTags(const Examined &examined, Problems &problems)
{
    const Catalog &catalog = examined.record.catalog();
    for (int field = catalog.firstCommentary(); field < catalog.fieldCount(); ++field) {
        const int place = examined.lineOf(field);
        if (place < 0) {
            continue;
        }
        const QByteArrayView text = examined.line(place).text;
        if (!areTagsRight(examined, text)) {
            checkLine(examined, {field, place, codepage::decode(text)}, problems);
        }
    }
}

} // namespace tarvold::records::checks
