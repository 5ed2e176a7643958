#include "support/ending_test.h"

#include <QDir>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

namespace tarvold::testing {
namespace {

class NormalSaveFailure : public EndingTest
{
protected:
    NormalSaveFailure()
    {
        goTo("Form7");
        type("Form7", "Text1", QStringLiteral("The end."));
        type("Form7", "Text9", QStringLiteral("Ninth."));
    }

    void nameFile(const QString &name) { editor.screens().setText({"Form1", "Text3"}, name); }

    /// Tries to save, expects a failure, and gives what the user is told.
    QString failedSave()
    {
        QString told;
        boxes.expectQuestion(title(), kSaveQuestion, Answer::Yes);
        boxes.catchNotice(title(), &told);
        press("Form7", "Command1");
        EXPECT_NE(told, QStringLiteral("Saved OK."));
        EXPECT_TRUE(told.contains(QStringLiteral("Nothing was written"))) << told.toStdString();
        expectEverythingKept();
        return told;
    }

    void expectEverythingKept()
    {
        expectOnly("Form7");
        EXPECT_EQ(text("Form7", "Text1"), QStringLiteral("The end."));
        EXPECT_EQ(text("Form7", "Text9"), QStringLiteral("Ninth."));
    }

    void expectSecondTryWorks(const QString &name)
    {
        nameFile(name);
        save();
        expectOnly("Form1");
        EXPECT_EQ(bytesOf(name).count("\r\n"), 36);
        EXPECT_TRUE(bytesOf(name).contains("The end.\r\n"));
    }
};

void expectTold(const QString &told, const char *part)
{
    EXPECT_TRUE(told.contains(QString::fromUtf8(part)))
        << part << " is missing in: " << told.toStdString();
}

TEST_F(NormalSaveFailure, AnEmptyNameIsTold)
{
    nameFile(QString());
    expectTold(failedSave(), "The file name is empty.");
    EXPECT_TRUE(QDir().isEmpty());
    expectSecondTryWorks(QStringLiteral("good.tvd"));
}

TEST_F(NormalSaveFailure, AMissingFolderIsToldWithTheFile)
{
    nameFile(QStringLiteral("missing/mine.tvd"));
    const QString told = failedSave();
    expectTold(told, "missing/mine.tvd");
    expectTold(told, "No such file or directory");
    EXPECT_TRUE(QDir().isEmpty());
    expectSecondTryWorks(QStringLiteral("good.tvd"));
}

TEST_F(NormalSaveFailure, AFolderIsTold)
{
    QDir().mkdir(QStringLiteral("sub"));
    nameFile(QStringLiteral("sub"));
    const QString told = failedSave();
    expectTold(told, "\"sub\"");
    expectTold(told, "It is a folder.");
}

TEST_F(NormalSaveFailure, APipeIsToldWithoutWaiting)
{
    ASSERT_EQ(::mkfifo("pipe.tvd", 0600), 0);
    nameFile(QStringLiteral("pipe.tvd"));
    expectTold(failedSave(), "It is not an ordinary file.");
}

TEST_F(NormalSaveFailure, ANameThatLooksLikeMarkupIsShownAsItIs)
{
    nameFile(QStringLiteral("<b>no</b>/a & b.tvd"));
    expectTold(failedSave(), "\"<b>no</b>/a & b.tvd\"");
}

TEST_F(NormalSaveFailure, AFullDiskLeavesTheOldRecords)
{
    QFile old(QStringLiteral("old.tvd"));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write(QByteArray("old\r\n"));
    old.close();
    nameFile(QStringLiteral("old.tvd"));
    type("Form7", "Text2", QStringLiteral("x"));
    editor.screens().setText({"Form7", "Text2"}, QString(200 * 1024, u'x'));

    auto *const oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    rlimit tight = before;
    tight.rlim_cur = 64 * 1024;
    ::setrlimit(RLIMIT_FSIZE, &tight);
    expectTold(failedSave(), "old.tvd");
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, oldHandler);

    EXPECT_EQ(bytesOf(QStringLiteral("old.tvd")), QByteArray("old\r\n"));
    save();
    EXPECT_EQ(bytesOf(QStringLiteral("old.tvd")).count("\r\n"), 37);
}

struct WhereMissing
{
    const char *screen;
    const char *control;
    const char *field;
};

constexpr WhereMissing kPlaces[] = {
    {"Form4", "Text2", "Stipulation"},         {"Form4", "Combo4", "Match Finish"},
    {"Form5", "Text2", "Attacker(s) Name(s)"}, {"Form5", "Text1", "Attacker(s) Manager Name"},
    {"Form6", "Text3", "Receiver Stable"},     {"Form7", "Text1", "Commentary line 1"},
    {"Form7", "Text10", "Commentary line 10"},
};

TEST_F(NormalSaveFailure, ACharacterThatTheFilesCannotHoldIsToldWithItsField)
{
    for (const WhereMissing &place : kPlaces) {
        SCOPED_TRACE(place.field);
        const ControlRef ref = {place.screen, place.control};
        const QString before = editor.screens().text(ref);
        const QString odd = QStringLiteral("Pawe") + QChar(0x0142);
        editor.screens().setText(ref, odd);
        QString told;
        boxes.expectQuestion(title(), kSaveQuestion, Answer::Yes);
        boxes.catchNotice(title(), &told);
        press("Form7", "Command1");
        expectTold(told, qPrintable(QString(u'"' + QLatin1StringView(place.field) + u'"')));
        expectTold(told, "\"\xC5\x82\" (U+0142)");
        expectTold(told, "Nothing was written");
        expectOnly("Form7");
        EXPECT_EQ(editor.screens().text(ref), odd);
        EXPECT_TRUE(QDir().isEmpty());
        editor.screens().setText(ref, before);
    }
    expectSecondTryWorks(QStringLiteral("normreports.tvd"));
}

} // namespace
} // namespace tarvold::testing
