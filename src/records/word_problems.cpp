// Lines that are empty, or outside the coding or list of their field.

#include "datafiles/tags.h"
#include "records/checks.h"
#include "records/edits.h"
#include "records/wording.h"

#include <algorithm>

namespace tarvold::records::checks {

using namespace Qt::StringLiterals;
using namespace wording;

namespace {

constexpr int kLeastNumber = 1;
constexpr int kMostNumber = 100;

QString putThere(const QString &word)
{
    return u"Put \"%1\" there"_s.arg(word);
}

void offer(const Examined &examined, const QString &word, Problem &problem)
{
    problem.repair = putThere(word);
    problem.repaired = edits::withText(examined.record, problem.line, word.toLatin1());
}

/// What is left of a word without regard to capital letters, blanks and marks.
QString bare(const QString &word)
{
    QString letters;
    for (const QChar character : word) {
        if (character.isLetterOrNumber()) {
            letters.append(character.toLower());
        }
    }
    return letters;
}

/// The closest number of a list of numbers.
std::optional<QString> nearestNumber(const QString &text)
{
    QString digits = text.trimmed();
    if (digits.endsWith(u'%')) {
        digits.chop(1);
    }
    bool isNumber = false;
    const int number = digits.trimmed().toInt(&isNumber);
    return isNumber ? std::optional(QString::number(std::clamp(number, kLeastNumber, kMostNumber)))
                    : std::nullopt;
}

/// What a list shows for one of its words; the word itself if it stands only in files.
QString itemOf(const KnownField &known, qsizetype word)
{
    return known.items.value(word, known.words.at(word));
}

/// The index of the word that looks the same but for capital letters and marks; -1 if none does.
qsizetype sameWord(const KnownField &known, const QString &text)
{
    const QString letters = bare(text);
    for (qsizetype word = 0; word < known.words.size() && !letters.isEmpty(); ++word) {
        if (letters == bare(itemOf(known, word)) || letters == bare(known.words.at(word))) {
            return word;
        }
    }
    return -1;
}

/// The index of the word with other letters that was probably meant; -1 if none was. One with
/// another number was not: six men are no misspelling of eight.
qsizetype nearestWord(const KnownField &known, const QString &text)
{
    constexpr qsizetype kFewestLetters = 3; // of two letters, one wrong one is too much
    if (bare(text).size() < kFewestLetters) {
        return -1;
    }
    QStringList candidates;
    for (qsizetype word = 0; word < known.words.size(); ++word) {
        const QString item = itemOf(known, word);
        bool isNumber = false;
        (void)item.toInt(&isNumber);
        candidates << (isNumber || tags::digitsOf(item) != tags::digitsOf(text) ? QString() : item);
    }
    const auto nearest = tags::nearest(text, candidates);
    return nearest ? candidates.indexOf(*nearest) : -1;
}

/// Whether the field takes any text, although most write a word of its list.
bool isOpenList(const KnownField &known)
{
    return known.items.size() < known.words.size();
}

/// A word that was probably meant.
struct MeantWord
{
    QString word; ///< as it stands in the file
    bool isSure;  ///< so that a repair may put it there
};

std::optional<MeantWord> meantWord(const Examined &examined, int field, const QString &text)
{
    const KnownField &known = examined.known(field);
    if (known.field->coding == Coding::AlwaysNo) {
        return MeantWord{u"No"_s, true};
    }
    if (examined.rules.isNumber(field)) {
        if (const std::optional<QString> number = nearestNumber(text)) {
            return MeantWord{*number, true};
        }
    }
    if (known.field->coding == Coding::Number) {
        return std::nullopt;
    }
    if (const qsizetype same = sameWord(known, text); same >= 0) {
        return MeantWord{known.words.at(same), true};
    }
    const qsizetype nearest = nearestWord(known, text);
    return nearest < 0 ? std::nullopt
                       : std::optional(MeantWord{known.words.at(nearest), !isOpenList(known)});
}

/// What is wrong with the word.
QString whyUnknown(const KnownField &known, const QString &shown)
{
    switch (known.field->coding) {
    case Coding::FinisherType:
    case Coding::QualityWord:
        return u"the game does not know %1."_s.arg(shown);
    case Coding::Number:
        return u"%1 is not a number from 1 to 100."_s.arg(shown);
    case Coding::AlwaysNo:
        return u"the editor always writes \"No\" here, not %1."_s.arg(shown);
    case Coding::AsShown:
    case Coding::NoOrText:
    case Coding::BlankIfEmpty:
        break;
    }
    return u"%1 is not in the list, so the game probably does not know it."_s.arg(shown);
}

/// Asks whether a word was meant, and says what it stands for if that is something else.
QString didYouMean(const KnownField &known, const QString &word)
{
    if (known.field->coding == Coding::AlwaysNo) {
        return {};
    }
    const QString item = known.items.value(known.words.indexOf(word));
    return item.isEmpty() || item == word
               ? u" Did you mean \"%1\"?"_s.arg(word)
               : u" Did you mean \"%1\", which stands for %2?"_s.arg(word, item);
}

Problem unknownWord(const Examined &examined, int field)
{
    const KnownField &known = examined.known(field);
    const QString text = codepage::decode(examined.line(examined.lineOf(field)).text);
    Problem problem = {.type = Problem::Type::UnknownWord,
                       .field = field,
                       .line = examined.lineOf(field),
                       .text = captionOf(known) + u": "_s + whyUnknown(known, quoted(text))};
    if (const std::optional<MeantWord> meant = meantWord(examined, field, text)) {
        problem.text += didYouMean(known, meant->word);
        if (meant->isSure) {
            offer(examined, meant->word, problem);
        }
    }
    return problem;
}

/// A line that is nearly "-BLANK-" is shown to the audience.
Problem nearlyBlank(const Examined &examined, int field)
{
    const QByteArrayView line = examined.line(examined.lineOf(field)).text;
    Problem problem = {.type = Problem::Type::UnknownWord,
                       .field = field,
                       .line = examined.lineOf(field),
                       .text = u"%1: %2 is shown as it stands. Did you mean \"-BLANK-\"?"_s.arg(
                           captionOf(examined.known(field)), quoted(line))};
    offer(examined, QLatin1StringView(kBlankLine), problem);
    return problem;
}

bool isNearlyBlank(QByteArrayView line)
{
    constexpr qsizetype kLongest = 12;
    return line.size() <= kLongest && line != QByteArrayView(kBlankLine) &&
           line.toByteArray().trimmed().toUpper() == kBlankLine;
}

/// What follows from an empty line, or what belongs there.
QString whyNotEmpty(const Examined &examined, int field)
{
    const Catalog &catalog = examined.record.catalog();
    const QString record = recordOf(catalog.kind());
    const QString word = examined.known(field).newText;
    if (field == 0) {
        return u" is empty, so the import leaves this %1 out."_s.arg(record);
    }
    if (field == catalog.firstCommentary()) {
        return u" is empty. The editor does not add %1 without it."_s.arg(oneOf(catalog.kind()));
    }
    if (word.isEmpty()) {
        return u" is empty. Every %1 needs one."_s.arg(record);
    }
    return examined.rules.hasWords(field)
               ? u" is empty. A new %1 has \"%2\" there."_s.arg(record, word)
               : u" is empty, where \"%1\" belongs."_s.arg(word);
}

/// Whether the editor's screens write an empty line for this field. They never do that for a text,
/// except where a new record begins with an empty one; of these, only a name is asked for.
bool mayBeEmpty(const Examined &examined, int field)
{
    const Catalog &catalog = examined.record.catalog();
    const bool isName = catalog.kind() == DataFileKind::Stipulations && field == 1;
    return examined.known(field).newText.isEmpty() && field != 0 && !isName &&
           field != catalog.firstCommentary();
}

Problem emptyLine(const Examined &examined, int field)
{
    const KnownField &known = examined.known(field);
    Problem problem = {.type =
                           field == 0 ? Problem::Type::EmptyFirstLine : Problem::Type::EmptyLine,
                       .field = field,
                       .line = examined.lineOf(field),
                       .text = captionOf(known) + whyNotEmpty(examined, field)};
    if (!known.newText.isEmpty()) {
        offer(examined, known.newText, problem);
    }
    return problem;
}

void checkWord(const Examined &examined, int field, Problems &problems)
{
    const QByteArrayView line = examined.line(examined.lineOf(field)).text;
    if (line.isEmpty()) {
        if (!mayBeEmpty(examined, field)) {
            problems.push_back(emptyLine(examined, field));
        }
    } else if (!examined.rules.takes(field, line)) {
        problems.push_back(unknownWord(examined, field));
    } else if (examined.known(field).field->coding == Coding::BlankIfEmpty && isNearlyBlank(line)) {
        problems.push_back(nearlyBlank(examined, field));
    }
}

/// Fields whose lines will hold something else after a repair.
std::vector<int> unsureFields(const Problems &problems)
{
    std::vector<int> fields;
    for (const Problem &problem : problems) {
        if (problem.type == Problem::Type::Utf8 && !problem.repair.isEmpty()) {
            fields.push_back(problem.field);
        }
    }
    return fields;
}

} // namespace

void checkWords(const Examined &examined, Problems &problems)
{
    const std::vector<int> unsure = unsureFields(problems);
    for (int field = 0; field < examined.record.catalog().fieldCount(); ++field) {
        const bool isUnsure = std::find(unsure.begin(), unsure.end(), field) != unsure.end();
        if (examined.lineOf(field) >= 0 && !isUnsure) {
            checkWord(examined, field, problems);
        }
    }
}

} // namespace tarvold::records::checks
