// Lines that were saved as UTF-8, and lines of the code page that only look like it.

#include "datafiles/code_page.h"
#include "datafiles/record_fields.h"
#include "records/legal_records.h"
#include "records/problems_test.h"

#include <gtest/gtest.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;
using namespace records;

namespace {

/// An ending with a text in its commentary and, if it is no name, nowhere else.
QByteArray endingWith(const QByteArray &text, bool isName)
{
    const Catalog &catalog = Catalog::of(DataFileKind::NormalEndings);
    QByteArrayList lines = newLines(DataFileKind::NormalEndings);
    lines[catalog.firstCommentary()] = text;
    lines[catalog.placeOf(fields::kAttackerNames)] = isName ? text : "Any";
    return ended(lines);
}

std::vector<Problem> problemsOfEnding(const QByteArray &bytes)
{
    return problemsOf(Record(bytes, Catalog::of(DataFileKind::NormalEndings)), 1, true);
}

QByteArray inCodePage(const QString &text)
{
    const codepage::Encoded encoded = codepage::encode(text);
    EXPECT_FALSE(encoded.missing) << text.toStdString();
    return encoded.bytes;
}

TEST(Utf8, IsNotSeenInALetterBeforeAMark)
{
    for (const QString &text : {u"REN\u00c9\u2019S last stand"_s,
                                u"OL\u00c9\u2026"_s,
                                u"Spa\u00df\u2026"_s,
                                u"MEN\u00dc\u2026"_s,
                                u"IRM\u00c3\u2019S"_s,
                                u"IRM\u00c3\u2026"_s,
                                u"IRM\u00c3\u201d"_s,
                                u"IRM\u00c3\u00bb"_s,
                                u"IRM\u00c3\u2122"_s,
                                u"IRM\u00c3\u00ae"_s,
                                u"REN\u00c9\u2013MAX"_s,
                                u"REN\u00c9\u2014again!"_s,
                                u"REN\u00c9\u2122"_s,
                                u"Ol\u00e9\u2026\u201d"_s,
                                u"OL\u00c9\u00bb"_s,
                                u"SPA\u00df\u00ab"_s,
                                u"SPA\u00df\u201c"_s,
                                u"IRM\u00c3\u2014no!"_s,
                                u"REN\u00c9\u00b4S"_s,
                                u"OL\u00c9\u00a0!"_s,
                                u"CAF\u00c9\u00ae"_s,
                                u"REN\u00c9\u2020"_s,
                                u"\u00c9\u2026 mile"_s,
                                u"BL\u00c5\u2019S"_s,
                                u"P\u00c5\u00a0KANTEN"_s,
                                u"VIV\u00c9\u2019LL"_s,
                                u"Ol\u00e9\u2026\u00bb"_s,
                                u"Per\u00f2\u2026\u2019\u201d"_s}) {
        const QByteArray line = inCodePage(text);
        EXPECT_EQ(QString::fromUtf8(line).toUtf8(), line) << "no UTF-8: shows nothing";
        for (const bool isName : {false, true}) {
            EXPECT_EQ(listed(problemsOfEnding(endingWith(line, isName))), "");
        }
    }
}

TEST(Utf8, IsSeenInTextsOfManyLanguages)
{
    for (const QString &text : {u"Ren\u00e9"_s,
                                u"RENE\u0301"_s,
                                u"REN\u00c9 Duval"_s,
                                u"\u00d6zil"_s,
                                u"\u00d6sterreich"_s,
                                u"Fu\u00dfball"_s,
                                u"Se\u00f1or"_s,
                                u"SE\u00d1OR"_s,
                                u"\u00d3scar"_s,
                                u"L\u00e0"_s,
                                u"D\u00fb"_s,
                                u"H\u00e9!"_s,
                                u"CAF\u00e9 \u00e0 la carte"_s,
                                u"C\u0153ur"_s,
                                u"C\u0152UR"_s,
                                u"\u0160ime Vuji\u0107"_s,
                                u"Kova\u010d"_s,
                                u"\u0141ukasz"_s,
                                u"Dvo\u0159\u00e1k"_s,
                                u"imi\u0119"_s,
                                u"\u041f\u0440\u0438\u0432\u0435\u0442"_s,
                                u"That\u2019s it\u2026"_s,
                                u"\u201cNo!\u201d"_s,
                                u"5 \u20ac"_s,
                                u"\u00a1Hola!"_s,
                                u"XWL\u00ae"_s,
                                u"\u2603"_s,
                                u"\U0001f600"_s,
                                u"\u65e5\u672c"_s,
                                u"\u00abHola\u00bb"_s,
                                u"\u00c1lvaro"_s}) {
        const std::vector<Problem> problems = problemsOfEnding(endingWith(text.toUtf8(), false));
        ASSERT_EQ(problems.size(), 1U) << text.toStdString();
        EXPECT_EQ(problems.front().type, Problem::Type::Utf8) << text.toStdString();
    }
}

TEST(Utf8, IsNotReadTwiceWhereTheTextOfTheCodePageLooksLikeIt)
{
    const QString text = u"REN\u00c9\u2019S, OL\u00c9\u2026"_s;
    const std::vector<Problem> problems = problemsOfEnding(endingWith(text.toUtf8(), false));
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(problems.front().repaired, endingWith(inCodePage(text), false));
}

} // namespace
} // namespace tarvold::testing
