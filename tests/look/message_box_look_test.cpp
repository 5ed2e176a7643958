#include "look/checks.h"
#include "look/views.h"

#include <QMessageBox>

namespace tarvold::testing {
namespace {

/// The message boxes, over the main menu: they are the same everywhere.
class MessageBoxLookTest : public LookTest
{
protected:
    /// Shows a notice and measures it.
    void expectGoodNotice(const QString &what, const QString &text)
    {
        boxes.expectNotice(title(), text);
        boxes.beforeItsAnswer([&what](QMessageBox &box) { measure(box, what); });
        messagebox::notice(&shown(), title(), text);
        boxes.checkAllCame();
    }

    static void measure(QMessageBox &box, const QString &what)
    {
        expectActive(box);
        const Scene scene = sceneOf(box, what);
        checks::expectReadable(scene);
        checks::expectVisibleControls(scene);
        checks::expectFocusMarks(scene);
        checks::expectLargeTargets(scene);
        checks::expectNothingCut(scene);
        checks::expectAllOnScreen(scene);
        checks::expectNoOverlaps(scene);
    }
};

} // namespace

TEST_P(MessageBoxLookTest, AShortNoticeIsGood)
{
    expectGoodNotice(QStringLiteral("short notice"), QStringLiteral("Saved OK."));
}

TEST_P(MessageBoxLookTest, ANoticeOfSomeSentencesIsGood)
{
    expectGoodNotice(QStringLiteral("long notice"),
                     QStringLiteral("The file can't be written, and nothing of it was changed. ")
                         .repeated(8)
                         .trimmed());
}

TEST_P(MessageBoxLookTest, ANoticeOfALongNameIsGood)
{
    expectGoodNotice(QStringLiteral("notice with a long name"),
                     QStringLiteral("There is no file ") + QString(240, u'w') + u'.');
}

TEST_P(MessageBoxLookTest, TheLongestNoticeIsGood)
{
    // A small display shows its beginning and its end.
    const QString sentence = QStringLiteral("A line of the file that somebody wrote ");
    QString told;
    boxes.catchNotice(title(), &told);
    boxes.beforeItsAnswer([](QMessageBox &box) { measure(box, QStringLiteral("longest notice")); });
    messagebox::notice(&shown(), title(), sentence.repeated(125));
    boxes.checkAllCame();
    EXPECT_TRUE(told.startsWith(sentence.repeated(3)));
    EXPECT_TRUE(told.endsWith(sentence.repeated(3)));
}

TEST_P(MessageBoxLookTest, AFailedSaveIsGood)
{
    const QString text =
        QStringLiteral("The file \"%1\" could not be written.\n\nPermission denied\n\nNothing was "
                       "written, and everything that you typed is still here.");
    for (const QString &name : {QStringLiteral("x.tvd"), QString(240, u'w')}) {
        boxes.expectFailedSave(title(), text.arg(name));
        boxes.beforeItsAnswer(
            [](QMessageBox &box) { measure(box, QStringLiteral("failed save")); });
        messagebox::offer(&shown(), title(), text.arg(name),
                          QStringLiteral("&Save To Another File..."));
        boxes.checkAllCame();
    }
}

TEST_P(MessageBoxLookTest, AQuestionIsGood)
{
    const QString text = QStringLiteral("This will return you to the main menu and lose any "
                                        "changes you haven't saved. Continue?");
    boxes.expectQuestion(title(), text, Answer::No);
    boxes.beforeItsAnswer([](QMessageBox &box) { measure(box, QStringLiteral("question")); });
    messagebox::question(&shown(), title(), text, messagebox::EnterMeans::No);
    boxes.checkAllCame();
}

INSTANTIATE_TEST_SUITE_P(All, MessageBoxLookTest, ::testing::ValuesIn(looksOf({"Form1"})), nameOf);

} // namespace tarvold::testing
