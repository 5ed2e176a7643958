#include "records/utf8_evidence.h"

#include "datafiles/code_page.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace tarvold::records {
namespace {

enum class Behind { ///< a mark, within a word
    NoLetter,
    Ending, ///< only one of a few letters, as in "OLÉ’S"
    Any,
};

/// A mark that authors put directly behind a letter.
struct Mark
{
    char16_t character;
    Behind behind;
    /// Whether a capital letter and it may be the bytes of a character that the code page has, and
    /// are still no sign of UTF-8.
    bool excusesKnown;
};

constexpr std::array kMarks = {
    Mark{u'\u2026', Behind::Any, true},       // ellipsis
    Mark{u'\u2013', Behind::Any, true},       // dashes
    Mark{u'\u2014', Behind::Any, true},       //
    Mark{u'\u00a0', Behind::Any, true},       // no-break space
    Mark{u'\u2019', Behind::Ending, true},    // apostrophe, closing quotation marks
    Mark{u'\u201d', Behind::NoLetter, true},  //
    Mark{u'\u00bb', Behind::NoLetter, true},  //
    Mark{u'\u2122', Behind::NoLetter, true},  // trade marks
    Mark{u'\u00ae', Behind::NoLetter, true},  //
    Mark{u'\u201c', Behind::NoLetter, false}, // closing quotation marks of other languages
    Mark{u'\u2018', Behind::NoLetter, false}, //
    Mark{u'\u203a', Behind::NoLetter, false}, //
    Mark{u'\u00ab', Behind::NoLetter, false}, //
    Mark{u'\u00b4', Behind::Ending, false},   // an accent in place of an apostrophe
    Mark{u'\u2022', Behind::Any, false},      // bullets
    Mark{u'\u00b7', Behind::Any, false},      //
    Mark{u'\u00a9', Behind::NoLetter, false}, // signs
    Mark{u'\u2020', Behind::NoLetter, false}, //
    Mark{u'\u2021', Behind::NoLetter, false}, //
    Mark{u'\u00b0', Behind::NoLetter, false}, //
};

const Mark *markOf(QChar character)
{
    const auto found = std::find_if(kMarks.begin(), kMarks.end(), [character](const Mark &mark) {
        return mark.character == character;
    });
    return found == kMarks.end() ? nullptr : &*found;
}

/// A character of several bytes in a line, and the line as the code page reads it, where each byte
/// is a character.
struct Sequence
{
    const QString &shown;
    qsizetype from;
    qsizetype length;
    QString meant; ///< the character in UTF-8
};

/// How many capital letters stand directly before it, counted up to two.
qsizetype capitalsBefore(const Sequence &sequence)
{
    qsizetype count = 0;
    while (count < 2 && count < sequence.from &&
           sequence.shown.at(sequence.from - 1 - count).isUpper()) {
        ++count;
    }
    return count;
}

/// Whether what follows is what may follow a mark.
bool mayFollow(QStringView text, Behind behind)
{
    const auto end =
        std::find_if_not(text.begin(), text.end(), [](QChar one) { return one.isLetter(); });
    const QStringView letters = text.first(end - text.begin());
    switch (behind) {
    case Behind::Any:
        return true;
    case Behind::NoLetter:
        return letters.isEmpty();
    case Behind::Ending:
        break;
    }
    return letters.size() <= 1 ||
           std::ranges::any_of(std::array{"ll", "re", "ve"}, [letters](const char *ending) {
               return letters.compare(QLatin1StringView(ending), Qt::CaseInsensitive) == 0;
           });
}

/// Whether a sequence may well be a letter and marks behind it.
bool mayBeLetterAndMarks(const Sequence &sequence)
{
    const QChar letter = sequence.shown.at(sequence.from);
    const bool isInSmallWord =
        sequence.from > 0 && sequence.shown.at(sequence.from - 1).isLower() && letter.isUpper();
    if (!letter.isLetter() || isInSmallWord) {
        return false;
    }
    const qsizetype end = sequence.from + sequence.length;
    const bool isKnown = !codepage::encode(sequence.meant).missing;
    if (isKnown && letter == u'\u00c2') {
        return false; // no word ends in it, and UTF-8 puts it before every sign
    }
    for (qsizetype place = sequence.from + 1; place < end; ++place) {
        const Mark *mark = markOf(sequence.shown.at(place));
        if (mark == nullptr || (isKnown && !mark->excusesKnown)) {
            return false;
        }
    }
    // What UTF-8 says is a letter, too: in a word of capitals, a small one is the odder of the two.
    const qsizetype capitals = sequence.meant.front().isLower() ? 2 : 1;
    return (!isKnown || capitalsBefore(sequence) >= capitals) &&
           mayFollow(QStringView(sequence.shown).sliced(end),
                     markOf(sequence.shown.at(end - 1))->behind);
}

qsizetype lengthAt(char lead)
{
    const auto byte = static_cast<unsigned char>(lead);
    return byte < 0x80U ? 1 : byte < 0xe0U ? 2 : byte < 0xf0U ? 3 : 4;
}

} // namespace

bool isSurelyUtf8(QByteArrayView line)
{
    const QString shown = codepage::decode(line);
    if (shown.size() != line.size()) {
        return true; // a code page with characters of several bytes: a mark is no byte there
    }
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    qsizetype length = 1;
    for (qsizetype from = 0; from < line.size(); from += length) {
        length = std::min(lengthAt(line.at(from)), line.size() - from);
        if (length > 1 &&
            !mayBeLetterAndMarks({.shown = shown,
                                  .from = from,
                                  .length = length,
                                  .meant = decoder.decode(line.sliced(from, length))})) {
            return true;
        }
    }
    return false;
}

} // namespace tarvold::records
