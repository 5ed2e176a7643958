#include "records/wording.h"

#include "datafiles/code_page.h"

#include <algorithm>
#include <array>

namespace tarvold::records::wording {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongest = 60; ///< a text to be shown whole

struct Words
{
    const char *record;
    const char *one;
};

/// In the order of the kinds.
constexpr std::array<Words, kDataFileKinds.size()> kWords = {{
    {"ending", "a match ending"},
    {"ending", "an ending with a run-in"},
    {"ending", "an ending with a turn"},
    {"interview", "an interview"},
    {"talk show", "a talk show"},
    {"stipulation", "a stipulation"},
}};

/// A control character could change what is around it.
QString printable(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control) {
            character = QChar::ReplacementCharacter;
        }
    }
    return text;
}

} // namespace

QString recordOf(DataFileKind kind)
{
    return QLatin1StringView(kWords.at(std::size_t(kind)).record);
}

QString atStart(const QString &text)
{
    return text.left(1).toUpper() + text.mid(1);
}

QString oneOf(DataFileKind kind)
{
    return QLatin1StringView(kWords.at(std::size_t(kind)).one);
}

QString captionOf(const KnownField &known)
{
    // A question mark would end the sentence that it stands in.
    return known.caption.endsWith(u'?') ? known.caption.chopped(1) : known.caption;
}

QString quoted(const QString &text)
{
    return quotedAround(text, 0);
}

QString quoted(QByteArrayView line)
{
    return quoted(codepage::decode(line));
}

QString quotedAround(const QString &text, qsizetype place)
{
    const qsizetype from =
        text.size() <= kLongest ? 0 : std::max<qsizetype>(0, place - (kLongest / 3));
    const bool isCut = text.size() - from > kLongest;
    const QString shown = printable(text.mid(from, kLongest));
    return u"\"%1%2%3\""_s.arg(from > 0 ? u"..."_s : QString(), shown,
                               isCut ? u"..."_s : QString());
}

QString linesOf(int first, int last)
{
    if (first == last) {
        return u"line %1"_s.arg(first + 1);
    }
    const QString range = first + 1 == last ? u"lines %1 and %2"_s : u"lines %1 to %2"_s;
    return range.arg(first + 1).arg(last + 1);
}

} // namespace tarvold::records::wording
