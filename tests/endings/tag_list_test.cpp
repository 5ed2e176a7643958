#include "support/commentary_test.h"
#include "support/mouse.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>

/// The list of tags on each commentary screen: it accepts no typed text, and a pick moves the focus
/// to the line that the tag went into.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class TagLists : public FlowTest, public ::testing::WithParamInterface<const FlowPath *>
{
protected:
    TagLists()
    {
        goToCommentary(flow());
        expectActive(screen(name()));
    }

    static const FlowPath &flow() { return *GetParam(); }
    static const char *name() { return flow().screens.back(); }
    ComboBox &list() { return combo(name(), "Combo1"); }
    QLineEdit &line(const char *line) { return screen(name()).control<QLineEdit>(line); }
    bool isOpen() { return list().view()->isVisible(); }

    /// The current item of the opened list.
    QString found() { return list().view()->currentIndex().data().toString(); }

    /// Presses a key in the opened list, else in the window.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QWidget *popup = QApplication::activePopupWidget();
        QTest::keyClick((popup != nullptr ? popup : &screen(name()))->windowHandle(), key,
                        modifiers);
    }

    void write(const QString &text) { QTest::keyClicks(QApplication::focusWidget(), text); }

    /// Expects that typing continues at the end of this line, the only yellow one.
    void expectWritingIn(const char *line, const QString &text)
    {
        QLineEdit &box = this->line(line);
        EXPECT_TRUE(box.hasFocus()) << QApplication::focusWidget()->objectName().toStdString();
        EXPECT_EQ(box.text(), text);
        EXPECT_EQ(box.cursorPosition(), text.size());
        EXPECT_FALSE(box.hasSelectedText());
        for (int number = 1; number <= 10; ++number) {
            const QByteArray each = "Text" + QByteArray::number(number);
            EXPECT_EQ(this->line(each.constData()).palette().color(QPalette::Base) == kYellow,
                      each == line)
                << each.constData();
        }
    }

    QString firstItem() { return list().itemText(0); }
    QString firstTag() { return text(name(), "hiddenlabel"); }
};

TEST_P(TagLists, AfterAPickByMouseTypingContinuesInTheYellowLine)
{
    type(name(), "Text3", u"By "_s);
    pick(list(), firstItem());
    expectWritingIn("Text3", u"By "_s + firstTag());
    write(u" again"_s);
    expectWritingIn("Text3", u"By "_s + firstTag() + u" again"_s);
}

TEST_P(TagLists, AfterAPickByKeyboardTypingContinuesInTheYellowLine)
{
    type(name(), "Text3", u"By "_s);
    list().setFocus(Qt::TabFocusReason);
    pickByKeyboard(list(), firstItem());
    expectWritingIn("Text3", u"By "_s + firstTag());
}

TEST_P(TagLists, WithoutAYellowLineTheFocusStaysInTheList)
{
    pick(list(), firstItem());
    EXPECT_TRUE(list().hasFocus());
    list().setFocus(Qt::TabFocusReason);
    pickByKeyboard(list(), firstItem());
    EXPECT_TRUE(list().hasFocus());
}

TEST_P(TagLists, AfterEscapeTheFocusStaysWhereItWas)
{
    type(name(), "Text3", u"By "_s);
    list().setFocus(Qt::TabFocusReason);
    key(Qt::Key_Down);
    ASSERT_TRUE(isOpen());
    key(Qt::Key_Escape);
    EXPECT_TRUE(list().hasFocus());
}

TEST_P(TagLists, LeaveTheFocusToTheYellowLineWhenTheScreenIsShownAgain)
{
    EXPECT_TRUE(list().hasFocus());
    type(name(), "Text3", u"By "_s);
    press(name(), "Command2");
    press(flow().screens.end()[-2], "Command2");
    expectActive(screen(name()));
    expectWritingIn("Text3", u"By "_s);
    write(u"himself"_s);
    expectWritingIn("Text3", u"By himself"_s);
}

TEST_P(TagLists, AcceptNoTypedText)
{
    const QString shown = list().currentText();
    list().setFocus(Qt::TabFocusReason);
    QApplication::clipboard()->setText(u"pasted"_s);
    key(Qt::Key_V, Qt::ControlModifier);
    key(Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(list().currentText(), shown);
    for (const Qt::Key each : {Qt::Key_X, Qt::Key_K, Qt::Key_U, Qt::Key_Z}) {
        key(Qt::Key_A, Qt::ControlModifier);
        key(each, Qt::ControlModifier);
        EXPECT_EQ(list().currentText(), shown) << each;
    }
    for (const Qt::Key each : {Qt::Key_Backspace, Qt::Key_Delete}) {
        key(each);
        EXPECT_EQ(list().currentText(), shown) << each;
    }
    EXPECT_FALSE(isOpen());
}

TEST_P(TagLists, AcceptNoTextFromTheMouse)
{
    const QString shown = list().currentText();
    QApplication::clipboard()->setText(u"pasted"_s, QClipboard::Selection);
    mouse::click(mouse::middleOf(list()), Qt::MiddleButton);
    EXPECT_EQ(list().currentText(), shown);
    QMimeData data;
    data.setText(u"dropped"_s);
    const QPoint place(20, 10);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(list().lineEdit(), &enter);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(list().lineEdit(), &drop);
    EXPECT_EQ(list().currentText(), shown);
}

TEST_P(TagLists, AcceptNoTextFromAnInputMethod)
{
    const QString shown = list().currentText();
    EXPECT_FALSE(list().testAttribute(Qt::WA_InputMethodEnabled));
    QInputMethodEvent event;
    event.setCommitString(u"composed"_s);
    QApplication::sendEvent(&list(), &event);
    EXPECT_EQ(list().currentText(), shown);
}

TEST_P(TagLists, ALetterOpensThemAndPicksNothing)
{
    type(name(), "Text3", u"By "_s);
    list().setFocus(Qt::TabFocusReason);
    const QString shown = list().currentText();
    const QString last = list().itemText(list().count() - 1);
    write(last.left(1).toLower());
    ASSERT_TRUE(isOpen());
    EXPECT_TRUE(found().startsWith(last.front()));
    EXPECT_EQ(list().currentText(), shown);
    key(Qt::Key_Escape);
    EXPECT_EQ(list().currentText(), shown);
    EXPECT_EQ(line("Text3").text(), u"By "_s);
    EXPECT_EQ(text(name(), "hiddenlabel"), QString());
}

TEST_P(TagLists, AreComboBoxesWithANameAndAValueForScreenReaders)
{
    const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(&list());
    EXPECT_EQ(spoken->role(), QAccessible::ComboBox);
    EXPECT_EQ(spoken->text(QAccessible::Value), list().currentText());
    EXPECT_EQ(list().accessibleName(), u"Commentary tag"_s);
    EXPECT_TRUE(spoken->state().focusable);
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(list().lineEdit())->state().readOnly);
}

TEST_P(TagLists, ShowAnyTextThatAFlowSets)
{
    for (const char *text : {"Attacker 1 Full Name", "no item", "Tag Team 1"}) {
        given(name(), "Combo1", QLatin1StringView(text));
        EXPECT_EQ(list().currentText(), QLatin1StringView(text));
        EXPECT_EQ(list().lineEdit()->text(), QLatin1StringView(text));
    }
}

INSTANTIATE_TEST_SUITE_P(OfAllScreens, TagLists,
                         ::testing::Values(&kNormalPath, &kRunInPath, &kTurnPath, &kInterviewPath,
                                           &kTalkShowPath),
                         [](const auto &row) { return std::string(row.param->screens.back()); });

/// Keyboard search in the list of tags of normal endings.
class TagSearch : public CommentaryTest
{
protected:
    TagSearch() : CommentaryTest(kNormalPath) { expectActive(screen(m_screen)); }

    ComboBox &list() { return combo(m_screen, "Combo1"); }

    /// The current item after these letters, the first of them typed in the closed list.
    QString foundBy(const QString &letters)
    {
        for (const QChar letter : letters) {
            QWidget *popup = QApplication::activePopupWidget();
            QTest::keyClick((popup != nullptr ? popup : &screen(m_screen))->windowHandle(),
                            letter.toLatin1());
        }
        EXPECT_TRUE(list().view()->isVisible());
        return list().view()->currentIndex().data().toString();
    }

    void leave() { QTest::keyClick(list().view(), Qt::Key_Escape); }
};

TEST_F(TagSearch, LettersSelectTheFirstItemThatStartsWithThem)
{
    const char *const kFound[][2] = {{"rec", "Receiver Full Name"},
                                     {"receiver's s", "Receiver's Stable Name"},
                                     {"T", "Title Name (eg. XWL Title)"},
                                     {"a", "Attacker 1 Full Name"},
                                     {"title o", "Title of Holder (eg. XWL Champion)"}};
    for (const auto &[letters, item] : kFound) {
        for (const char *shown : {"Attacker 1 Full Name", "Receiver Short Name", "no item"}) {
            given(m_screen, "Combo1", QLatin1StringView(shown));
            EXPECT_EQ(foundBy(QLatin1StringView(letters)), QLatin1StringView(item)) << shown;
            leave();
        }
    }
}

TEST_F(TagSearch, ALetterThatNoItemStartsWithOpensTheListAtTheShownItem)
{
    given(m_screen, "Combo1", u"Receiver Short Name"_s);
    EXPECT_EQ(foundBy(u"x"_s), u"Receiver Short Name"_s);
}

TEST_F(TagSearch, EnterPicksTheItemThatTheLettersFound)
{
    typeLine("Text2", u"Pinned: "_s);
    list().setFocus(Qt::TabFocusReason);
    foundBy(u"rec"_s);
    QTest::keyClick(list().view(), Qt::Key_Return);
    EXPECT_EQ(line("Text2"), u"Pinned: <recfullname>"_s);
}

TEST_F(TagSearch, TheSameLettersFindTheSameItemHoweverTheListWasOpened)
{
    const std::pair<Qt::Key, Qt::KeyboardModifiers> openers[] = {
        {Qt::Key_F4, Qt::NoModifier}, {Qt::Key_Down, Qt::AltModifier}, {Qt::Key_Down, {}}};
    for (const auto &[key, modifiers] : openers) {
        for (const char *shown : {"Attacker 1 Full Name", "Receiver's Manager Name", "no item"}) {
            for (const auto &[letters, item] :
                 {std::pair("a", "Attacker 1 Full Name"), std::pair("r", "Receiver Full Name"),
                  std::pair("receiver'", "Receiver's Manager Name")}) {
                given(m_screen, "Combo1", QLatin1StringView(shown));
                list().setFocus(Qt::TabFocusReason);
                QTest::keyClick(&list(), key, modifiers);
                EXPECT_EQ(foundBy(QLatin1StringView(letters)), QLatin1StringView(item)) << shown;
                leave();
            }
        }
    }
}

TEST_F(TagSearch, TheSameLetterAfterAPauseFindsTheNextItem)
{
    given(m_screen, "Combo1", u"Receiver Full Name"_s);
    list().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&list(), Qt::Key_F4);
    for (const char *item :
         {"Attacker 1 Full Name", "Attacker 1 Short Name", "Attacker 2 Full Name"}) {
        EXPECT_EQ(foundBy(u"a"_s), QLatin1StringView(item));
        QTest::qWait(QApplication::keyboardInputInterval() + 50);
    }
}

TEST_F(TagSearch, AnUnknownLetterInTheOpenListLeavesItAtTheShownItem)
{
    given(m_screen, "Combo1", u"Receiver Short Name"_s);
    list().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&list(), Qt::Key_F4);
    EXPECT_EQ(foundBy(u"x"_s), u"Receiver Short Name"_s);
}

class TagMouse : public TagSearch
{
public:
    TagMouse() { QApplication::setDoubleClickInterval(400); }
    ~TagMouse() override { QApplication::setDoubleClickInterval(m_intervalBefore); }

private:
    int m_intervalBefore =
        QApplication::doubleClickInterval(); ///< Qt takes no release for that time
};

TEST_F(TagMouse, AClickOnItsTextOpensTheListAndAnotherClosesIt)
{
    const QPoint place = mouse::middleOf(list());
    mouse::click(place);
    EXPECT_TRUE(list().view()->isVisible());
    mouse::click(place);
    EXPECT_FALSE(list().view()->isVisible());
    expectActive(screen(m_screen));
    EXPECT_TRUE(list().hasFocus());
    EXPECT_EQ(pending(), QString());
}

class TagRefusal : public CommentaryTest
{
protected:
    TagRefusal() : CommentaryTest(kNormalPath) { expectActive(screen(m_screen)); }
};

TEST_F(TagRefusal, FocusesTheYellowLineOnceItsMessageIsClosed)
{
    const QString message =
        u"You have the attacker's manager name as 'N/A' or 'None', which means you "
        "can't involve the attacker's manager in this finish."_s;
    typeLine("Text2", u"By "_s);
    chooseTag("Receiver Full Name");
    for (const Answer answer : {Answer::Ok, Answer::Enter, Answer::Escape, Answer::Close}) {
        const QString before = line("Text2");
        combo(m_screen, "Combo1").setFocus(Qt::TabFocusReason);
        boxes.expectNotice(title(), message, answer);
        chooseTag("Attacker's Manager Name");
        expectActive(screen(m_screen));
        const auto &box = screen(m_screen).control<QLineEdit>("Text2");
        EXPECT_TRUE(box.hasFocus());
        EXPECT_EQ(box.text(), before + u"<recfullname>"_s);
        EXPECT_EQ(box.cursorPosition(), box.text().size());
        EXPECT_FALSE(box.hasSelectedText());
        EXPECT_EQ(box.palette().color(QPalette::Base), kYellow);
    }
}

} // namespace
} // namespace tarvold::testing
