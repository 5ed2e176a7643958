// Names that read like commentary.

#include "datafiles/code_page.h"
#include "datafiles/tags.h"
#include "records/checks.h"
#include "records/wording.h"

#include <algorithm>

namespace tarvold::records::checks {

using namespace Qt::StringLiterals;
using namespace wording;

namespace {

/// Whether a word with a point is short for something, such as "Jr." or "A.W.A.".
bool isAbbreviation(const QString &word)
{
    constexpr int kMostLetters = 3;
    const auto letters = std::count_if(word.begin(), word.end(),
                                       [](QChar character) { return character.isLetter(); });
    return word.front().isUpper() && letters <= kMostLetters && word.endsWith(u'.') &&
           !word.endsWith(u".."_s);
}

/// Whether a text ends as a sentence does, and is long enough to be one.
bool isSentence(const QString &text)
{
    constexpr qsizetype kFewestWords = 4;
    constexpr QStringView kClosing = u"\"')\u2019\u201d";
    constexpr QStringView kEnds = u".!?\u2026";
    QString sentence = text.simplified();
    while (!sentence.isEmpty() && kClosing.contains(sentence.back())) {
        sentence.chop(1);
    }
    const QStringList words = sentence.split(u' ', Qt::SkipEmptyParts);
    return words.size() >= kFewestWords && kEnds.contains(words.back().back()) &&
           !isAbbreviation(words.back());
}

bool hasTag(const Examined &examined, const QString &text)
{
    auto tag = tags::nextTag(text, 0);
    while (tag && examined.rules.tag(tag->text.toLatin1()) == nullptr) {
        tag = tags::nextTag(text, tag->end());
    }
    return tag.has_value();
}

} // namespace

void checkNames(const Examined &examined, Problems &problems)
{
    if (!examined.record.layout().isWhole()) {
        return; // where each line belongs is doubtful, and told
    }
    for (int field = 0; field < examined.record.catalog().fieldCount(); ++field) {
        if (!examined.rules.mayHoldCommentary(field)) {
            continue;
        }
        const int line = examined.lineOf(field);
        const QString text = codepage::decode(examined.line(line).text);
        if (hasTag(examined, text) || isSentence(text)) {
            problems.push_back({.type = Problem::Type::CommentaryAsName,
                                .field = field,
                                .line = line,
                                .text = u"%1: %2 reads like commentary, not like a name."_s.arg(
                                    captionOf(examined.known(field)), quoted(text))});
        }
    }
}

} // namespace tarvold::records::checks
