#include "controls/text_box.h"
#include "screens/commentary_line.h"
#include "support/tool_tips.h"
#include "support/window_test.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QToolTip>

#include <algorithm>
#include <functional>
#include <memory>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

struct Broken
{
    QString text;
    QString oneLine;
};

/// Texts with every kind of line break, each of which becomes one space.
QList<Broken> brokenTexts()
{
    return {{u"a\r\nb"_s, u"a b"_s},
            {u"a\rb"_s, u"a b"_s},
            {u"a\nb"_s, u"a b"_s},
            {u'a' + QString(QChar(0x2028)) + u'b', u"a b"_s},
            {u'a' + QString(QChar(0x2029)) + u'b', u"a b"_s},
            {u'a' + QString(QChar(0x85)) + u'b', u"a b"_s},
            {u"a\n\r\n\rb"_s, u"a   b"_s},
            {u"\r\na\r\n"_s, u" a "_s}};
}

class TextBoxTest : public WindowTest
{
public:
    TextBoxTest() { add(box); }
    ~TextBoxTest() override { box.setParent(nullptr); }

protected:
    /// Inserts every text with line breaks between "<" and ">", and checks that it becomes one line
    /// and that one undo removes it.
    void expectOneLine(const std::function<void(const QString &)> &insert)
    {
        for (const Broken &row : brokenTexts()) {
            SCOPED_TRACE(::testing::PrintToString(row.text.toUtf8().toPercentEncoding()));
            box.setText(u"<>"_s);
            box.setFocus();
            box.setCursorPosition(1);
            insert(row.text);
            EXPECT_EQ(box.text(), QString(u'<' + row.oneLine + u'>'));
            QTest::keySequence(window.windowHandle(), QKeySequence::Undo);
            EXPECT_EQ(box.text(), u"<>"_s);
        }
    }

    /// The position of the cursor in the box.
    QPoint cursorPlace() const
    {
        return box.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    }

    TextBox box;
};

TEST_F(TextBoxTest, PasteByKeyTurnsLineBreaksIntoSpaces)
{
    expectOneLine([this](const QString &text) { paste(box, text); });
}

TEST_F(TextBoxTest, PasteByShiftInsertTurnsLineBreaksIntoSpaces)
{
    expectOneLine([this](const QString &text) {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(window.windowHandle(), Qt::Key_Insert, Qt::ShiftModifier);
    });
}

TEST_F(TextBoxTest, PasteByTheContextMenuTurnsLineBreaksIntoSpaces)
{
    expectOneLine([this](const QString &text) {
        QApplication::clipboard()->setText(text);
        const std::unique_ptr<QMenu> menu(box.createStandardContextMenu());
        const QList<QAction *> actions = menu->actions();
        const auto found = std::find_if(actions.begin(), actions.end(), [](const QAction *action) {
            return action->text().startsWith(u"&Paste"_s);
        });
        ASSERT_NE(found, actions.end());
        (*found)->trigger();
    });
}

TEST_F(TextBoxTest, PasteByTheMiddleButtonTurnsLineBreaksIntoSpaces)
{
    if (!QApplication::clipboard()->supportsSelection()) {
        GTEST_SKIP() << "this platform has no selection to paste with the middle button";
    }
    expectOneLine([this](const QString &text) {
        QApplication::clipboard()->setText(text, QClipboard::Selection);
        QTest::mouseClick(&box, Qt::MiddleButton, {}, cursorPlace());
    });
}

TEST_F(TextBoxTest, DroppedLineBreaksBecomeSpaces)
{
    expectOneLine([this](const QString &text) {
        QMimeData data;
        data.setText(text);
        const QPoint place = cursorPlace();
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&box, &enter);
        ASSERT_TRUE(enter.isAccepted());
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&box, &drop);
        EXPECT_TRUE(drop.isAccepted());
    });
}

TEST_F(TextBoxTest, LineBreaksInTheTextOfAKeyBecomeSpaces)
{
    expectOneLine([this](const QString &text) {
        // A key whose text starts with a non-printing character types nothing.
        const QString typed = text.front().isPrint() ? text : u' ' + text.mid(2);
        QTest::sendKeyEvent(QTest::Click, window.windowHandle(), Qt::Key_unknown, typed,
                            Qt::NoModifier);
    });
}

TEST_F(TextBoxTest, KeysWithAControlCharacterTypeNothing)
{
    for (const char control : {'\r', '\n', '\t', '\x1b', '\x0b'}) {
        box.setText(u"hello"_s);
        box.setFocus();
        box.selectAll();
        QTest::sendKeyEvent(QTest::Click, window.windowHandle(), Qt::Key_unknown,
                            QString(QLatin1Char(control)), Qt::ControlModifier | Qt::AltModifier);
        EXPECT_EQ(box.text(), u"hello"_s) << int(control);
    }
}

TEST_F(TextBoxTest, LineBreaksFromAnInputMethodBecomeSpaces)
{
    expectOneLine([this](const QString &text) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&box, &event);
    });
}

TEST_F(TextBoxTest, PasteReplacesTheSelection)
{
    box.setText(u"old"_s);
    box.selectAll();
    paste(box, u"new\nest"_s);
    EXPECT_EQ(box.text(), u"new est"_s);
    QTest::keySequence(window.windowHandle(), QKeySequence::Undo);
    EXPECT_EQ(box.text(), u"old"_s);
}

TEST_F(TextBoxTest, UndoingAPasteKeepsWhatWasTypedBefore)
{
    typeOver(box, u"typed "_s);
    paste(box, u"pasted"_s);
    EXPECT_EQ(box.text(), u"typed pasted"_s);
    QTest::keySequence(window.windowHandle(), QKeySequence::Undo);
    EXPECT_EQ(box.text(), u"typed "_s);
}

TEST_F(TextBoxTest, UndoingWhatWasTypedAfterAPasteKeepsThePaste)
{
    box.setText(u"<>"_s);
    box.setCursorPosition(1);
    paste(box, u"pasted"_s);
    QTest::keyClicks(&box, u" typed"_s);
    EXPECT_EQ(box.text(), u"<pasted typed>"_s);
    QTest::keySequence(window.windowHandle(), QKeySequence::Undo);
    EXPECT_EQ(box.text(), u"<pasted>"_s);
}

TEST_F(TextBoxTest, TypingAfterARedoReplacesNothing)
{
    // Qt keeps an impossible selection for a character that was deleted while selected backwards.
    typeOver(box, u"abc"_s);
    QTest::keyClick(&box, Qt::Key_Left, Qt::ShiftModifier);
    QTest::keyClick(&box, Qt::Key_Delete);
    QTest::keySequence(window.windowHandle(), QKeySequence::Undo);
    ASSERT_EQ(box.text(), u"abc"_s);
    QTest::keySequence(window.windowHandle(), QKeySequence::Redo);
    EXPECT_EQ(box.text(), u"ab"_s);
    EXPECT_FALSE(box.hasSelectedText());
    QTest::keyClicks(&box, u"x"_s);
    EXPECT_EQ(box.text(), u"abx"_s);
    QTest::keySequence(window.windowHandle(), QKeySequence::Undo);
    EXPECT_EQ(box.text(), u"ab"_s);
}

TEST_F(TextBoxTest, ARedoPutsTheCursorBehindWhatItBroughtBack)
{
    typeOver(box, u"abc"_s);
    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClick(&box, Qt::Key_End);
    QTest::keyClicks(&box, u"d"_s);
    QTest::keySequence(window.windowHandle(), QKeySequence::Undo);
    QTest::keySequence(window.windowHandle(), QKeySequence::Undo);
    QTest::keySequence(window.windowHandle(), QKeySequence::Redo);
    EXPECT_EQ(box.text(), u"abc"_s);
    EXPECT_EQ(box.cursorPosition(), 3);
    QTest::keyClicks(&box, u"x"_s);
    EXPECT_EQ(box.text(), u"abcx"_s);
}

TEST_F(TextBoxTest, TypingAfterARedoByTheContextMenuReplacesNothing)
{
    typeOver(box, u"One"_s);
    paste(box, u" Two"_s);
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_Delete);
    for (int times = 0; times < 3; ++times) {
        QTest::keySequence(window.windowHandle(), QKeySequence::Undo);
    }
    const std::unique_ptr<QMenu> menu(box.createStandardContextMenu());
    const QList<QAction *> actions = menu->actions();
    for (const QString &expected : {u"One"_s, u"One Two"_s}) {
        for (QAction *action : actions) {
            if (action->text().startsWith(u"&Redo"_s)) {
                action->trigger();
            }
        }
        EXPECT_EQ(box.text(), expected);
        EXPECT_FALSE(box.hasSelectedText());
    }
    QTest::keyClicks(&box, u"!"_s);
    EXPECT_EQ(box.text(), u"One Two!"_s);
}

TEST_F(TextBoxTest, AReadOnlyBoxIgnoresPasteAndInputMethods)
{
    box.setText(u"fixed"_s);
    box.setReadOnly(true);
    paste(box, u"pasted"_s);
    QApplication::clipboard()->setText(u"pasted"_s, QClipboard::Selection);
    QTest::mouseClick(&box, Qt::MiddleButton, {}, cursorPlace());
    QInputMethodEvent event;
    event.setCommitString(u"composed"_s);
    QApplication::sendEvent(&box, &event);
    EXPECT_EQ(box.text(), u"fixed"_s);
}

TEST_F(TextBoxTest, AVeryLongTextIsKeptWhole)
{
    const QString longText = QString(39'999, u'x') + u'!';
    box.setText(longText);
    EXPECT_EQ(box.text(), longText);
    box.clear();
    paste(box, longText);
    EXPECT_EQ(box.text(), longText);
}

TEST_F(TextBoxTest, TabsAndNulsAreKept)
{
    const QString odd = u"a\tb"_s + QChar(0) + u'c';
    box.setText(odd);
    EXPECT_EQ(box.text(), odd);
    box.clear();
    paste(box, odd);
    EXPECT_EQ(box.text(), odd);
}

/// A box beside another one, entered and left as a user does.
class TextBoxFocusTest : public WindowTest
{
public:
    TextBoxFocusTest()
    {
        box.setObjectName(u"Text2"_s);
        add(box);
        window.resize(240, 120);
        click(elsewhere);
    }
    ~TextBoxFocusTest() override { box.setParent(nullptr); }

protected:
    TextBox &shownBox() const { return *window.findChild<TextBox *>(u"Text2"_s); }

    /// The place of the gap before a character.
    QPoint placeOf(int character) const
    {
        const QPoint middle = shownBox().rect().center();
        for (int x = 0; x < shownBox().width(); ++x) {
            if (shownBox().cursorPositionAt({x, middle.y()}) >= character) {
                return {x, middle.y()};
            }
        }
        return {shownBox().width() - 1, middle.y()};
    }

    void clickAt(int character)
    {
        expectReachable(box);
        QTest::mouseClick(&shownBox(), Qt::LeftButton, {}, placeOf(character));
    }

    /// Presses the left button, moves the mouse, and releases the button.
    void drag(const QPoint &from, const QPoint &to)
    {
        expectReachable(box);
        QTest::mousePress(&shownBox(), Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, shownBox().mapToGlobal(to), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(&shownBox(), &move);
        QTest::mouseRelease(&shownBox(), Qt::LeftButton, {}, to);
    }

    void type(const QString &text)
    {
        for (const QChar character : text) {
            QTest::keyClick(window.windowHandle(), character.toLatin1());
        }
    }

    /// Whether the box shows the first characters of its text.
    bool showsBeginning() const
    {
        shownBox().grab(); // QLineEdit scrolls when it is painted
        return shownBox().cursorPositionAt({8, shownBox().rect().center().y()}) <= 1;
    }

    const QString longText = u"Rocco Vance and Dex Vance, who never lost a ladder match"_s;
    TextBox box;
};

const char *const kFillWords[] = {"Any", "N/A", "None"};

TEST_F(TextBoxFocusTest, TheFirstClickSelectsAFillWord)
{
    for (const char *word : kFillWords) {
        SCOPED_TRACE(word);
        box.setText(QLatin1StringView(word));
        click(elsewhere);
        clickAt(2);
        EXPECT_EQ(box.selectedText(), QLatin1StringView(word));
        type(u"Rocco Vance"_s);
        EXPECT_EQ(box.text(), u"Rocco Vance"_s);
        QTest::keySequence(window.windowHandle(), QKeySequence::Undo);
        EXPECT_EQ(box.text(), QLatin1StringView(word));
    }
}

TEST_F(TextBoxFocusTest, ASecondClickPlacesTheCursorInAFillWord)
{
    for (const char *word : kFillWords) {
        SCOPED_TRACE(word);
        box.setText(QLatin1StringView(word));
        click(elsewhere);
        clickAt(1);
        clickAt(1);
        EXPECT_FALSE(box.hasSelectedText());
        EXPECT_EQ(box.cursorPosition(), 1);
    }
}

TEST_F(TextBoxFocusTest, TheFirstClickLeavesAFillWordSelectedThatTheKeyboardSelected)
{
    box.setText(u"Any"_s);
    QTest::keyClick(window.windowHandle(), Qt::Key_Backtab);
    ASSERT_TRUE(box.hasFocus());
    ASSERT_EQ(box.selectedText(), u"Any"_s);
    clickAt(1);
    EXPECT_EQ(box.selectedText(), u"Any"_s);
    clickAt(1);
    EXPECT_FALSE(box.hasSelectedText());
    EXPECT_EQ(box.cursorPosition(), 1);
}

TEST_F(TextBoxFocusTest, AClickPlacesTheCursorInAFillWordThatIsNotSelected)
{
    box.setText(u"Any"_s);
    QTest::keyClick(window.windowHandle(), Qt::Key_Backtab);
    QTest::keyClick(window.windowHandle(), Qt::Key_End);
    clickAt(1);
    EXPECT_FALSE(box.hasSelectedText());
    EXPECT_EQ(box.cursorPosition(), 1);
}

TEST_F(TextBoxFocusTest, AClickPlacesTheCursorInAnyOtherText)
{
    for (const char *text : {"any", "ANY", "Any ", " Any", "NA", "n/a", "Nonee", "Rocco Vance"}) {
        SCOPED_TRACE(text);
        box.setText(QLatin1StringView(text));
        click(elsewhere);
        clickAt(2);
        EXPECT_FALSE(box.hasSelectedText());
        EXPECT_EQ(box.cursorPosition(), 2);
    }
}

TEST_F(TextBoxFocusTest, ADragThatStartsWithTheFirstClickSelectsWhatItPasses)
{
    QFont large = box.font();
    large.setPixelSize(40);
    box.setFont(large);
    box.setText(u"None"_s);
    drag(placeOf(4), placeOf(1));
    EXPECT_EQ(box.selectedText(), u"one"_s);
    click(elsewhere);
    drag(placeOf(0), placeOf(2));
    EXPECT_EQ(box.selectedText(), u"No"_s);
}

TEST_F(TextBoxFocusTest, AHandThatTremblesStillClicks)
{
    box.setText(u"N/A"_s);
    drag(placeOf(1), placeOf(1) + QPoint(4, 2));
    EXPECT_EQ(box.selectedText(), u"N/A"_s);
}

TEST_F(TextBoxFocusTest, ADoubleClickSelectsAFillWordAndOneWordOfAnyOtherText)
{
    box.setText(u"N/A"_s);
    for (int time = 0; time < 2; ++time) {
        QTest::mouseDClick(&box, Qt::LeftButton, {}, placeOf(1));
        EXPECT_EQ(box.selectedText(), u"N/A"_s);
    }
    box.setText(u"Rocco/Dex"_s);
    QTest::mouseDClick(&box, Qt::LeftButton, {}, placeOf(2));
    EXPECT_EQ(box.selectedText(), u"Rocco"_s);
}

TEST_F(TextBoxFocusTest, ARightClickSelectsAFillWordSoThatPasteReplacesIt)
{
    box.setText(u"Any"_s);
    QTest::mouseClick(&box, Qt::RightButton, {}, placeOf(1));
    EXPECT_EQ(box.selectedText(), u"Any"_s);
}

TEST_F(TextBoxFocusTest, ACommentaryLineGetsTheCursorWhateverItReads)
{
    CommentaryLine line;
    window.layout()->addWidget(&line);
    QCoreApplication::processEvents();
    for (const char *word : kFillWords) {
        line.setText(QLatin1StringView(word));
        click(elsewhere);
        click(line);
        EXPECT_FALSE(line.hasSelectedText());
    }
    line.setParent(nullptr);
}

TEST_F(TextBoxFocusTest, TabSelectsAllAndTypingReplacesIt)
{
    for (const QString &text : {u"Any"_s, longText}) {
        for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
            box.setText(text);
            click(elsewhere);
            QTest::keyClick(window.windowHandle(), key);
            ASSERT_TRUE(box.hasFocus());
            EXPECT_EQ(box.selectedText(), text);
            EXPECT_EQ(box.cursorPosition(), text.size());
            type(u"x"_s);
            EXPECT_EQ(box.text(), u"x"_s);
        }
    }
}

TEST_F(TextBoxFocusTest, ABoxThatLosesTheFocusShowsTheBeginning)
{
    const std::function<void()> leaves[] = {
        [this] { QTest::keyClick(window.windowHandle(), Qt::Key_Tab); },
        [this] { QTest::keyClick(window.windowHandle(), Qt::Key_Backtab); },
        [this] { click(elsewhere); },
        [this] { elsewhere.setFocus(Qt::OtherFocusReason); },
    };
    for (const auto &leave : leaves) {
        typeOver(box, longText);
        EXPECT_FALSE(showsBeginning());
        leave();
        ASSERT_FALSE(box.hasFocus());
        EXPECT_TRUE(showsBeginning());
    }
}

TEST_F(TextBoxFocusTest, ATextSetWithoutTheFocusShowsItsBeginning)
{
    box.setText(longText);
    EXPECT_TRUE(showsBeginning());
    window.resize(180, 120);
    QCoreApplication::processEvents();
    EXPECT_TRUE(showsBeginning());
    box.setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(box.cursorPosition(), longText.size());
}

TEST_F(TextBoxFocusTest, ABoxWhoseWindowWasHiddenShowsTheBeginning)
{
    typeOver(box, longText);
    window.hide();
    elsewhere.setFocus(Qt::OtherFocusReason);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(showsBeginning());
}

TEST_F(TextBoxFocusTest, TheCursorIsBackInItsPlaceWithTheFocus)
{
    typeOver(box, longText);
    box.setCursorPosition(40);
    elsewhere.setFocus(Qt::OtherFocusReason);
    box.setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(box.cursorPosition(), 40);
    QTest::keyClick(window.windowHandle(), Qt::Key_Home);
    elsewhere.setFocus(Qt::OtherFocusReason);
    box.setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(box.cursorPosition(), 0);
}

TEST_F(TextBoxFocusTest, AClickPlacesTheCursorInTheBeginningThatIsShown)
{
    typeOver(box, longText);
    click(elsewhere);
    ASSERT_TRUE(showsBeginning());
    clickAt(6);
    EXPECT_EQ(box.cursorPosition(), 6);
    type(u"X"_s);
    EXPECT_TRUE(box.text().startsWith(u"Rocco XVance"_s));
}

TEST_F(TextBoxFocusTest, AnotherWindowMovesNothing)
{
    typeOver(box, longText);
    box.setSelection(50, -20);
    QWidget other;
    other.show();
    expectActive(other);
    EXPECT_EQ(box.cursorPosition(), 30);
    EXPECT_EQ(box.selectionLength(), 20);
    window.activateWindow();
    expectActive(window);
    EXPECT_EQ(box.cursorPosition(), 30);
    EXPECT_EQ(box.selectionLength(), 20);
    box.setSelection(20, -20); // the cursor is at the beginning
    other.activateWindow();
    expectActive(other);
    window.activateWindow();
    expectActive(window);
    EXPECT_EQ(box.selectionLength(), 20);
}

TEST_F(TextBoxFocusTest, UndoAndRedoSurviveLeavingTheBox)
{
    box.setText(u"Any"_s);
    clickAt(1);
    type(longText);
    click(elsewhere);
    box.setFocus(Qt::OtherFocusReason);
    type(u"!"_s);
    click(elsewhere);
    box.setFocus(Qt::OtherFocusReason);
    QTest::keySequence(window.windowHandle(), QKeySequence::Undo);
    EXPECT_EQ(box.text(), longText);
    click(elsewhere);
    box.setFocus(Qt::OtherFocusReason);
    QTest::keySequence(window.windowHandle(), QKeySequence::Undo);
    EXPECT_EQ(box.text(), u"Any"_s);
    click(elsewhere);
    box.setFocus(Qt::OtherFocusReason);
    QTest::keySequence(window.windowHandle(), QKeySequence::Redo);
    EXPECT_EQ(box.text(), longText);
}

TEST_F(TextBoxFocusTest, ATextThatDoesNotFitIsShownWholeInATooltip)
{
    const QString texts[] = {longText, u"<b>bold</b> & <table> "_s + longText,
                             u"a   b  "_s + longText, QString(300, u'w'),
                             u"&amp; "_s.repeated(20).trimmed()};
    for (const QString &text : texts) {
        box.setText(text);
        EXPECT_EQ(toolTipOf(box), text);
    }
}

TEST_F(TextBoxFocusTest, ATextThatFitsHasNoTooltip)
{
    for (const QString &text : {QString(), u"Any"_s, u"<b>bold</b>"_s}) {
        box.setText(text);
        EXPECT_EQ(toolTipOf(box), std::nullopt);
    }
}

TEST_F(TextBoxFocusTest, TheTooltipFollowsTypingAndResizing)
{
    typeOver(box, longText);
    EXPECT_EQ(toolTipOf(box), longText);
    type(u"!"_s);
    EXPECT_EQ(toolTipOf(box), QString(longText + u'!'));
    window.resize(700, 120);
    QCoreApplication::processEvents();
    EXPECT_EQ(toolTipOf(box), std::nullopt);
    window.resize(240, 120);
    QCoreApplication::processEvents();
    EXPECT_EQ(toolTipOf(box), QString(longText + u'!'));
    typeOver(box, u"short"_s);
    EXPECT_EQ(toolTipOf(box), std::nullopt);
}

TEST_F(TextBoxFocusTest, ATooltipComesFromTheFirstCharacterThatIsScrolledAway)
{
    int firstScrolled = 0;
    int firstWithTip = 0;
    box.setFocus();
    for (int length = 1; length < 120 && (firstScrolled == 0 || firstWithTip == 0); ++length) {
        box.setText(QString(length, u'i'));
        if (firstScrolled == 0 && !showsBeginning()) {
            firstScrolled = length;
        }
        if (firstWithTip == 0 && toolTipOf(box)) {
            firstWithTip = length;
        }
    }
    EXPECT_GT(firstWithTip, 10);
    EXPECT_LE(firstWithTip, firstScrolled);
    EXPECT_GE(firstWithTip, firstScrolled - 2);
}

TEST_F(TextBoxFocusTest, ATooltipOfItsOwnIsShownWhileTheTextFits)
{
    box.setToolTip(u"its own"_s);
    box.setText(u"Any"_s);
    EXPECT_EQ(toolTipOf(box), u"its own"_s);
    box.setText(longText);
    EXPECT_EQ(toolTipOf(box), longText);
}

TEST_F(TextBoxFocusTest, ATooltipOfAVeryLongTextFitsTheScreen)
{
    for (const QString &text : {QString(1'000'000, u'w'), u"Vance "_s.repeated(100'000)}) {
        box.setText(text);
        QSize size;
        const auto shown = toolTipOf(box, &size);
        ASSERT_TRUE(shown);
        EXPECT_TRUE(text.startsWith(shown->left(500)));
        EXPECT_LT(size.width(), box.screen()->availableSize().width());
        EXPECT_LT(size.height(), box.screen()->availableSize().height());
    }
}

TEST_F(TextBoxFocusTest, TypingClosesTheTooltip)
{
    typeOver(box, longText);
    QTest::mouseMove(&box, box.rect().center());
    ASSERT_TRUE(QTest::qWaitFor([this] { return box.underMouse(); }));
    askForToolTip(box);
    ASSERT_TRUE(QToolTip::isVisible());
    type(u"!"_s);
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 2000));
}

} // namespace
} // namespace tarvold::testing
