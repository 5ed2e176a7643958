// Tags that no commentary knows, that are not closed, or that the record's conditions refuse.

#include "datafiles/code_page.h"
#include "datafiles/tags.h"
#include "records/checks.h"
#include "records/edits.h"
#include "records/wording.h"

#include <algorithm>

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

/// A stretch of a line, and the tag that was probably meant by it.
struct Meant
{
    qsizetype length;
    QString tag;
};

/// What was meant by a tag that is not closed: the known one that it begins with, or else the
/// closest to its letters.
std::optional<Meant> meantByUnclosed(const QString &text, const QStringList &known)
{
    const auto isPart = [](QChar character) {
        return character.unicode() < 0x80 && character.isLetterOrNumber();
    };
    const auto end = std::find_if_not(text.begin() + 1, text.end(), isPart);
    const QString begun = text.left(end - text.begin());
    std::optional<Meant> meant;
    for (const QString &tag : known) {
        const qsizetype length = tag.size() - 1;
        if (begun.startsWith(tag.chopped(1), Qt::CaseInsensitive) &&
            (!meant || length > meant->length)) {
            meant = Meant{.length = length, .tag = tag};
        }
    }
    if (meant) {
        return meant;
    }
    const std::optional<QString> nearest = tags::nearest(begun + u'>', known);
    return nearest ? std::optional(Meant{.length = begun.size(), .tag = *nearest}) : std::nullopt;
}

std::optional<Meant> meantBy(const tags::Tag &tag, const QStringList &known)
{
    const std::optional<QString> nearest =
        tag.isClosed ? tags::nearest(tag.text, known) : std::nullopt;
    // A ">" may also stand in the text behind a tag that is not closed.
    return nearest ? std::optional(Meant{.length = tag.text.size(), .tag = *nearest})
                   : meantByUnclosed(tag.text, known);
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
    if (const std::optional<Meant> meant = meantBy(tag, examined.rules.tags())) {
        QString repaired = line.text;
        repaired.replace(tag.from, meant->length, meant->tag);
        const codepage::Encoded encoded = codepage::encode(repaired);
        problem.text += u" Did you mean %1?"_s.arg(meant->tag);
        if (!encoded.missing) {
            problem.repair = u"Put %1 there"_s.arg(meant->tag);
            problem.repaired = edits::withText(examined.record, line.line, encoded.bytes);
        }
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
