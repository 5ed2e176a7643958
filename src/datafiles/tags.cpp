#include "datafiles/tags.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>
#include <vector>

namespace tarvold::tags {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostProblems = 10;
constexpr qsizetype kLongestTag = 40; ///< what is longer is no mistyped tag, and is not shown whole

/// The edit distance (Levenshtein): how many letters to insert, delete or replace.
qsizetype distance(const QString &one, const QString &other)
{
    std::vector<qsizetype> row(std::size_t(other.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (const QChar letter : one) {
        qsizetype diagonal = row.front()++;
        for (qsizetype column = 0; column < other.size(); ++column) {
            qsizetype &above = row.at(std::size_t(column) + 1);
            const qsizetype left = row.at(std::size_t(column));
            const qsizetype replaced = diagonal + (letter == other[column] ? 0 : 1);
            diagonal = std::exchange(above, std::min({above + 1, left + 1, replaced}));
        }
    }
    return row.back();
}

QString wrongTag(const QString &tag, const QStringList &known)
{
    const bool isLong = tag.size() > kLongestTag;
    const QString shown = isLong ? tag.left(kLongestTag) + u"..."_s : tag;
    const auto meant = nearest(tag, known);
    return meant ? u"%1 is not a tag. Did you mean %2?"_s.arg(shown, *meant)
                 : u"%1 is not a tag."_s.arg(shown);
}

QString problemOf(const Tag &tag, const Rules &rules, std::optional<qsizetype> cursor)
{
    const qsizetype last = tag.isClosed ? tag.end() - 1 : tag.end(); // an open tag goes on there
    if (cursor && *cursor > tag.from && *cursor <= last) {
        return {};
    }
    if (!tag.isClosed) {
        return u"\"<\" is not closed."_s;
    }
    if (!rules.known.contains(tag.text)) {
        return wrongTag(tag.text, rules.known);
    }
    const QString refusal = rules.refusal(tag.text);
    return refusal.isEmpty() ? QString() : tag.text + u": "_s + refusal;
}

} // namespace

std::optional<Tag> nextTag(const QString &line, qsizetype from)
{
    const qsizetype start = line.indexOf(u'<', from);
    if (start < 0) {
        return std::nullopt;
    }
    const auto isEnd = [](QChar character) { return character == u'<' || character == u'>'; };
    const auto end = std::find_if(line.begin() + start + 1, line.end(), isEnd);
    const bool isClosed = end != line.end() && *end == u'>';
    const qsizetype length = end - line.begin() - start + (isClosed ? 1 : 0);
    return Tag{.from = start, .text = line.sliced(start, length), .isClosed = isClosed};
}

std::optional<QString> nearest(const QString &tag, const QStringList &known)
{
    const QStringList all = allNearest(tag, known);
    return all.isEmpty() ? std::nullopt : std::optional(all.front());
}

QStringList allNearest(const QString &tag, const QStringList &known)
{
    if (tag.size() > kLongestTag) {
        return {};
    }
    constexpr qsizetype kBrackets = 2;
    // A third of its letters may be wrong, or one of very few.
    qsizetype least = std::max<qsizetype>(1, (tag.size() - kBrackets) / 3);
    QStringList found;
    for (const QString &candidate : known) {
        const qsizetype away = distance(tag.toLower(), candidate.toLower());
        if (away < least) {
            least = away;
            found.clear();
        }
        if (away == least) {
            found << candidate;
        }
    }
    return found;
}

QString digitsOf(const QString &text)
{
    QString digits;
    std::copy_if(text.begin(), text.end(), std::back_inserter(digits),
                 [](QChar character) { return character.isDigit(); });
    return digits;
}

QStringList problemsIn(const QString &line, const Rules &rules, std::optional<qsizetype> cursor)
{
    QStringList problems;
    for (auto tag = nextTag(line, 0); tag && problems.size() < kMostProblems;
         tag = nextTag(line, tag->end())) {
        if (const QString problem = problemOf(*tag, rules, cursor); !problem.isEmpty()) {
            problems << problem;
        }
    }
    return problems;
}

} // namespace tarvold::tags
