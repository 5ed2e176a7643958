#include "datafiles/record.h"
#include "support/print.h"

#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

constexpr RecordField kOne = {"One", Coding::AsShown};
constexpr RecordField kTwo = {"Two", Coding::BlankIfEmpty};
constexpr RecordField kThree = {"Three", Coding::AsShown};
constexpr RecordField kFinisher = {"Finisher", Coding::FinisherType};

/// A record of these fields, each with its text by `textOf`.
ComposedRecord composed(std::initializer_list<const RecordField *> fields,
                        const std::function<QString(const RecordField &)> &textOf)
{
    return composeRecord(RecordFormat(fields), textOf);
}

/// The bytes of a record of one line of this coding, from a field with the text `text`.
QByteArray lineFrom(Coding coding, const QString &text)
{
    const RecordField field = {"Field", coding};
    return composed({&field}, [&text](const RecordField &) { return text; }).bytes;
}

TEST(Record, EveryLineEndsWithCrLf)
{
    const ComposedRecord record = composed(
        {&kOne, &kThree}, [](const RecordField &field) { return QString::fromLatin1(field.name); });
    EXPECT_EQ(record.bytes, QByteArray("One\r\nThree\r\n"));
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
    const ComposedRecord record =
        composed({&kFinisher}, [](const RecordField &) { return QString(1, QChar(0x30A2)); });
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
    for (const char *text : {"a\rb", "a\nb", "a\r\nb", "\n", "a\r"}) {
        const ComposedRecord record =
            composed({&kOne}, [text](const RecordField &) { return QString::fromLatin1(text); });
        ASSERT_TRUE(record.missing.has_value());
        EXPECT_EQ(record.missing->field, u"One"_s);
        EXPECT_TRUE(record.missing->character == U'\r' || record.missing->character == U'\n');
        EXPECT_TRUE(record.bytes.isEmpty());
    }
}

TEST(Record, AMissingCharacterIsToldWithItsField)
{
    const ComposedRecord record = composed({&kOne, &kTwo, &kThree}, [](const RecordField &field) {
        return &field == &kOne ? u"plain"_s : QString(1, QChar(0x0142));
    });
    ASSERT_TRUE(record.missing.has_value());
    EXPECT_EQ(record.missing->field, u"Two"_s);
    EXPECT_EQ(record.missing->character, char32_t(0x0142));
    EXPECT_TRUE(record.bytes.isEmpty());
}

} // namespace
} // namespace tarvold
