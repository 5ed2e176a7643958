#include "support/flow_test.h"
#include "support/hindrances.h"

#include <QDir>

#include <sys/stat.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// A field and its name in the record.
struct Place
{
    ControlRef ref;
    const char *field;
};

/// A flow that ends with a record.
struct FailingFlow
{
    const char *name;
    const FlowPath *flow;
    int lines;
    std::vector<Place> places; ///< on the screens before the commentary
};

void PrintTo(const FailingFlow &row, std::ostream *out)
{
    *out << row.name;
}

const FailingFlow kFailingFlows[] = {
    {"Normal",
     &kNormalPath,
     36,
     {{{"Form4", "Text2"}, "Stipulation"},
      {{"Form4", "Combo4"}, "Match Finish"},
      {{"Form5", "Text2"}, "Attacker(s) Name(s)"},
      {{"Form5", "Text1"}, "Attacker(s) Manager Name"},
      {{"Form6", "Text3"}, "Receiver Stable"}}},
    {"RunIn",
     &kRunInPath,
     44,
     {{{"Form4", "Text2"}, "Stipulation"},
      {{"Form8", "Combo3"}, "Type of Feud"},
      {{"Form8", "Text2"}, "Feuding Wrestler(s)"}}},
    {"Turn",
     &kTurnPath,
     33,
     {{{"Form5", "Text2"}, "Attacker(s) Name(s)"},
      {{"Form10", "Combo1"}, "Wrestler 1 Disposition"},
      {{"Form10", "Combo5"}, "Turning Wrestler(s) Are On"}}},
    {"Interview",
     &kInterviewPath,
     19,
     {{{"Form12", "Combo3"}, "Type of Feud"},
      {{"Form12", "Text2"}, "Side 1 Wrestler Name(s)"},
      {{"Form12", "Text1"}, "Side 2 Wrestler Name(s)"}}},
    {"TalkShow",
     &kTalkShowPath,
     19,
     {{{"Form14", "Text3"}, "Host of Talk Show"},
      {{"Form14", "Combo1"}, "Disposition Of Host"},
      {{"Form14", "Text1"}, "Name of Guest # 2"}}},
};

class SaveFailure : public FlowTest, public ::testing::WithParamInterface<FailingFlow>
{
protected:
    SaveFailure()
    {
        goToCommentary(flow());
        type(m_screen, "Text1", u"The end."_s);
        type(m_screen, "Text9", u"Ninth."_s);
    }

    static const FlowPath &flow() { return *GetParam().flow; }

    void nameFile(const QString &name) { given("Form1", flow().fileBox, name); }

    /// Tries to save, expects a failure of the file, and returns the message.
    QString failedSave()
    {
        QString told;
        boxes.expectQuestion(title(), QLatin1StringView(flow().question), Answer::Yes);
        boxes.catchFailedSave(title(), &told);
        return afterTheSave(told);
    }

    /// The same for a record that no file could hold.
    QString refusedSave()
    {
        QString told;
        boxes.expectQuestion(title(), QLatin1StringView(flow().question), Answer::Yes);
        boxes.catchNotice(title(), &told);
        return afterTheSave(told);
    }

    /// \param told the text of the expected message
    QString afterTheSave(const QString &told)
    {
        press(m_screen, "Command1");
        EXPECT_NE(told, u"Saved OK."_s);
        EXPECT_TRUE(told.contains(u"Nothing was written"_s)) << told.toStdString();
        expectOnly(m_screen);
        return told;
    }

    void expectEverythingKept()
    {
        EXPECT_EQ(text(m_screen, "Text1"), u"The end."_s);
        EXPECT_EQ(text(m_screen, "Text9"), u"Ninth."_s);
    }

    void expectSecondTryWorks(const QString &name)
    {
        nameFile(name);
        save(flow());
        EXPECT_EQ(bytesOf(name).count("\r\n"), GetParam().lines);
        EXPECT_TRUE(bytesOf(name).contains("The end.\r\n"));
    }

    /// Puts a text that the files cannot hold into a field, and expects a message that names it.
    void expectOddTextTold(const Place &place)
    {
        SCOPED_TRACE(place.field);
        const QString before = editor.screens().text(place.ref);
        const QString odd = u"Pawe"_s + QChar(0x0142);
        editor.screens().setText(place.ref, odd);
        const QString told = refusedSave();
        const QString field = u'"' + QString::fromUtf8(place.field) + u'"';
        EXPECT_TRUE(told.contains(field)) << told.toStdString();
        EXPECT_TRUE(told.contains(QString::fromUtf8("\"\xC5\x82\" (U+0142)")))
            << told.toStdString();
        EXPECT_EQ(editor.screens().text(place.ref), odd);
        EXPECT_TRUE(QDir().isEmpty());
        editor.screens().setText(place.ref, before);
    }

    const char *m_screen = flow().screens.back();
};

INSTANTIATE_TEST_SUITE_P(Flows, SaveFailure, ::testing::ValuesIn(kFailingFlows), kNameOfRow);

void expectTold(const QString &told, const char *part)
{
    EXPECT_TRUE(told.contains(QString::fromUtf8(part)))
        << part << " is missing in: " << told.toStdString();
}

TEST_P(SaveFailure, AnEmptyNameIsReported)
{
    nameFile(QString());
    expectTold(failedSave(), "The file name is empty.");
    expectEverythingKept();
    EXPECT_TRUE(QDir().isEmpty());
    expectSecondTryWorks(u"good.tvd"_s);
}

TEST_P(SaveFailure, AMissingFolderIsReportedWithTheFileName)
{
    nameFile(u"missing/mine.tvd"_s);
    const QString told = failedSave();
    expectEverythingKept();
    expectTold(told, "missing/mine.tvd");
    expectTold(told, qPrintable(u"The folder \"%1\" does not exist."_s.arg(
                         QDir::current().absoluteFilePath(u"missing"_s))));
    EXPECT_EQ(told.count(QDir::currentPath()), 1) << told.toStdString();
    EXPECT_TRUE(QDir().isEmpty());
    expectSecondTryWorks(u"good.tvd"_s);
}

TEST_P(SaveFailure, AFolderIsReported)
{
    QDir().mkdir(u"sub"_s);
    nameFile(u"sub"_s);
    const QString told = failedSave();
    expectTold(told, qPrintable(u"\"%1\""_s.arg(QDir::current().filePath(u"sub"_s))));
    expectTold(told, "It is a folder.");
    EXPECT_EQ(told.count(QDir::currentPath()), 1) << told.toStdString();
}

TEST_P(SaveFailure, APipeIsReportedWithoutWaiting)
{
    ASSERT_EQ(::mkfifo("pipe.tvd", 0600), 0);
    nameFile(u"pipe.tvd"_s);
    expectTold(failedSave(), "It is not an ordinary file.");
}

TEST_P(SaveFailure, ANameThatLooksLikeMarkupIsShownAsItIs)
{
    nameFile(u"<b>no</b>/a & b.tvd"_s);
    expectTold(failedSave(), "\"<b>no</b>/a & b.tvd\"");
}

TEST_P(SaveFailure, AFullDiskKeepsTheOldRecords)
{
    const QByteArray old = "old\r\n";
    putBytes(u"old.tvd"_s, old);
    nameFile(u"old.tvd"_s);
    given(m_screen, "Text2", QString(200 * 1024, u'x'));
    {
        const FileSizeLimit limit(64 * 1024);
        expectTold(failedSave(), "old.tvd");
    }
    expectEverythingKept();
    EXPECT_EQ(bytesOf(u"old.tvd"_s), old);
    save(flow());
    EXPECT_EQ(bytesOf(u"old.tvd"_s).count("\r\n"), 1 + GetParam().lines);
}

TEST_P(SaveFailure, ACharacterOutsideTheCodePageIsReportedWithItsField)
{
    for (const Place &place : GetParam().places) {
        expectOddTextTold(place);
    }
    expectOddTextTold({{m_screen, "Text1"}, "Commentary line 1"});
    expectOddTextTold({{m_screen, "Text10"}, "Commentary line 10"});
    expectSecondTryWorks(QLatin1StringView(flow().file));
}

} // namespace
} // namespace tarvold::testing
