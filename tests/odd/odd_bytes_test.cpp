// Tests of the screens with files that contain unusual bytes and line ends.

#include "import/import_test.h"
#include "stipulations/stipulation_test.h"
#include "support/flow_test.h"

#include <QElapsedTimer>
#include <QRegularExpression>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kHundredMegabytes = 100'000'000;

/// All 256 bytes, in an order without CR LF.
QByteArray everyByte()
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes.append(static_cast<char>(byte));
    }
    return bytes;
}

/// A stipulation in which every free-text line contains every byte.
QByteArray oddStipulation()
{
    OtherLines lines;
    for (const int number : {1, 2, 3, 4, 5, 7, 9, 10, 11, 12, 13, 14, 15, 16, 17, 19}) {
        lines[number] = QByteArray::number(number) + everyByte();
    }
    return stipulation({}, {}, lines);
}

class OddBytesInStipulations : public StipulationTest
{
protected:
    /// Opens a file that is not a stipulation table; returns the message on the menu.
    QString refusal(const QByteArray &bytes)
    {
        writeFile(kFile, bytes);
        QString message;
        boxes.catchNotice(u"Stipulations Editor"_s, &message);
        press("Form1", "Command1");
        expectOnly("Form1");
        EXPECT_EQ(readBack(kFile), bytes);
        return message;
    }

    const QByteArray plain = stipulation("Singles", "Plain");
};

TEST_F(OddBytesInStipulations, AreKeptWhenOthersAreCreatedEditedAndDeleted)
{
    const QByteArray odd = oddStipulation();
    open(odd + plain + odd);
    edit(1);
    put("stipulation", "Edited");
    save();
    EXPECT_EQ(readBack(kFile), odd + stipulation("Singles", "Edited") + odd);
    createNew();
    put("stipulation", "New");
    save();
    EXPECT_EQ(readBack(kFile), odd + stipulation("Singles", "Edited") + odd + untouched("New"));
    remove(1, u"Singles / Edited"_s);
    EXPECT_EQ(readBack(kFile), odd + odd + untouched("New"));
}

TEST_F(OddBytesInStipulations, AreKeptWhenTheirStipulationIsSavedAgain)
{
    open(plain + oddStipulation());
    edit(1);
    save();
    EXPECT_EQ(readBack(kFile), plain + oddStipulation());
}

TEST_F(OddBytesInStipulations, LineFeedsAloneHaveTheirOwnMessage)
{
    QByteArray bytes = plain + plain;
    bytes.replace("\r\n", "\n");
    EXPECT_TRUE(refusal(bytes).contains(u"Its lines do not end with CR LF."_s));
}

TEST_F(OddBytesInStipulations, CarriageReturnsAloneHaveTheirOwnMessage)
{
    QByteArray bytes = plain + plain;
    bytes.replace("\r\n", "\r");
    EXPECT_TRUE(refusal(bytes).contains(u"Its lines end with CR alone, not with CR LF."_s));
}

TEST_F(OddBytesInStipulations, MissingLastLineEndIsAddedWithoutLoss)
{
    QByteArray bytes = plain + stipulation("Singles", "Last");
    bytes.chop(2);
    open(bytes);
    EXPECT_EQ(readBack(kFile), bytes);
    createNew();
    put("stipulation", "New");
    save();
    EXPECT_EQ(readBack(kFile), bytes + "\r\n" + untouched("New"));
}

class HundredMegabytesInALine : public StipulationTest
{
public:
    HundredMegabytesInALine() { m_timer.start(); }
    ~HundredMegabytesInALine() override { EXPECT_LT(m_timer.elapsed(), 120'000); }

protected:
    static QByteArray longLine() { return QByteArray(kHundredMegabytes, 'x'); }

    const QByteArray plain = stipulation("Singles", "Plain");

private:
    QElapsedTimer m_timer;
};

TEST_F(HundredMegabytesInALine, IsRefusedAsAFileOfOneLine)
{
    writeFile(kFile, longLine());
    QString message;
    boxes.catchNotice(u"Stipulations Editor"_s, &message);
    press("Form1", "Command1");
    EXPECT_TRUE(message.contains(u"lines found: 1"_s)) << message.toStdString();
    expectOnly("Form1");
    EXPECT_EQ(QFileInfo(utf8(kFile)).size(), kHundredMegabytes);
}

TEST_F(HundredMegabytesInALine, CanBeListedAndDeletedButNotEdited)
{
    open(stipulation("Singles", longLine()) + plain);
    EXPECT_EQ(listed().front().substr(0, 12), "Singles / xx");
    EXPECT_LT(listed().front().size(), 6000U);
    select(0);
    QString message;
    boxes.catchNotice(u"Stipulations Editor"_s, &message);
    press("Form16", "Command2");
    expectOnly("Form16");
    EXPECT_TRUE(message.startsWith(u"Line 2 of this stipulation has 100000000 characters."_s))
        << message.toStdString();
    QString asked;
    boxes.catchQuestion(u"Delete Stipulation"_s, &asked, Answer::Yes);
    boxes.expectNotice(u"Delete"_s, u"Stipulation Deleted."_s);
    press("Form16", "Command4");
    // As much of it as fits on the display.
    const QRegularExpression question(
        u"^Are you sure you want to permanently delete the match stipulation:\r\n\r\n"
        "Singles / x{200,} \\[\\.\\.\\.\\] x{200,}\r\n$"_s);
    EXPECT_TRUE(question.match(asked).hasMatch()) << asked.toStdString();
    EXPECT_EQ(readBack(kFile), plain);
}

TEST_F(HundredMegabytesInALine, IsKeptWhenAnotherStipulationIsEdited)
{
    const QByteArray odd = stipulation("Singles", "Odd", {{19, longLine()}});
    open(odd + plain);
    edit(1);
    put("stipulation", "Edited");
    save();
    EXPECT_TRUE(readBack(kFile) == odd + stipulation("Singles", "Edited"));
}

class OddBytesAtImport : public ImportTest
{
protected:
    void chooseFiles(const char *kind)
    {
        enter();
        press("Form2", kind);
        select(u"x.tvd"_s);
        type("Form2", "Text1", u"target.tvd"_s);
    }

    void importAll(const char *kind)
    {
        chooseFiles(kind);
        import();
    }

    /// Imports and returns the message about the single duplicate.
    QString duplicateAtImport()
    {
        chooseFiles("Command4");
        QString message;
        boxes.catchNotice(u"Match Duplication"_s, &message);
        import();
        return message;
    }

    QString failedImport(const char *kind)
    {
        chooseFiles(kind);
        QString message;
        boxes.catchNotice(u"Import"_s, &message);
        press("Form2", "Command8");
        expectStage2();
        EXPECT_EQ(folderContent(), "x.tvd");
        return message;
    }
};

TEST_F(OddBytesAtImport, AreCopiedUnchanged)
{
    const QByteArray odd = recordOf(19, QByteArrayList(19, everyByte()));
    writeFile("x.tvd", odd + odd);
    importAll("Command6");
    EXPECT_EQ(readBack("target.tvd"), odd + odd);
}

TEST_F(OddBytesAtImport, AreComparedUnchanged)
{
    const QByteArray odd = oddStipulation();
    writeFile("x.tvd", odd + stipulation("Singles", everyByte()));
    writeFile("target.tvd", odd);
    const QString message = duplicateAtImport();
    EXPECT_TRUE(message.startsWith(u"The combination of match type: 1"_s)) << message.toStdString();
    EXPECT_EQ(readBack("target.tvd"), odd + stipulation("Singles", everyByte()));
}

TEST_F(OddBytesAtImport, LineFeedsAloneHaveTheirOwnMessage)
{
    writeFile("x.tvd", recordOf(19).replace("\r\n", "\n"));
    EXPECT_TRUE(failedImport("Command6").contains(u"Its lines do not end with CR LF."_s));
}

TEST_F(OddBytesAtImport, CarriageReturnsAloneHaveTheirOwnMessage)
{
    writeFile("x.tvd", recordOf(19).replace("\r\n", "\r"));
    EXPECT_TRUE(
        failedImport("Command6").contains(u"Its lines end with CR alone, not with CR LF."_s));
}

TEST_F(OddBytesAtImport, MissingLastLineEndIsAdded)
{
    QByteArray bytes = recordOf(19);
    bytes.chop(2);
    writeFile("x.tvd", bytes);
    importAll("Command6");
    EXPECT_EQ(readBack("target.tvd"), recordOf(19));
}

TEST_F(OddBytesAtImport, EmptySourceCreatesAnEmptyTarget)
{
    writeFile("x.tvd", {});
    importAll("Command4");
    EXPECT_EQ(readBack("target.tvd"), "");
}

TEST_F(OddBytesAtImport, OneLineOfAHundredMegabytesIsRefused)
{
    writeFile("x.tvd", QByteArray(kHundredMegabytes, 'x'));
    EXPECT_TRUE(failedImport("Command4").contains(u"lines found: 1"_s));
}

TEST_F(OddBytesAtImport, ADuplicateKeyOfAHundredMegabytesHasAShortMessage)
{
    const QByteArray odd = stipulation("Singles", QByteArray(kHundredMegabytes, 'x'));
    writeFile("x.tvd", odd);
    writeFile("target.tvd", odd);
    const QString message = duplicateAtImport();
    EXPECT_LT(message.size(), 6000);
    EXPECT_TRUE(message.endsWith(u"already in the file target.tvd so will not be imported."_s));
    EXPECT_EQ(QFileInfo(u"target.tvd"_s).size(), odd.size());
}

using OddBytesAtSave = FlowTest;

TEST_F(OddBytesAtSave, InTheFileAreKeptAndTheRecordIsAppended)
{
    goToCommentary(kInterviewPath);
    type(kInterviewPath.screens.back(), "Text1", u"The end."_s);
    const QByteArray odd = everyByte() + "no line end\r";
    writeFile(kInterviewPath.file, odd);
    save(kInterviewPath);
    const QByteArray after = readBack(kInterviewPath.file);
    EXPECT_EQ(after.first(odd.size()), odd);
    EXPECT_EQ(after.sliced(odd.size()).count("\r\n"), 19);
}

} // namespace
} // namespace tarvold::testing
