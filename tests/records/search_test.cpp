#include "datafiles/code_page.h"
#include "document_test.h"
#include "records/search.h"

#include <algorithm>

namespace tarvold::testing {
namespace {

using namespace Qt::StringLiterals;
using records::SearchText;

bool finds(const QString &text, const QByteArray &record,
           DataFileKind kind = DataFileKind::TalkShows)
{
    return SearchText(text, kind).isIn(record);
}

/// An ending as its screens start, with one other line.
QByteArray endingWith(int line, const QByteArray &text)
{
    QByteArrayList lines;
    for (const records::KnownField &field :
         records::Catalog::of(DataFileKind::NormalEndings).fields()) {
        lines << field.newText.toLatin1();
    }
    lines[line] = text;
    return records::bytesOf(lines);
}

TEST(SearchText, FindsEverythingWhileItIsEmpty)
{
    EXPECT_TRUE(SearchText().isIn("x\r\n"));
    EXPECT_TRUE(finds(u""_s, ""));
}

TEST(SearchText, FindsATextInAnyLineAndLetterCase)
{
    const QByteArray record = "Rocco Vance\r\nAny\r\nThe bell rings\r\n";
    for (const QString &text : {u"rocco"_s, u"VANCE"_s, u"R"_s, u"gs"_s, u"bell r"_s, u"Any"_s}) {
        EXPECT_TRUE(finds(text, record)) << text.toStdString();
    }
    for (const QString &text : {u"roccox"_s, u"vance any"_s, u"z"_s}) {
        EXPECT_FALSE(finds(text, record)) << text.toStdString();
    }
}

TEST(SearchText, KnowsTheLetterCaseOfUmlauts)
{
    const QByteArray record = codepage::encode(u"J\u00FCrgen \u0160imek\r\n"_s).bytes;
    EXPECT_TRUE(finds(u"J\u00DCRGEN"_s, record));
    EXPECT_TRUE(finds(u"\u0161IMEK"_s, record));
    EXPECT_TRUE(finds(u"u\u0308r"_s, record)); // a letter and its mark, as some keyboards type them
    EXPECT_FALSE(finds(u"Jurgen"_s, record));
}

TEST(SearchText, FindsUtf8ThatSomebodyWroteByMistake)
{
    EXPECT_TRUE(finds(u"J\u00FCrgen"_s, u"J\u00FCrgen\r\n"_s.toUtf8()));
    EXPECT_TRUE(finds(u"\u4E2D"_s, u"\u4E2D\r\n"_s.toUtf8())); // in no code page of one byte
}

TEST(SearchText, FindsWhatAScreenShowsForAWordOfTheFile)
{
    const auto kind = DataFileKind::NormalEndings;
    const RecordFormat format = rowOf(kind).format;
    for (std::size_t line = 0; line < format.size(); ++line) {
        if (format[line]->coding == Coding::FinisherType) {
            const QByteArray record = endingWith(int(line), "t");
            EXPECT_TRUE(finds(u"top r"_s, record, kind)) << line;
            EXPECT_FALSE(finds(u"submission"_s, record, kind)) << line;
            EXPECT_FALSE(finds(u"top r"_s, record, DataFileKind::TalkShows)) << line;
        }
    }
}

TEST(SearchText, FindsAWordOfTheFileBehindAMissingAndASurplusLine)
{
    const auto kind = DataFileKind::NormalEndings;
    constexpr int kFinisher = 14;
    ASSERT_EQ(rowOf(kind).format[kFinisher]->coding, Coding::FinisherType);
    const QByteArray whole = endingWith(kFinisher, "t");
    const qsizetype second = whole.indexOf('\n') + 1;
    const QByteArray shorter = whole.first(second) + whole.sliced(whole.indexOf('\n', second) + 1);
    EXPECT_TRUE(finds(u"top r"_s, shorter, kind));
    EXPECT_TRUE(finds(u"top r"_s, "a surplus line\r\n" + whole, kind));
    EXPECT_FALSE(finds(u"top r"_s, endingWith(kFinisher - 1, "t"), kind)) << "another field's";
}

TEST(SearchText, NarrowsWhenItGrows)
{
    const auto kind = DataFileKind::TalkShows;
    const auto narrows = [](const QString &longer, const QString &shorter) {
        return SearchText(longer, kind).narrows(SearchText(shorter, kind));
    };
    EXPECT_TRUE(narrows(u"rocc"_s, u"roc"_s));
    EXPECT_TRUE(narrows(u"Arocc"_s, u"ROC"_s));
    EXPECT_TRUE(narrows(u"r"_s, u""_s));
    EXPECT_FALSE(narrows(u"ro"_s, u"roc"_s));
    EXPECT_FALSE(narrows(u"u\u0308"_s, u"u"_s)); // another letter now
}

TEST(SearchText, FindsWhatAPlainSearchFinds)
{
    records::Random random(7);
    const auto randomText = [&random](int most) {
        QString text;
        for (int size = records::below(random, most); size >= 0; --size) {
            text += QStringView(u"abAB\u00E4\u00C4 \u0153\u0152")[records::below(random, 9)];
        }
        return text;
    };
    int found = 0;
    for (int round = 0; round < 20'000; ++round) {
        const QString text = randomText(40);
        const QString wanted = randomText(4);
        const bool isThere = text.toLower().contains(wanted.toLower());
        found += isThere ? 1 : 0;
        ASSERT_EQ(finds(wanted, codepage::encode(text).bytes), isThere)
            << wanted.toStdString() << " in " << text.toStdString();
    }
    EXPECT_GT(found, 1000);
    EXPECT_LT(found, 19'000);
}

} // namespace
} // namespace tarvold::testing
