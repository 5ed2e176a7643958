#include "records/records_window.h"
#include "screens/main_menu.h"
#include "support/flow_test.h"

#include <QAction>
#include <QFile>
#include <QMessageBox>
#include <QPointer>
#include <QSignalSpy>

namespace tarvold::testing {

using namespace Qt::StringLiterals;
using records::RecordsWindow;

namespace {

/// The records windows that the editor opens, and its end while they are open.
class EditorWindows : public FlowTest
{
public:
    EditorWindows()
    {
        writeFile("normreports.tvd", kBytes);
        writeFile("interviews.tvd", kBytes);
    }
    ~EditorWindows() override
    {
        // What a test changed is not worth a question.
        qDeleteAll(RecordsWindow::all());
    }
    Q_DISABLE_COPY_MOVE(EditorWindows)

protected:
    /// The windows that the user sees; a closed one is deleted by the event loop.
    static QList<RecordsWindow *> windows()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return RecordsWindow::all();
    }

    void pressKeysOn(const char *name)
    {
        expectActive(screen("Form1"));
        control("Form1", name).setFocus();
        QTest::keyClick(&control("Form1", name), Qt::Key_O, Qt::ControlModifier);
    }

    static QByteArray example(const char *name)
    {
        QFile file(QStringLiteral(TARVOLD_EXAMPLES "/") + QLatin1StringView(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        return file.readAll();
    }

    static RecordsWindow *changed(const QString &name)
    {
        RecordsWindow *window = RecordsWindow::open(name, DataFileKind::NormalEndings);
        auto *duplicate = window->findChild<QAction *>(u"duplicate"_s);
        QCoreApplication::processEvents();
        EXPECT_TRUE(duplicate != nullptr && duplicate->isEnabled());
        duplicate->trigger();
        return window;
    }

    void expectUnsaved(Answer answer)
    {
        boxes.expectUnsaved(title(),
                            u"The file \"normreports.tvd\" has changes that are not saved.\n\n"
                            "Save them before the window closes?"_s,
                            answer);
    }

    /// Clicks a button of the main menu while a question blocks another window.
    void clickBeside(const char *name)
    {
        QTest::mouseClick(&control("Form1", name), Qt::LeftButton);
    }

    static inline const QByteArray kBytes = QByteArray("Any\r\n").repeated(36);
};

TEST_F(EditorWindows, TheKeysOpenTheFileOfTheRow)
{
    writeFile("normreports.tvd", example("normreports.tvd"));
    pressKeysOn("Text3");
    ASSERT_EQ(windows().size(), 1);
    EXPECT_EQ(windows().front()->fileName(), u"normreports.tvd"_s);
    EXPECT_EQ(windows().front()->kind(), DataFileKind::NormalEndings);
    EXPECT_TRUE(windows().front()->isVisible());
    EXPECT_TRUE(screen("Form1").isVisible());
}

TEST_F(EditorWindows, TheKeysDoNothingWithoutAName)
{
    QWidget &box = control("Form1", "Text3");
    box.setFocus();
    QTest::keySequence(&box, QKeySequence::SelectAll);
    QTest::keyClick(&box, Qt::Key_Delete);
    pressKeysOn("Text3");
    EXPECT_TRUE(windows().isEmpty());
}

TEST_F(EditorWindows, EachFileHasOneWindow)
{
    pressKeysOn("Text3");
    pressKeysOn("Command3");
    pressKeysOn("Text6");
    emit editor.screens().get<Form1>().fileDropped(folder.filePath(u"normreports.tvd"_s));
    EXPECT_EQ(windows().size(), 2);
}

TEST_F(EditorWindows, AWindowOffersToWriteASimilarOneWhoeverOpensItAgain)
{
    pressKeysOn("Text3");
    pressKeysOn("Text3");
    const auto *similar = windows().front()->findChild<QAction *>(u"writeSimilar"_s);
    ASSERT_NE(similar, nullptr);
    EXPECT_TRUE(similar->isVisible());
    emit windows().front()->writeSimilarRequested(kBytes, DataFileKind::NormalEndings);
    EXPECT_TRUE(screen("Form4").isVisible());
    EXPECT_FALSE(screen("Form1").isVisible());
}

TEST_F(EditorWindows, ExitClosesThemWithoutAQuestionIfNothingChanged)
{
    const QSignalSpy ended(&editor, &Editor::exitRequested);
    pressKeysOn("Text3");
    pressKeysOn("Text6");
    press("Form1", "Command2");
    EXPECT_EQ(ended.count(), 1);
    EXPECT_TRUE(windows().isEmpty());
}

TEST_F(EditorWindows, ClosingOneLeavesTheEditorAlone)
{
    const QSignalSpy ended(&editor, &Editor::exitRequested);
    pressKeysOn("Text3");
    windows().front()->close();
    EXPECT_TRUE(windows().isEmpty());
    EXPECT_EQ(ended.count(), 0);
    expectOnly("Form1");
}

TEST_F(EditorWindows, CancelKeepsTheProgram)
{
    const QSignalSpy ended(&editor, &Editor::exitRequested);
    changed(u"normreports.tvd"_s);
    expectUnsaved(Answer::Cancel);
    press("Form1", "Command2");
    EXPECT_EQ(ended.count(), 0);
    EXPECT_EQ(windows().size(), 1);
    EXPECT_TRUE(windows().front()->isVisible());
    EXPECT_TRUE(screen("Form1").isVisible());
    EXPECT_EQ(readBack("normreports.tvd"), kBytes);
}

TEST_F(EditorWindows, DiscardEndsTheProgramAndLeavesTheFile)
{
    const QSignalSpy ended(&editor, &Editor::exitRequested);
    changed(u"normreports.tvd"_s);
    expectUnsaved(Answer::Discard);
    screen("Form1").close();
    boxes.checkAllCame();
    EXPECT_EQ(ended.count(), 1);
    EXPECT_TRUE(windows().isEmpty());
    EXPECT_EQ(readBack("normreports.tvd"), kBytes);
}

TEST_F(EditorWindows, SaveEndsTheProgramWithTheChangesInTheFile)
{
    const QSignalSpy ended(&editor, &Editor::exitRequested);
    changed(u"normreports.tvd"_s);
    expectUnsaved(Answer::Save);
    press("Form1", "Command2");
    EXPECT_EQ(ended.count(), 1);
    EXPECT_EQ(readBack("normreports.tvd"), kBytes + kBytes);
}

TEST_F(EditorWindows, ExitWhileAWindowAsksDoesNothing)
{
    const QSignalSpy ended(&editor, &Editor::exitRequested);
    changed(u"normreports.tvd"_s);
    expectUnsaved(Answer::Cancel);
    boxes.beforeItsAnswer([this](QMessageBox &) { clickBeside("Command2"); });
    press("Form1", "Command2");
    EXPECT_EQ(ended.count(), 0);
    EXPECT_EQ(windows().size(), 1);
}

TEST_F(EditorWindows, AWindowThatTellsSomethingIsNotClosed)
{
    const QSignalSpy ended(&editor, &Editor::exitRequested);
    pressKeysOn("Text3");
    const QPointer<RecordsWindow> window = windows().front();
    const QByteArray tooLong = QByteArray(1'000'001, 'a') + kBytes.mid(3);
    QString text;
    boxes.catchNotice(u"Write A Similar One"_s, &text);
    boxes.beforeItsAnswer([&](const QMessageBox &box) {
        window->showMinimized();
        clickBeside("Command2");
        EXPECT_EQ(ended.count(), 0);
        ASSERT_FALSE(window.isNull());
        EXPECT_FALSE(window->isMinimized());
        EXPECT_TRUE(QTest::qWaitFor([&box] { return box.isActiveWindow(); }));
        EXPECT_FALSE(window->close());
    });
    emit window->writeSimilarRequested(tooLong, DataFileKind::NormalEndings);
    ASSERT_EQ(windows().size(), 1);
    press("Form1", "Command2");
    EXPECT_EQ(ended.count(), 1);
}

TEST_F(EditorWindows, AWindowThatAsksComesToTheFront)
{
    RecordsWindow *window = changed(u"normreports.tvd"_s);
    window->showMinimized();
    expectUnsaved(Answer::Cancel);
    boxes.beforeItsAnswer([&](const QMessageBox &box) {
        EXPECT_FALSE(window->isMinimized());
        window->showMinimized();
        clickBeside("Command2");
        EXPECT_FALSE(window->isMinimized()) << "Exit is asked for again";
        EXPECT_TRUE(QTest::qWaitFor([&box] { return box.isActiveWindow(); }));
    });
    press("Form1", "Command2");
    EXPECT_EQ(windows().size(), 1);
}

TEST_F(EditorWindows, WhatTheContentClearlyTellsComesBeforeTheKindOfTheRow)
{
    writeFile("turnreports.tvd", example("interviews.tvd"));
    pressKeysOn("Text5");
    ASSERT_EQ(windows().size(), 1);
    EXPECT_EQ(windows().front()->kind(), DataFileKind::Interviews);
    windows().front()->close();
    ASSERT_TRUE(windows().isEmpty());
    writeFile("turnreports.tvd", {}); // an empty file tells nothing
    pressKeysOn("Text5");
    ASSERT_EQ(windows().size(), 1);
    EXPECT_EQ(windows().front()->kind(), DataFileKind::TurnEndings);
}

TEST_F(EditorWindows, AFlowThatBeganWhileAWindowAskedIsNotLost)
{
    const QSignalSpy ended(&editor, &Editor::exitRequested);
    changed(u"normreports.tvd"_s);
    expectUnsaved(Answer::Discard);
    boxes.beforeItsAnswer([this](QMessageBox &) { clickBeside("Command6"); });
    press("Form1", "Command2");
    EXPECT_EQ(ended.count(), 0);
    expectOnly("Form12");
}

TEST_F(EditorWindows, AFlowThatIsUnderWayKeepsItsFieldsAndItsYellowLine)
{
    goToCommentary(kInterviewPath);
    type("Form13", "Text2", u"Half a line"_s);
    RecordsWindow *window = RecordsWindow::open(u"interviews.tvd"_s, DataFileKind::Interviews);
    QCoreApplication::processEvents();
    window->close();
    windows();
    EXPECT_EQ(text("Form13", "Text2"), u"Half a line"_s);
    EXPECT_EQ(control("Form13", "Text2").palette().color(QPalette::Base), kYellow);
    EXPECT_EQ(screen("Form13").focusWidget(), &control("Form13", "Text2"));
    expectOnly("Form13");
}

} // namespace
} // namespace tarvold::testing
