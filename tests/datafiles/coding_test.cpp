#include "datafiles/coding.h"
#include "support/print.h"

#include <gtest/gtest.h>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

constexpr Coding kCodings[] = {Coding::AsShown,     Coding::Number,       Coding::FinisherType,
                               Coding::QualityWord, Coding::BlankIfEmpty, Coding::NoOrText,
                               Coding::AlwaysNo};

TEST(Coding, AQualityIsAWordInTheFile)
{
    EXPECT_EQ(lineOf(Coding::QualityWord, u"Just Standard Ability"_s), u"No"_s);
    EXPECT_EQ(lineOf(Coding::QualityWord, u"Just Hardcore Ability"_s), u"Yes"_s);
    EXPECT_EQ(lineOf(Coding::QualityWord, u"50% Standard, 50% Hardcore"_s), u"Both"_s);
}

TEST(Coding, AnUnknownQualityHasNoLineAndAnUnknownWordShowsNothing)
{
    for (const char *unknown : {"", " ", "both", "yes", "Both ", "Any", "just standard ability"}) {
        SCOPED_TRACE(unknown);
        EXPECT_EQ(lineOf(Coding::QualityWord, QString::fromLatin1(unknown)), std::nullopt);
        EXPECT_EQ(textOf(Coding::QualityWord, unknown), std::nullopt);
    }
}

TEST(Coding, EveryTextOfAListComesBackFromItsWord)
{
    int texts = 0;
    for (const Coding coding : kCodings) {
        for (const CodedText &coded : codedTexts(coding)) {
            EXPECT_EQ(lineOf(coding, QLatin1StringView(coded.text)), QLatin1StringView(coded.word));
            EXPECT_EQ(textOf(coding, coded.word), QLatin1StringView(coded.text));
            ++texts;
        }
    }
    EXPECT_EQ(texts, 4 + 3);
}

TEST(Coding, TheReservedLineIsNoWhateverIsShown)
{
    for (const char *text : {"", "Yes", "No", "odd"}) {
        EXPECT_EQ(lineOf(Coding::AlwaysNo, QString::fromLatin1(text)), u"No"_s);
    }
}

TEST(Coding, AnEmptyCommentaryLineComesBackEmpty)
{
    EXPECT_EQ(lineOf(Coding::BlankIfEmpty, {}), u"-BLANK-"_s);
    EXPECT_EQ(textOf(Coding::BlankIfEmpty, "-BLANK-"), QString());
    EXPECT_EQ(textOf(Coding::BlankIfEmpty, ""), QString());
    EXPECT_EQ(textOf(Coding::BlankIfEmpty, " -BLANK-"), u" -BLANK-"_s);
}

TEST(Coding, AllOtherTextsAreTheLineItself)
{
    for (const Coding coding : {Coding::AsShown, Coding::Number, Coding::NoOrText}) {
        for (const char *text : {"", " ", "5", "No", "-BLANK-", "ABC", "500"}) {
            SCOPED_TRACE(text);
            EXPECT_EQ(lineOf(coding, QString::fromLatin1(text)), QString::fromLatin1(text));
            EXPECT_EQ(textOf(coding, text), QString::fromLatin1(text));
        }
    }
}

TEST(Coding, ALineIsShownInTheCodePage)
{
    EXPECT_EQ(textOf(Coding::AsShown, "caf\xE9\x80"), u"caf\u00E9\u20AC"_s);
}

} // namespace
} // namespace tarvold
