#include "records/broken_lines.h"

#include "records/edits.h"
#include "records/line_sort.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace tarvold::records {
namespace {

/// The last characters of a line that is whole, in the code page: full stop, exclamation and
/// question mark, colon, closing quotation marks and bracket, ellipsis, dashes.
constexpr std::string_view kEndings = ".!?:\"')*-\x85\x92\x94\x96\x97";

bool endsAsSentence(QByteArrayView text)
{
    return kEndings.find(text.back()) != std::string_view::npos;
}

/// Whether a text begins with a small letter, in the code page.
bool beginsSmall(QByteArrayView text)
{
    const auto first = std::uint8_t(text.front());
    return (first >= 'a' && first <= 'z') || (first >= 0xDF && first != 0xF7);
}

/// Finds the lines of one record's commentary that may have been one.
class BrokenLines
{
public:
    BrokenLines(const Record &record, const Step &step) : m_step(step)
    {
        for (const Step::Whole &whole : step.wholes) {
            m_texts.push_back(edits::joinedText(record, whole.first, whole.last));
        }
        const int before = record.catalog().firstCommentary() - 1;
        m_first = step.layout.lineOfField.at(std::size_t(before)) + 1;
        std::copy_if(step.layout.surplus.begin(), step.layout.surplus.end(),
                     std::back_inserter(m_surplus), [this](int line) { return line >= m_first; });
        find();
    }

    /// How many lines of the commentary are too many.
    std::size_t tooMany() const { return m_surplus.size(); }

    /// Whether all that is wrong in the commentary are lines too many between its own, and not
    /// strange ones behind them.
    bool isPossible() const
    {
        const std::vector<int> &lines = m_step.layout.lineOfField;
        const bool isComplete = std::find(lines.begin(), lines.end(), -1) == lines.end();
        if (!isComplete || m_surplus.empty()) {
            return false;
        }
        const bool isBehind = m_surplus.back() + 1 == int(m_texts.size()) &&
                              m_surplus.front() > m_first && !isBlank(m_surplus.back()) &&
                              isBlank(m_surplus.front() - 1);
        return !isBehind;
    }

    /// Whether the lines that the layout takes for surplus hold nothing.
    bool areSurplusBlank() const
    {
        return std::all_of(m_surplus.begin(), m_surplus.end(),
                           [this](int line) { return isBlank(line); });
    }

    /// Whether a surplus line is the same as the one before it.
    bool isAnyDoubled() const
    {
        return std::any_of(m_surplus.begin(), m_surplus.end(), [this](int line) {
            return line > 0 && !isBlank(line) && text(line) == text(line - 1);
        });
    }

    const std::vector<int> &sure() const { return m_sure; } ///< the first lines of such pairs
    const std::vector<int> &possible() const { return m_possible; }

private:
    const QByteArray &text(int line) const { return m_texts.at(std::size_t(line)); }
    bool isBlank(int line) const
    {
        const Sort sort = sortOf(text(line));
        return sort == Sort::Blank || sort == Sort::Empty;
    }

    void find()
    {
        for (int line = m_first; line + 1 < int(m_texts.size()); ++line) {
            if (isBlank(line) || isBlank(line + 1) || endsAsSentence(text(line))) {
                continue;
            }
            const bool isSure = beginsSmall(text(line + 1)) || text(line).endsWith(',');
            (isSure ? m_sure : m_possible).push_back(line);
        }
    }

    const Step &m_step;
    std::vector<QByteArray> m_texts;
    int m_first = 0;            ///< the first line of the commentary
    std::vector<int> m_surplus; ///< lines of the commentary that are too many
    std::vector<int> m_sure;
    std::vector<int> m_possible;
};

/// Makes each of some lines one with the line behind it.
void join(const Record &record, const std::vector<int> &lines, Step &step)
{
    // Backwards, so that those before keep their numbers.
    for (std::size_t left = lines.size(); left > 0; --left) {
        const auto first = step.wholes.begin() + lines[left - 1];
        first->last = (first + 1)->last;
        step.wholes.erase(first + 1);
    }
    step.layout = layoutOf(record, step.wholes);
}

} // namespace

void joinBroken(const Record &record, Step &step)
{
    const Catalog &catalog = record.catalog();
    if (step.layout.surplus.empty() || catalog.firstCommentary() == catalog.fieldCount()) {
        return;
    }
    const BrokenLines broken(record, step);
    if (!broken.isPossible()) {
        return;
    }
    const std::size_t tooMany = broken.tooMany();
    const std::vector<int> &sure = broken.sure();
    const std::vector<int> &possible = broken.possible();
    step.isSure = sure.empty() && possible.empty();
    if (!sure.empty() && sure.size() <= tooMany) {
        step.isSure = sure.size() == tooMany && !broken.isAnyDoubled();
        join(record, sure, step);
    } else if (!broken.areSurplusBlank() && sure.size() > tooMany) {
        join(record, std::vector<int>(sure.begin(), sure.begin() + qsizetype(tooMany)), step);
    } else if (!broken.areSurplusBlank() && !broken.isAnyDoubled() && sure.empty() &&
               possible.size() >= tooMany) {
        join(record, std::vector<int>(possible.begin(), possible.begin() + qsizetype(tooMany)),
             step);
    }
}

} // namespace tarvold::records
