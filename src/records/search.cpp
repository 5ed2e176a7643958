#include "records/search.h"

#include "datafiles/code_page.h"
#include "records/lines.h"
#include "records/reading.h"

#include <algorithm>
#include <utility>

namespace tarvold::records {
namespace {

using Fold = std::array<char, 256>;

/// A byte as a small letter, where the code page has one of a single byte.
char foldedByte(int byte)
{
    const char one = char(byte);
    const codepage::Encoded small =
        codepage::encode(codepage::decode(QByteArrayView(&one, 1)).toLower());
    return small.bytes.size() == 1 ? small.bytes.front() : one;
}

const Fold &foldTable()
{
    static const Fold table = [] {
        Fold made{};
        for (int byte = 0; byte < int(made.size()); ++byte) {
            made[std::size_t(byte)] = foldedByte(byte);
        }
        return made;
    }();
    return table;
}

char fold(char byte)
{
    return foldTable()[static_cast<unsigned char>(byte)];
}

} // namespace

Matcher::Matcher(QByteArray wanted) : m_wanted(std::move(wanted))
{
    std::transform(m_wanted.begin(), m_wanted.end(), m_wanted.begin(), fold);
    const qsizetype size = m_wanted.size();
    m_distance.fill(static_cast<unsigned char>(std::min<qsizetype>(size, 255)));
    for (std::size_t byte = 0; byte < m_distance.size(); ++byte) {
        const qsizetype found = m_wanted.lastIndexOf(foldTable()[byte], -2);
        if (size > 1 && found >= 0) {
            m_distance[byte] =
                static_cast<unsigned char>(std::min<qsizetype>(size - 1 - found, 255));
        }
    }
}

bool Matcher::endsAt(const char *end) const
{
    return std::equal(m_wanted.crbegin(), m_wanted.crend(), std::make_reverse_iterator(end),
                      [](char wanted, char byte) { return wanted == fold(byte); });
}

bool Matcher::isIn(QByteArrayView bytes) const
{
    // Horspool's algorithm: where the last byte does not fit, most of the others need no look.
    const Fold &table = foldTable();
    const char last = m_wanted.back();
    qsizetype place = m_wanted.size() - 1;
    while (place < bytes.size()) {
        const auto byte = static_cast<unsigned char>(bytes[place]);
        if (table[byte] == last && endsAt(bytes.data() + place + 1)) {
            return true;
        }
        place += m_distance[byte];
    }
    return false;
}

SearchText::SearchText(const QString &text, DataFileKind kind)
    : m_text(text)
    , m_catalog(&Catalog::of(kind))
{
    if (text.isEmpty()) {
        return;
    }
    if (const codepage::Encoded encoded = codepage::encode(text); !encoded.missing) {
        m_spellings.emplace_back(encoded.bytes);
    }
    const QByteArray utf8 = text.toUtf8(); // by mistake, but then the author wants to find it
    if (m_spellings.empty() || utf8 != text.toLatin1()) {
        m_spellings.emplace_back(utf8);
    }
    const RecordFormat format = rowOf(kind).format;
    for (std::size_t line = 0; line < format.size(); ++line) {
        for (const CodedText &coded : codedTexts(format[line]->coding)) {
            const QLatin1StringView shown(coded.text);
            if (shown != QLatin1StringView(coded.word) &&
                shown.contains(text, Qt::CaseInsensitive)) {
                m_coded.push_back({int(line), coded.word});
            }
        }
    }
}

bool SearchText::isIn(QByteArrayView record) const
{
    if (isEmpty() || std::any_of(m_spellings.begin(), m_spellings.end(),
                                 [record](const Matcher &one) { return one.isIn(record); })) {
        return true;
    }
    return hasCoded(record);
}

/// Whether a line that its screen shows as another text stands at its field. Which field a line is
/// for takes long to find, so only records with such a word are looked at.
bool SearchText::hasCoded(QByteArrayView record) const
{
    const auto isWord = [this](const Line &line) {
        return std::any_of(m_coded.begin(), m_coded.end(), [&line](const CodedLine &coded) {
            return line.text == QByteArrayView(coded.word);
        });
    };
    if (m_coded.empty()) {
        return false;
    }
    const std::vector<Line> lines = linesOf(record);
    if (std::none_of(lines.begin(), lines.end(), isWord)) {
        return false;
    }
    const Layout layout = layoutOf(lines, *m_catalog);
    return std::any_of(m_coded.begin(), m_coded.end(), [&](const CodedLine &coded) {
        const int line = layout.lineOfField.at(std::size_t(coded.field));
        return line >= 0 && lines.at(std::size_t(line)).text == QByteArrayView(coded.word);
    });
}

bool SearchText::narrows(const SearchText &other) const
{
    if (other.isEmpty()) {
        return true;
    }
    return m_spellings.size() == other.m_spellings.size() &&
           m_coded.size() <= other.m_coded.size() &&
           m_text.contains(other.m_text, Qt::CaseInsensitive) &&
           std::equal(m_spellings.begin(), m_spellings.end(), other.m_spellings.begin(),
                      [](const Matcher &longer, const Matcher &shorter) {
                          return longer.folded().contains(shorter.folded());
                      });
}

} // namespace tarvold::records
