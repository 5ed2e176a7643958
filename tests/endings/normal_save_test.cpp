#include "controls/controls.h"
#include "endings/ending_commentary.h"
#include "support/ending_test.h"

#include <QDir>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

const QByteArray kBlank = "-BLANK-\r\n";

/// The 26 lines of the details of an unchanged flow.
const QByteArray kUntouchedDetails = "Any\r\nAny\r\nN/A\r\nN/A\r\nNormal\r\nN/A\r\n"
                                     "Any\r\nAny\r\nAny\r\nAny\r\nN/A\r\n"
                                     "N/A\r\nN/A\r\nN/A\r\nAny\r\nN/A\r\n"
                                     "Any\r\nAny\r\nAny\r\nAny\r\nN/A\r\n"
                                     "N/A\r\nN/A\r\nN/A\r\nAny\r\nN/A\r\n";

/// The record of an unchanged flow with this first commentary line.
QByteArray recordWith(const QByteArray &firstLine)
{
    return kUntouchedDetails + firstLine + "\r\n" + kBlank.repeated(9);
}

class NormalSave : public EndingTest
{
protected:
    NormalSave() { goTo("Form7"); }

    void write(const char *line, const char *words)
    {
        type("Form7", line, QLatin1StringView(words));
    }

    /// Goes back to a screen of the flow.
    void backTo(const char *screen)
    {
        press("Form7", "Command2");
        if (qstrcmp(screen, "Form6") != 0) {
            press("Form6", "Command1");
        }
    }

    /// Saves once more after a save, with everything kept.
    void saveAnother(const char *firstLine)
    {
        goTo("Form7");
        write("Text1", firstLine);
        save();
    }

    static QString file() { return u"normreports.tvd"_s; }
};

TEST_F(NormalSave, TheFirstSaveCreatesTheFileWithExactlyThatRecord)
{
    ASSERT_FALSE(QFile::exists(file()));
    write("Text1", "The end.");
    save();
    expectOnly("Form1");
    EXPECT_EQ(bytesOf(file()), recordWith("The end."));
    EXPECT_EQ(bytesOf(file()).count("\r\n"), 36);
    EXPECT_EQ(QDir().entryList(QDir::Files), QStringList{file()});
}

TEST_F(NormalSave, TwoSavesGiveTwoRecordsWithNothingBetween)
{
    write("Text1", "One.");
    save();
    saveAnother("Two.");
    EXPECT_EQ(bytesOf(file()), recordWith("One.") + recordWith("Two."));
    EXPECT_EQ(bytesOf(file()).count("\r\n"), 72);
}

TEST_F(NormalSave, TheOldContentOfTheFileStays)
{
    QFile old(file());
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("no record at all\n");
    old.close();
    write("Text1", "The end.");
    save();
    EXPECT_EQ(bytesOf(file()), "no record at all\n" + recordWith("The end."));
}

TEST_F(NormalSave, EachSaveGoesToTheFileNamedOnTheMenuAtThatTime)
{
    write("Text1", "One.");
    save();
    type("Form1", "Text3", u"other.txt"_s);
    saveAnother("Two.");
    saveAnother("Three.");
    EXPECT_EQ(bytesOf(file()), recordWith("One."));
    EXPECT_EQ(bytesOf(u"other.txt"_s), recordWith("Two.") + recordWith("Three."));
}

TEST_F(NormalSave, TheFileNameIsReadWhenSaving)
{
    write("Text1", "One.");
    editor.screens().setText({"Form1", "Text3"}, u"late"_s);
    save();
    EXPECT_EQ(bytesOf(u"late"_s), recordWith("One."));
}

TEST_F(NormalSave, AFileNameMayContainAFolder)
{
    QDir().mkdir(u"sub"_s);
    editor.screens().setText({"Form1", "Text3"}, u"sub/mine.tvd"_s);
    write("Text1", "One.");
    save();
    EXPECT_EQ(bytesOf(u"sub/mine.tvd"_s), recordWith("One."));
}

TEST_F(NormalSave, EveryFieldIsWrittenOnItsOwnLine)
{
    QByteArray expected;
    int number = 0;
    auto &commentary = editor.screens().get<Form7>();
    for (const RecordField *field : rowOf(DataFileKind::NormalEndings).format) {
        const QByteArray words = "line " + QByteArray::number(++number);
        QWidget &source = commentary.source(*field);
        const bool isFinisher = source.objectName() == u"Combo7"_s;
        controls::setTextOf(source, isFinisher ? u"Pin"_s : QString::fromLatin1(words));
        expected += (isFinisher ? QByteArray("p") : words) + "\r\n";
    }
    ASSERT_EQ(number, 36);
    save();
    EXPECT_EQ(bytesOf(file()), expected);
}

TEST_F(NormalSave, AnEmptyFirstLineIsRefused)
{
    write("Text2", "Only the second line.");
    boxes.expectNotice(title(), u"You haven't written the match finish!"_s);
    press("Form7", "Command1");
    expectOnly("Form7");
    EXPECT_FALSE(QFile::exists(file()));
    EXPECT_EQ(text("Form7", "Text2"), u"Only the second line."_s);
}

TEST_F(NormalSave, AFirstLineOfOneSpaceIsWritten)
{
    write("Text1", " ");
    save();
    EXPECT_EQ(bytesOf(file()), recordWith(" "));
}

TEST_F(NormalSave, EmptyLinesBetweenAreBlank)
{
    write("Text1", "First.");
    write("Text4", "Fourth.");
    save();
    EXPECT_EQ(bytesOf(file()), kUntouchedDetails + "First.\r\n" + kBlank.repeated(2) +
                                   "Fourth.\r\n" + kBlank.repeated(6));
}

TEST_F(NormalSave, ALineOfSpacesIsWrittenUnchanged)
{
    write("Text1", "First.");
    write("Text2", "  ");
    save();
    EXPECT_EQ(bytesOf(file()), kUntouchedDetails + "First.\r\n  \r\n" + kBlank.repeated(8));
}

TEST_F(NormalSave, AFinisherIsWrittenAsItsCode)
{
    backTo("Form5");
    choose("Form5", "Combo7", u"Top Rope"_s);
    press("Form5", "Command2");
    choose("Form6", "Combo7", u"Submission"_s);
    press("Form6", "Command2");
    write("Text1", "The end.");
    save();
    const QList<QByteArray> lines = bytesOf(file()).split('\n');
    EXPECT_EQ(lines.at(14), QByteArray("t\r"));
    EXPECT_EQ(lines.at(24), QByteArray("s\r"));
    EXPECT_EQ(bytesOf(file()).count("\r\n"), 36);
}

TEST_F(NormalSave, AFinisherTypedInAnotherCaseWritesNoLine)
{
    backTo("Form5");
    type("Form5", "Combo7", u"pin"_s);
    QTest::keyClick(&control("Form5", "Combo7"), Qt::Key_Return);
    QTest::keyClick(&control("Form5", "Combo7"), Qt::Key_Tab);
    press("Form5", "Command2");
    press("Form6", "Command2");
    EXPECT_EQ(text("Form5", "Combo7"), u"pin"_s);
    write("Text1", "The end.");
    save();
    QList<QByteArray> expected = recordWith("The end.").split('\n');
    expected.removeAt(14);
    EXPECT_EQ(bytesOf(file()), expected.join('\n'));
}

TEST_F(NormalSave, ACommaInTheAttackersNameIsWrittenUnchanged)
{
    backTo("Form5");
    type("Form5", "Text2", u"Rocco Vance,Dex Vance"_s);
    press("Form5", "Command2");
    press("Form6", "Command2");
    write("Text1", "The end.");
    save();
    EXPECT_EQ(bytesOf(file()).split('\n').at(6), QByteArray("Rocco Vance,Dex Vance\r"));
}

TEST_F(NormalSave, AManagerNameOfOneSpaceIsWrittenAsASpace)
{
    backTo("Form5");
    type("Form5", "Text1", u" "_s);
    press("Form5", "Command2");
    press("Form6", "Command2");
    write("Text1", "The end.");
    save();
    EXPECT_EQ(bytesOf(file()).split('\n').at(11), QByteArray(" \r"));
}

TEST_F(NormalSave, TextIsWrittenInTheCodePageAndTagsAsInserted)
{
    QWidget &first = control("Form7", "Text1");
    click(first);
    paste(first, u"Caf"_s + QChar(0xE9) + u' ' + QChar(0x20AC));
    choose("Form7", "Combo1", u"Attacker 1 Full Name"_s);
    save();
    EXPECT_EQ(bytesOf(file()), recordWith("Caf\xE9 \x80<att1fullname>"));
}

TEST_F(NormalSave, APastedLineBreakAboveAFilledLineIsOneBlankInTheFile)
{
    click(control("Form7", "Text1"));
    paste(control("Form7", "Text1"), u"One\r\nTwo"_s);
    EXPECT_EQ(text("Form7", "Text1"), u"One"_s);
    type("Form7", "Text2", u"Two"_s);
    type("Form7", "Text1", {});
    paste(control("Form7", "Text1"), u"One\r\nTwo"_s);
    type("Form7", "Text2", {});
    save();
    EXPECT_EQ(bytesOf(file()), recordWith("One Two"));
}

TEST_F(NormalSave, EscapeNoAndCloseWriteNothing)
{
    write("Text1", "The end.");
    for (const Answer answer : {Answer::No, Answer::Escape, Answer::Close}) {
        boxes.expectQuestion(title(), kSaveQuestion, answer);
        press("Form7", "Command1");
        expectOnly("Form7");
        EXPECT_FALSE(QFile::exists(file()));
        EXPECT_EQ(text("Form7", "Text1"), u"The end."_s);
    }
}

TEST_F(NormalSave, EnterSaves)
{
    write("Text1", "The end.");
    boxes.expectQuestion(title(), kSaveQuestion, Answer::Enter);
    boxes.expectNotice(title(), u"Saved OK."_s, Answer::Enter);
    press("Form7", "Command1");
    expectOnly("Form1");
    EXPECT_EQ(bytesOf(file()), recordWith("The end."));
}

TEST_F(NormalSave, ASaveChangesNoControl)
{
    write("Text1", "The end.");
    write("Text3", "Third.");
    editor.screens().setText({"Form5", "Text2"}, u"Rocco Vance"_s);
    editor.screens().setText({"Form4", "Combo4"}, u"DQ"_s);
    save();
    EXPECT_EQ(text("Form7", "Text1"), u"The end."_s);
    EXPECT_EQ(text("Form7", "Text3"), u"Third."_s);
    EXPECT_EQ(text("Form5", "Text2"), u"Rocco Vance"_s);
    EXPECT_EQ(text("Form4", "Combo4"), u"DQ"_s);
}

TEST_F(NormalSave, BackAndNextKeepTheCommentary)
{
    write("Text1", "First.");
    write("Text10", "Tenth.");
    press("Form7", "Command2");
    expectOnly("Form6");
    press("Form6", "Command2");
    expectOnly("Form7");
    EXPECT_EQ(text("Form7", "Text1"), u"First."_s);
    EXPECT_EQ(text("Form7", "Text10"), u"Tenth."_s);
}

TEST_F(NormalSave, EveryControlOfTheRecordIsOnItsScreen)
{
    auto &commentary = editor.screens().get<Form7>();
    for (const RecordField *field : rowOf(DataFileKind::NormalEndings).format) {
        const QWidget &source = commentary.source(*field);
        const QByteArray screen = source.window()->objectName().toLatin1();
        const QByteArray name = source.objectName().toLatin1();
        expectOnItsScreen({screen.constData(), name.constData()});
    }
}

} // namespace
} // namespace tarvold::testing
