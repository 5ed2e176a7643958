#include "controls/combo_box.h"
#include "support/tool_tips.h"
#include "support/window_test.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QSignalSpy>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class ComboBoxTest : public WindowTest
{
public:
    ComboBoxTest()
    {
        combo.addItems({u"Any"_s, u"Apple"_s, u"Apple Pie"_s});
        add(combo);
    }
    // Keeps the window from deleting a control that the fixture owns.
    ~ComboBoxTest() override { combo.setParent(nullptr); }

protected:
    bool isOpen() const { return combo.view()->isVisible(); }

    /// Offscreen, a closed list may become the active window.
    void reactivateWindow()
    {
        QCoreApplication::processEvents();
        window.activateWindow();
        expectActive(window);
    }

    void undo() { QTest::keyClick(&combo, Qt::Key_Z, Qt::ControlModifier); }
    void redo() { QTest::keyClick(&combo, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

    void typeIn(const QString &text) { typeOver(combo, text); }

    ComboBox combo;
    QSignalSpy chosen{&combo, &ComboBox::chosen};
};

const char *const kTyped[] = {"apple", "ap", "APPLE", "Apple", "something of my own", " Any", ""};

TEST_F(ComboBoxTest, TypedTextStaysAfterTab)
{
    for (const char *typed : kTyped) {
        SCOPED_TRACE(typed);
        typeIn(QLatin1StringView(typed));
        QTest::keyClick(&combo, Qt::Key_Tab);
        EXPECT_TRUE(elsewhere.hasFocus());
        EXPECT_EQ(combo.currentText(), QLatin1StringView(typed));
    }
    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(ComboBoxTest, TypedTextStaysAfterEnter)
{
    for (const char *typed : kTyped) {
        SCOPED_TRACE(typed);
        typeIn(QLatin1StringView(typed));
        QTest::keyClick(&combo, Qt::Key_Return);
        QTest::keyClick(&combo, Qt::Key_Enter);
        EXPECT_EQ(combo.currentText(), QLatin1StringView(typed));
    }
    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(ComboBoxTest, TypedTextStaysAfterAClickElsewhere)
{
    for (const char *typed : kTyped) {
        SCOPED_TRACE(typed);
        typeIn(QLatin1StringView(typed));
        click(elsewhere);
        EXPECT_TRUE(elsewhere.hasFocus());
        EXPECT_EQ(combo.currentText(), QLatin1StringView(typed));
    }
    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(ComboBoxTest, TypingAddsNoItems)
{
    typeIn(u"mine"_s);
    QTest::keyClick(&combo, Qt::Key_Return);
    QTest::keyClick(&combo, Qt::Key_Tab);
    EXPECT_EQ(combo.count(), 3);
}

TEST_F(ComboBoxTest, AKeyDeliveredTwiceIsOneChoice)
{
    // With a screen reader, Qt delivers each key before and after asking the accessibility bus.
    QTest::keyClick(&combo, Qt::Key_Down);
    ASSERT_TRUE(isOpen());
    for (int time = 0; time < 2; ++time) {
        QKeyEvent enter(QEvent::ShortcutOverride, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(combo.view(), &enter);
    }
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(chosen.count(), 1);
    QTest::keyClick(&combo, Qt::Key_Down);
    QTest::keyClick(combo.view(), Qt::Key_Return);
    EXPECT_EQ(chosen.count(), 2);
}

TEST_F(ComboBoxTest, PickingByMouseIsAChoice)
{
    QString shownThen;
    QObject::connect(&combo, &ComboBox::chosen, &combo, [&] { shownThen = combo.currentText(); });
    pick(combo, u"Apple"_s);
    EXPECT_EQ(chosen.count(), 1);
    EXPECT_EQ(shownThen, u"Apple"_s);
    EXPECT_FALSE(isOpen());
}

TEST_F(ComboBoxTest, PickingByKeyboardIsAChoice)
{
    QString shownThen;
    QObject::connect(&combo, &ComboBox::chosen, &combo, [&] { shownThen = combo.currentText(); });
    pickByKeyboard(combo, u"Apple Pie"_s);
    EXPECT_EQ(chosen.count(), 1);
    EXPECT_EQ(shownThen, u"Apple Pie"_s);
    EXPECT_FALSE(isOpen());
}

TEST_F(ComboBoxTest, PickingTheShownItemIsAChoice)
{
    pick(combo, u"Apple"_s);
    pick(combo, u"Apple"_s);
    pickByKeyboard(combo, u"Apple"_s);
    EXPECT_EQ(chosen.count(), 3);
    EXPECT_EQ(combo.currentText(), u"Apple"_s);
}

TEST_F(ComboBoxTest, PickingReplacesTypedText)
{
    typeIn(u"apple"_s);
    pick(combo, u"Apple"_s);
    EXPECT_EQ(chosen.count(), 1);
    EXPECT_EQ(combo.currentText(), u"Apple"_s);
}

TEST_F(ComboBoxTest, TypingAnItemAfterAPickIsNotAChoice)
{
    pick(combo, u"Any"_s);
    typeIn(u"Apple"_s);
    QTest::keyClick(&combo, Qt::Key_Return);
    QTest::keyClick(&combo, Qt::Key_Tab);
    EXPECT_EQ(combo.currentText(), u"Apple"_s);
    EXPECT_EQ(chosen.count(), 1);
}

TEST_F(ComboBoxTest, EscapeInTheListIsNotAChoiceAndKeepsTypedText)
{
    for (const char *typed : kTyped) {
        SCOPED_TRACE(typed);
        typeIn(QLatin1StringView(typed));
        QTest::keyClick(&combo, Qt::Key_F4);
        ASSERT_TRUE(isOpen());
        QTest::keyClick(combo.view(), Qt::Key_Down);
        QTest::keyClick(combo.view(), Qt::Key_Escape);
        EXPECT_FALSE(isOpen());
        EXPECT_EQ(combo.currentText(), QLatin1StringView(typed));
    }
    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(ComboBoxTest, OpeningTheListKeepsTypedText)
{
    for (const char *typed : kTyped) {
        SCOPED_TRACE(typed);
        typeIn(QLatin1StringView(typed));
        combo.showPopup();
        EXPECT_EQ(combo.currentText(), QLatin1StringView(typed));
        combo.hidePopup();
        EXPECT_EQ(combo.currentText(), QLatin1StringView(typed));
    }
    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(ComboBoxTest, TheListOpensOnTheShownItem)
{
    typeIn(u"Apple"_s);
    combo.showPopup();
    EXPECT_EQ(combo.view()->currentIndex().row(), 1);
}

TEST_F(ComboBoxTest, TheFirstLetterInTheListSearchesFromTheTop)
{
    for (const char *shown : {"Any", "Apple", "Apple Pie", "mine"}) {
        SCOPED_TRACE(shown);
        combo.setText(QLatin1StringView(shown));
        QTest::keyClick(&combo, Qt::Key_F4);
        QTest::keyClick(combo.view(), Qt::Key_A);
        EXPECT_EQ(combo.view()->currentIndex().row(), 0);
        QTest::keyClick(combo.view(), Qt::Key_P);
        EXPECT_EQ(combo.view()->currentIndex().row(), 1);
        QTest::keyClick(combo.view(), Qt::Key_Escape);
        EXPECT_EQ(combo.currentText(), QLatin1StringView(shown));
        reactivateWindow();
    }
    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(ComboBoxTest, WheelTurnsChangeNothing)
{
    for (QWidget *focused : {static_cast<QWidget *>(&combo), static_cast<QWidget *>(&elsewhere)}) {
        SCOPED_TRACE(focused == &combo ? "with the focus" : "without the focus");
        for (QWidget *target :
             {static_cast<QWidget *>(&combo), static_cast<QWidget *>(combo.lineEdit())}) {
            focused->setFocus();
            combo.setText(u"Apple"_s);
            turnWheel(*target, -1);
            EXPECT_EQ(combo.currentText(), u"Apple"_s);
            turnWheel(*target, 1);
            EXPECT_EQ(combo.currentText(), u"Apple"_s);
        }
    }
    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(ComboBoxTest, TabAndClicksFocusItButTheWheelDoesNot)
{
    EXPECT_EQ(combo.focusPolicy(), Qt::StrongFocus);
    EXPECT_FALSE(combo.lineEdit()->focusPolicy() & ~Qt::StrongFocus);
}

TEST_F(ComboBoxTest, OtherKeysOnAClosedListChangeNothing)
{
    for (const char *shown : {"Apple", "ap"}) {
        combo.setText(QLatin1StringView(shown));
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home,
                                  Qt::Key_End, Qt::Key_Left, Qt::Key_Right}) {
            SCOPED_TRACE(key);
            QTest::keyClick(&combo, key);
            EXPECT_EQ(combo.currentText(), QLatin1StringView(shown));
            EXPECT_FALSE(isOpen());
        }
    }
    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(ComboBoxTest, DownF4AndAltDownOpenTheList)
{
    struct Opener
    {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
    };
    for (const Opener &opener :
         {Opener{Qt::Key_Down, Qt::NoModifier}, Opener{Qt::Key_F4, Qt::NoModifier},
          Opener{Qt::Key_Down, Qt::AltModifier}}) {
        SCOPED_TRACE(opener.key);
        combo.setText(u"Apple"_s);
        QTest::keyClick(&combo, opener.key, opener.modifiers);
        EXPECT_TRUE(isOpen());
        EXPECT_EQ(combo.currentText(), u"Apple"_s);
        QTest::keyClick(combo.view(), Qt::Key_Escape);
        EXPECT_FALSE(isOpen());
    }
    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(ComboBoxTest, OpeningAndClosingTheListKeepsTheUndoHistory)
{
    typeIn(u"My own"_s);
    for (const Qt::Key key : {Qt::Key_F4, Qt::Key_Escape}) {
        QTest::keyClick(isOpen() ? static_cast<QWidget *>(combo.view()) : &combo, key);
    }
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(combo.currentText(), u"My own"_s);
    EXPECT_TRUE(combo.lineEdit()->isUndoAvailable());
}

TEST_F(ComboBoxTest, F4WithAModifierDoesNotOpenTheList)
{
    for (const Qt::KeyboardModifier modifier :
         {Qt::AltModifier, Qt::ControlModifier, Qt::ShiftModifier, Qt::MetaModifier}) {
        SCOPED_TRACE(modifier);
        QTest::keyClick(&combo, Qt::Key_F4, modifier);
        EXPECT_FALSE(isOpen());
    }
}

TEST_F(ComboBoxTest, UndoAfterAPickRestoresTypedTextAndRedoThePick)
{
    int picks = 0;
    for (const auto &pickBy : {pick, pickByKeyboard}) {
        for (const char *typed : {"something of my own", "Any", "x"}) {
            SCOPED_TRACE(typed);
            typeIn(QLatin1StringView(typed));
            pickBy(combo, u"Apple"_s);
            reactivateWindow();
            EXPECT_EQ(combo.currentText(), u"Apple"_s);
            EXPECT_EQ(combo.currentIndex(), 1);
            undo();
            EXPECT_EQ(combo.currentText(), QLatin1StringView(typed));
            EXPECT_EQ(combo.currentIndex(), combo.findText(QLatin1StringView(typed)));
            redo();
            EXPECT_EQ(combo.currentText(), u"Apple"_s);
            EXPECT_EQ(combo.currentIndex(), 1);
            EXPECT_EQ(chosen.count(), ++picks);
        }
    }
}

TEST_F(ComboBoxTest, EveryPickAndTheTypingBetweenIsOneUndoStep)
{
    combo.setText(u"Any"_s);
    QTest::keyClick(&combo, Qt::Key_End);
    QTest::keyClicks(&combo, u" one"_s);
    pickByKeyboard(combo, u"Apple"_s);
    pickByKeyboard(combo, u"Apple"_s); // changes nothing, so adds no undo step
    QTest::keyClicks(&combo, u" two"_s);
    pickByKeyboard(combo, u"Apple Pie"_s);
    const QStringList steps = {u"Any"_s, u"Any one"_s, u"Apple"_s, u"Apple two"_s, u"Apple Pie"_s};
    for (qsizetype step = steps.size() - 1; step > 0; --step) {
        EXPECT_EQ(combo.currentText(), steps[step]);
        undo();
    }
    EXPECT_FALSE(combo.lineEdit()->isUndoAvailable());
    for (const QString &step : steps) {
        EXPECT_EQ(combo.currentText(), step);
        EXPECT_EQ(combo.currentIndex(), combo.findText(step));
        redo();
    }
}

TEST_F(ComboBoxTest, SettingATextCannotBeUndone)
{
    for (const char *text : {"Apple", "Any", "not in the list"}) {
        SCOPED_TRACE(text);
        typeIn(u"mine"_s);
        pick(combo, u"Any"_s);
        combo.setText(QLatin1StringView(text));
        EXPECT_FALSE(combo.lineEdit()->isUndoAvailable());
        undo();
        redo();
        EXPECT_EQ(combo.currentText(), QLatin1StringView(text));
    }
}

TEST_F(ComboBoxTest, TheIndexFollowsTheTextAndIsMinusOneForOtherTexts)
{
    for (const char *typed : kTyped) {
        SCOPED_TRACE(typed);
        pick(combo, u"Apple Pie"_s);
        typeIn(QLatin1StringView(typed));
        const int row = combo.findText(QLatin1StringView(typed), Qt::MatchExactly);
        EXPECT_EQ(combo.currentIndex(), row);
        QTest::keyClick(&combo, Qt::Key_Return);
        QTest::keyClick(&combo, Qt::Key_Tab);
        EXPECT_EQ(combo.currentIndex(), row);
        EXPECT_EQ(combo.currentText(), QLatin1StringView(typed));
    }
}

TEST_F(ComboBoxTest, MissingPickSignalEndsTheProgramWithAMessage)
{
    QWidget other; // not Qt's popup container, so it lacks the signal
    combo.view()->setParent(&other);
    EXPECT_DEATH(combo.showPopup(), "has no signal itemSelected\\(\\) of a combo box's list");
}

TEST_F(ComboBoxTest, SettingATextIsNotAChoice)
{
    for (const char *text : {"Apple", "Apple Pie", "not in the list", "", "apple"}) {
        SCOPED_TRACE(text);
        combo.setText(QLatin1StringView(text));
        EXPECT_EQ(combo.currentText(), QLatin1StringView(text));
        QTest::keyClick(&combo, Qt::Key_Return);
        EXPECT_EQ(combo.currentText(), QLatin1StringView(text));
    }
    EXPECT_EQ(chosen.count(), 0);
    EXPECT_EQ(combo.count(), 3);
}

TEST_F(ComboBoxTest, PastedLineBreaksBecomeSpaces)
{
    typeIn(QString());
    paste(combo, u"one\r\ntwo"_s);
    EXPECT_EQ(combo.currentText(), u"one two"_s);
}

TEST_F(ComboBoxTest, TheFirstClickSelectsAFillWord)
{
    for (const char *word : {"Any", "N/A", "None"}) {
        SCOPED_TRACE(word);
        combo.setText(QLatin1StringView(word));
        click(elsewhere);
        click(combo);
        EXPECT_EQ(combo.lineEdit()->selectedText(), QLatin1StringView(word));
        QTest::keyClicks(&combo, u"mine"_s);
        EXPECT_EQ(combo.currentText(), u"mine"_s);
        combo.setText(QLatin1StringView(word));
        click(elsewhere);
        click(combo);
        click(combo);
        EXPECT_FALSE(combo.lineEdit()->hasSelectedText());
    }
    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(ComboBoxTest, AClickPlacesTheCursorInAnyOtherText)
{
    for (const char *text : {"Apple", "any", "NA"}) {
        SCOPED_TRACE(text);
        combo.setText(QLatin1StringView(text));
        click(elsewhere);
        click(combo);
        EXPECT_FALSE(combo.lineEdit()->hasSelectedText());
    }
}

TEST_F(ComboBoxTest, ASecondClickAfterThePickOfAFillWordPlacesTheCursor)
{
    click(elsewhere);
    pick(combo, u"Any"_s);
    reactivateWindow();
    ASSERT_TRUE(combo.hasFocus());
    click(combo);
    EXPECT_EQ(combo.lineEdit()->selectedText(), u"Any"_s);
    click(combo);
    EXPECT_FALSE(combo.lineEdit()->hasSelectedText());
}

TEST_F(ComboBoxTest, TabSelectsAll)
{
    for (const char *text : {"Any", "mine"}) {
        combo.setText(QLatin1StringView(text));
        click(elsewhere);
        QTest::keyClick(window.windowHandle(), Qt::Key_Backtab);
        ASSERT_TRUE(combo.hasFocus());
        EXPECT_EQ(combo.lineEdit()->selectedText(), QLatin1StringView(text));
    }
}

TEST_F(ComboBoxTest, WithoutTheFocusItShowsTheBeginning)
{
    const QString longText = u"a text that is much longer than the box "_s.repeated(3).trimmed();
    QLineEdit &box = *combo.lineEdit();
    const auto showsBeginning = [&box] {
        box.grab(); // QLineEdit scrolls when it is painted
        return box.cursorPositionAt({8, box.rect().center().y()}) <= 1;
    };
    window.resize(240, 120);
    typeIn(longText);
    EXPECT_FALSE(showsBeginning());
    QTest::keyClick(window.windowHandle(), Qt::Key_F4); // the list takes the focus and returns it
    QTest::keyClick(combo.view(), Qt::Key_Escape);
    reactivateWindow();
    EXPECT_EQ(box.cursorPosition(), longText.size());
    QTest::keyClick(&combo, Qt::Key_Tab);
    EXPECT_TRUE(showsBeginning());
    combo.setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(box.cursorPosition(), longText.size());
    undo();
    EXPECT_NE(combo.currentText(), longText);
    elsewhere.setFocus();
    combo.setText(longText + u"set"_s);
    EXPECT_TRUE(showsBeginning());
}

TEST_F(ComboBoxTest, ATextThatDoesNotFitIsShownWholeInATooltip)
{
    const QString longText = u"<b>longer</b> than the box "_s.repeated(5).trimmed();
    window.resize(240, 120);
    QCoreApplication::processEvents();
    combo.setToolTip(u"its own"_s);
    for (QWidget *target :
         {static_cast<QWidget *>(combo.lineEdit()), static_cast<QWidget *>(&combo)}) {
        combo.setText(longText);
        EXPECT_EQ(toolTipOf(*target), longText);
        combo.setText(u"Apple"_s);
        EXPECT_EQ(toolTipOf(*target), u"its own"_s);
    }
}

} // namespace
} // namespace tarvold::testing
