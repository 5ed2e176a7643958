#include "records/rules.h"

#include <algorithm>
#include <array>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostOfNumber = 100; ///< of Coding::Number

/// The lines that a field takes, as bytes; none if it takes any text.
std::vector<QByteArray> wordsOf(const KnownField &known)
{
    std::vector<QByteArray> words;
    switch (known.field->coding) {
    case Coding::Number:
        for (int number = 1; number <= kMostOfNumber; ++number) {
            words.push_back(QByteArray::number(number));
        }
        break;
    case Coding::AlwaysNo:
        words.emplace_back("No");
        break;
    case Coding::AsShown:
    case Coding::FinisherType:
    case Coding::QualityWord:
        for (const QString &word : known.words) {
            words.push_back(word.toLatin1()); // the lists are plain ASCII
        }
        break;
    case Coding::BlankIfEmpty:
    case Coding::NoOrText:
        break;
    }
    std::sort(words.begin(), words.end());
    return words;
}

} // namespace

Rules::Rules(const Catalog &catalog)
    : m_costs(LineCosts::of(catalog.kind()))
    , m_firstCommentary(catalog.firstCommentary())
{
    for (const KnownField &known : catalog.fields()) {
        m_words.push_back(wordsOf(known));
    }
    for (const KnownTag &tag : catalog.tags()) {
        m_tagBytes.push_back({tag.tag.toLatin1(), &tag});
        m_tags << tag.tag;
    }
    std::sort(m_tagBytes.begin(), m_tagBytes.end(),
              [](const TagBytes &one, const TagBytes &other) { return one.bytes < other.bytes; });
}

const Rules &Rules::of(const Catalog &catalog)
{
    static const std::array<Rules, kDataFileKinds.size()> all = {
        Rules(Catalog::of(DataFileKind::NormalEndings)),
        Rules(Catalog::of(DataFileKind::RunInEndings)),
        Rules(Catalog::of(DataFileKind::TurnEndings)),
        Rules(Catalog::of(DataFileKind::Interviews)),
        Rules(Catalog::of(DataFileKind::TalkShows)),
        Rules(Catalog::of(DataFileKind::Stipulations)),
    };
    return all.at(std::size_t(catalog.kind()));
}

bool Rules::takes(int field, QByteArrayView line) const
{
    const std::vector<QByteArray> &words = m_words.at(std::size_t(field));
    return words.empty() || std::binary_search(words.begin(), words.end(), line);
}

bool Rules::isLegal(int field, QByteArrayView line) const
{
    constexpr int kMostOdd = 2 * LineCosts::kBit;
    return !line.isEmpty() && takes(field, line) &&
           (hasWords(field) || field >= m_firstCommentary ||
            m_costs.oddnessOf(field, sortOf(line)) <= kMostOdd);
}

bool Rules::areLegal(const std::vector<Line> &record) const
{
    int field = 0;
    return record.size() == m_words.size() &&
           std::all_of(record.begin(), record.end(),
                       [&](const Line &line) { return isLegal(field++, line.text); });
}

bool Rules::isNumber(int field) const
{
    return hasWords(field) && takes(field, "100");
}

const KnownTag *Rules::tag(QByteArrayView tag) const
{
    const auto found = std::lower_bound(
        m_tagBytes.begin(), m_tagBytes.end(), tag,
        [](const TagBytes &known, QByteArrayView searched) { return known.bytes < searched; });
    return found != m_tagBytes.end() && found->bytes == tag ? found->tag : nullptr;
}

} // namespace tarvold::records
