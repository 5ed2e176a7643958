#include "controls/combo_box.h"
#include "support/window_test.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QStyleOptionComboBox>

/// Boxes that read "Any", "N/A" or "None", which a user types over: clicks beside the text, from
/// another window, and with the middle button.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class FillWordInAList : public WindowTest
{
public:
    FillWordInAList()
    {
        combo.addItems({u"Any"_s, u"N/A"_s, u"None"_s, u"Apple"_s});
        add(combo);
    }
    ~FillWordInAList() override { combo.setParent(nullptr); }

protected:
    /// Shows a text in the box, which has not the focus.
    void show(const QString &text)
    {
        click(elsewhere);
        combo.setText(text);
    }

    void pressArrow()
    {
        expectReachable(combo);
        QStyleOptionComboBox option;
        option.initFrom(&combo);
        option.editable = true;
        const QRect arrow = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                          QStyle::SC_ComboBoxArrow, &combo);
        QTest::mouseClick(&combo, Qt::LeftButton, {}, arrow.center());
        ASSERT_TRUE(combo.view()->isVisible());
    }

    void closeList()
    {
        QTest::keyClick(combo.view(), Qt::Key_Escape);
        EXPECT_FALSE(combo.view()->isVisible());
        reactivateWindow();
    }

    /// Offscreen, a closed list may become the active window.
    void reactivateWindow()
    {
        QCoreApplication::processEvents();
        window.activateWindow();
        expectActive(window);
    }

    /// Types into the window and expects that this is all that the box holds.
    void expectTypedOver()
    {
        QTest::keyClicks(&combo, u"Luchador"_s);
        EXPECT_EQ(combo.currentText(), u"Luchador"_s);
    }

    ComboBox combo;
};

const char *const kWords[] = {"Any", "N/A", "None"};

TEST_F(FillWordInAList, IsTypedOverAfterALookAtTheList)
{
    for (const char *word : kWords) {
        show(QLatin1StringView(word));
        pressArrow();
        closeList();
        EXPECT_EQ(combo.currentText(), QLatin1StringView(word));
        expectTypedOver();
    }
}

TEST_F(FillWordInAList, IsTypedOverAfterALookAtTheListAndAClick)
{
    show(u"Any"_s);
    pressArrow();
    closeList();
    click(combo);
    EXPECT_EQ(combo.lineEdit()->selectedText(), u"Any"_s);
    click(combo);
    EXPECT_FALSE(combo.lineEdit()->hasSelectedText());
    click(elsewhere);
    pressArrow();
    closeList();
    click(combo);
    expectTypedOver();
}

TEST_F(FillWordInAList, IsTypedOverAfterItsPick)
{
    for (const char *word : kWords) {
        show(u"Apple"_s);
        pick(combo, QLatin1StringView(word));
        reactivateWindow();
        EXPECT_EQ(combo.lineEdit()->selectedText(), QLatin1StringView(word));
        expectTypedOver();
        pickByKeyboard(combo, QLatin1StringView(word));
        reactivateWindow();
        expectTypedOver();
        QTest::keySequence(&combo, QKeySequence::Undo);
        EXPECT_EQ(combo.currentText(), QLatin1StringView(word));
    }
}

TEST_F(FillWordInAList, StaysSelectedWhileTheKeyboardOpensTheList)
{
    for (const char *text : {"Any", "mine"}) {
        show(QLatin1StringView(text));
        QTest::keyClick(window.windowHandle(), Qt::Key_Backtab);
        QTest::keyClick(&combo, Qt::Key_F4);
        closeList();
        EXPECT_EQ(combo.lineEdit()->selectedText(), QLatin1StringView(text));
        expectTypedOver();
    }
}

TEST_F(FillWordInAList, KeepsTheCursorThatWasPlacedInIt)
{
    show(u"None"_s);
    click(combo);
    QTest::keyClick(&combo, Qt::Key_End);
    pressArrow();
    closeList();
    QTest::keyClicks(&combo, u"!"_s);
    EXPECT_EQ(combo.currentText(), u"None!"_s);
}

TEST_F(FillWordInAList, OtherTextsAreNotSelectedByTheArrow)
{
    for (const char *text : {"Apple", "any", "mine"}) {
        show(QLatin1StringView(text));
        pressArrow();
        closeList();
        EXPECT_FALSE(combo.lineEdit()->hasSelectedText());
    }
    pick(combo, u"Apple"_s);
    reactivateWindow();
    EXPECT_FALSE(combo.lineEdit()->hasSelectedText());
}

class FillWordInABox : public WindowTest
{
public:
    FillWordInABox()
    {
        add(box);
        click(elsewhere);
    }
    ~FillWordInABox() override { box.setParent(nullptr); }

protected:
    /// Goes to another window and comes back by a click on the box, as a user who looks something
    /// up there.
    void comeBackByAClick()
    {
        QWidget other;
        other.show();
        expectActive(other);
        other.close();
        expectActive(window);
        click(box);
    }

    TextBox box;
};

TEST_F(FillWordInABox, IsTypedOverAfterAClickFromAnotherWindow)
{
    for (const char *word : kWords) {
        box.setText(QLatin1StringView(word));
        click(elsewhere);
        click(box);
        comeBackByAClick();
        EXPECT_EQ(box.selectedText(), QLatin1StringView(word));
        QTest::keyClicks(&box, u"The Crew"_s);
        EXPECT_EQ(box.text(), u"The Crew"_s);
    }
}

TEST_F(FillWordInABox, KeepsTheCursorThatWasPlacedBeforeAnotherWindow)
{
    box.setText(u"N/A"_s);
    click(box);
    QTest::keyClick(&box, Qt::Key_Home);
    comeBackByAClick();
    EXPECT_FALSE(box.hasSelectedText());
}

TEST_F(FillWordInABox, StaysWhenNothingIsPasted)
{
    QApplication::clipboard()->clear();
    box.setText(u"Any"_s);
    click(box);
    ASSERT_TRUE(box.hasSelectedText());
    QTest::keySequence(&box, QKeySequence::Paste);
    EXPECT_EQ(box.text(), u"Any"_s);
    EXPECT_TRUE(box.hasSelectedText());
}

TEST_F(FillWordInABox, IsReplacedByWhatTheMiddleButtonPastes)
{
    QClipboard &clipboard = *QApplication::clipboard();
    if (QGuiApplication::platformName() == "offscreen"_L1) {
        GTEST_SKIP() << "this platform has no selection to paste with the middle button";
    }
    for (const char *word : kWords) {
        box.setText(QLatin1StringView(word));
        click(elsewhere);
        clipboard.setText(u"Rocco"_s, QClipboard::Selection);
        QTest::mouseClick(&box, Qt::MiddleButton, {}, {8, box.height() / 2});
        EXPECT_EQ(box.text(), u"Rocco"_s);
        QTest::keySequence(&box, QKeySequence::Undo);
        EXPECT_EQ(box.text(), QLatin1StringView(word));
    }
    box.setText(u"Vance"_s);
    click(elsewhere);
    clipboard.setText(u"Rocco"_s, QClipboard::Selection);
    QTest::mouseClick(&box, Qt::MiddleButton, {}, {box.width() - 8, box.height() / 2});
    EXPECT_EQ(box.text(), u"VanceRocco"_s);
}

} // namespace
} // namespace tarvold::testing
