#include "look/checks.h"
#include "look/views.h"

#include <QMessageBox>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// Message boxes, shown over the main menu, as they look the same everywhere.
class MessageBoxLookTest : public LookTest
{
protected:
    /// Shows a notice and runs all checks on it.
    void checkNotice(const QString &what, const QString &text)
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

TEST_P(MessageBoxLookTest, AShortNoticeLooksRight)
{
    checkNotice(u"short notice"_s, u"Saved OK."_s);
}

TEST_P(MessageBoxLookTest, ANoticeOfSeveralSentencesLooksRight)
{
    checkNotice(
        u"long notice"_s,
        u"The file can't be written, and nothing of it was changed. "_s.repeated(8).trimmed());
}

TEST_P(MessageBoxLookTest, ANoticeWithALongNameLooksRight)
{
    checkNotice(u"notice with a long name"_s, u"There is no file "_s + QString(240, u'w') + u'.');
}

TEST_P(MessageBoxLookTest, TheLongestNoticeLooksRight)
{
    // On a small display only the beginning and the end are shown.
    const QString sentence = u"A line of the file that somebody wrote "_s;
    QString message;
    boxes.catchNotice(title(), &message);
    boxes.beforeItsAnswer([](QMessageBox &box) { measure(box, u"longest notice"_s); });
    messagebox::notice(&shown(), title(), sentence.repeated(125));
    boxes.checkAllCame();
    EXPECT_TRUE(message.startsWith(sentence.repeated(3)));
    EXPECT_TRUE(message.endsWith(sentence.repeated(3)));
}

TEST_P(MessageBoxLookTest, AFailedSaveLooksRight)
{
    const QString text = u"The file \"%1\" could not be written.\n\nYou have no permission to "
                         u"write to the file.\n\nNothing was "
                         "written, and everything that you typed is still here."_s;
    for (const QString &name : {u"x.tvd"_s, QString(240, u'w')}) {
        boxes.expectFailedSave(title(), text.arg(name));
        boxes.beforeItsAnswer([](QMessageBox &box) { measure(box, u"failed save"_s); });
        messagebox::offer(&shown(), title(), text.arg(name), u"&Save To Another File..."_s);
        boxes.checkAllCame();
    }
}

TEST_P(MessageBoxLookTest, AQuestionLooksRight)
{
    const QString text = u"This will return you to the main menu and lose any "
                         "changes you haven't saved. Continue?"_s;
    boxes.expectQuestion(title(), text, Answer::No);
    boxes.beforeItsAnswer([](QMessageBox &box) { measure(box, u"question"_s); });
    messagebox::question(&shown(), title(), text, messagebox::EnterMeans::No);
    boxes.checkAllCame();
}

INSTANTIATE_TEST_SUITE_P(All, MessageBoxLookTest, ::testing::ValuesIn(looksOf({"Form1"})), nameOf);

} // namespace tarvold::testing
