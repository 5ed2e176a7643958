#include "datafiles/record.h"
#include "support/print.h"

#include <gtest/gtest.h>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

/// The bytes of a record of one line of this coding, from a control that shows `text`.
QByteArray lineFrom(Coding coding, const QString &text)
{
    const RecordLayout layout = {{"Field", {"Form0", "Text1"}, coding}};
    return composeRecord(layout, [&text](ControlRef) { return text; }).bytes;
}

TEST(Record, EveryLineEndsWithCrLf)
{
    const RecordLayout layout = {{"One", {"Form0", "Text1"}, Coding::AsShown},
                                 {"Two", {"Form0", "Text2"}, Coding::AsShown}};
    const ComposedRecord record = composeRecord(
        layout, [](ControlRef source) { return QString::fromLatin1(source.control); });
    EXPECT_EQ(record.bytes, QByteArray("Text1\r\nText2\r\n"));
}

TEST(Record, ATextAsShownIsWrittenUnchanged)
{
    for (const char *text : {"", " ", "  two  ", "a,b", "\"quoted\"", "<att1fullname>", "tab\there",
                             "-BLANK-", "back\\slash"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(lineFrom(Coding::AsShown, QString::fromLatin1(text)), QByteArray(text) + "\r\n");
    }
}

TEST(Record, ACommaInTheNameIsWrittenAsItStands)
{
    EXPECT_EQ(lineFrom(Coding::AsShown, u"Rocco Vance,Dex Vance"_s),
              QByteArray("Rocco Vance,Dex Vance\r\n"));
}

TEST(Record, TheFourFinisherWordsHaveTheirCodes)
{
    EXPECT_EQ(lineFrom(Coding::FinisherType, u"Any"_s), QByteArray("Any\r\n"));
    EXPECT_EQ(lineFrom(Coding::FinisherType, u"Pin"_s), QByteArray("p\r\n"));
    EXPECT_EQ(lineFrom(Coding::FinisherType, u"Submission"_s), QByteArray("s\r\n"));
    EXPECT_EQ(lineFrom(Coding::FinisherType, u"Top Rope"_s), QByteArray("t\r\n"));
}

TEST(Record, AnyOtherFinisherTextGivesNoLine)
{
    for (const char *text : {"", " ", "any", "pin", "PIN", "Pin ", " Pin", "top rope", "Toprope",
                             "p", "s", "t", "N/A", "Submissions"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(lineFrom(Coding::FinisherType, QString::fromLatin1(text)), QByteArray());
    }
}

TEST(Record, AFinisherOutsideTheCodePageGivesNoLineAndNoRefusal)
{
    const RecordLayout layout = {{"Finisher", {"Form0", "Combo7"}, Coding::FinisherType}};
    const ComposedRecord record =
        composeRecord(layout, [](ControlRef) { return QString(1, QChar(0x30A2)); });
    EXPECT_TRUE(record.bytes.isEmpty());
    EXPECT_FALSE(record.missing.has_value());
}

TEST(Record, OnlyAnExactlyEmptyLineIsWrittenAsBlank)
{
    EXPECT_EQ(lineFrom(Coding::BlankIfEmpty, QString()), QByteArray("-BLANK-\r\n"));
    EXPECT_EQ(lineFrom(Coding::BlankIfEmpty, u""_s), QByteArray("-BLANK-\r\n"));
    EXPECT_EQ(lineFrom(Coding::BlankIfEmpty, u" "_s), QByteArray(" \r\n"));
    EXPECT_EQ(lineFrom(Coding::BlankIfEmpty, u"\t"_s), QByteArray("\t\r\n"));
    EXPECT_EQ(lineFrom(Coding::BlankIfEmpty, u"He wins"_s), QByteArray("He wins\r\n"));
}

TEST(Record, TextIsWrittenInTheCodePage)
{
    const QString text = u"caf"_s + QChar(0xE9) + QChar(0x20AC);
    EXPECT_EQ(lineFrom(Coding::AsShown, text), QByteArray("caf\xE9\x80\r\n"));
}

TEST(Record, ALineBreakInsideAFieldIsTold)
{
    const RecordLayout layout = {{"One", {"Form0", "Text1"}, Coding::AsShown}};
    for (const char *text : {"a\rb", "a\nb", "a\r\nb", "\n", "a\r"}) {
        const ComposedRecord record =
            composeRecord(layout, [text](ControlRef) { return QString::fromLatin1(text); });
        ASSERT_TRUE(record.missing.has_value());
        EXPECT_EQ(record.missing->field, u"One"_s);
        EXPECT_TRUE(record.missing->character == U'\r' || record.missing->character == U'\n');
        EXPECT_TRUE(record.bytes.isEmpty());
    }
}

TEST(Record, AMissingCharacterIsToldWithItsField)
{
    const RecordLayout layout = {{"One", {"Form0", "Text1"}, Coding::AsShown},
                                 {"Two", {"Form0", "Text2"}, Coding::BlankIfEmpty},
                                 {"Three", {"Form0", "Text3"}, Coding::AsShown}};
    const ComposedRecord record = composeRecord(layout, [](ControlRef source) {
        return qstrcmp(source.control, "Text1") == 0 ? u"plain"_s : QString(1, QChar(0x0142));
    });
    ASSERT_TRUE(record.missing.has_value());
    EXPECT_EQ(record.missing->field, u"Two"_s);
    EXPECT_EQ(record.missing->character, char32_t(0x0142));
    EXPECT_TRUE(record.bytes.isEmpty());
}

} // namespace
} // namespace tarvold
