#include "controls/linked_edits.h"
#include "controls/text_box.h"
#include "support/print.h"

#include <QTest>

#include <gtest/gtest.h>

/// Edits of several text boxes at once. How authors use them is tested with the commentary.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kLeader = LinkedEdits::Bond::Leader;
constexpr auto kWhole = LinkedEdits::Bond::Whole;

class LinkedEditsTest : public ::testing::Test
{
protected:
    /// Puts texts into both boxes, as one edit.
    void fill(LinkedEdits::Bond bond, const QString &text, const QString &otherText)
    {
        edits.make(bond, {{&box, 0, static_cast<int>(box.text().size()), text},
                          {&other, 0, static_cast<int>(other.text().size()), otherText}});
    }

    void expectTexts(const QString &text, const QString &otherText)
    {
        EXPECT_EQ(box.text(), text);
        EXPECT_EQ(other.text(), otherText);
    }

    TextBox box;
    TextBox other;
    LinkedEdits edits;
};

TEST_F(LinkedEditsTest, AWholeEditIsUndoneAndRedoneFromEitherBox)
{
    QTest::keyClicks(&box, u"a"_s);
    fill(kWhole, u"one"_s, u"two"_s);
    for (TextBox *at : {&box, &other}) {
        EXPECT_EQ(edits.undo(*at).blocking, nullptr);
        expectTexts(u"a"_s, {});
        EXPECT_EQ(edits.redo(*at).blocking, nullptr);
        expectTexts(u"one"_s, u"two"_s);
    }
}

TEST_F(LinkedEditsTest, AnEditWithALeaderIsUndoneAloneInTheOtherBox)
{
    fill(kLeader, u"one"_s, u"two"_s);
    edits.undo(other);
    expectTexts(u"one"_s, {});
    edits.redo(other);
    edits.undo(box);
    expectTexts({}, {});
    edits.redo(other);
    expectTexts({}, u"two"_s);
    edits.redo(box);
    expectTexts(u"one"_s, u"two"_s);
}

TEST_F(LinkedEditsTest, ALaterStepInTheOtherBoxKeepsAWholeEditFromBeingUndone)
{
    fill(kWhole, u"one"_s, u"two"_s);
    other.home(false);
    QTest::keyClicks(&other, u"xy"_s);
    other.setSelection(1, 2);
    EXPECT_EQ(edits.undo(box).blocking, &other);
    expectTexts(u"one"_s, u"xytwo"_s);
    QTest::keyClick(&other, Qt::Key_Home);
    QTest::keyClick(&other, Qt::Key_Delete);
    QTest::keyClick(&other, Qt::Key_Delete);
    other.setSelection(3, -2);
    expectTexts(u"one"_s, u"two"_s);
    EXPECT_EQ(edits.undo(box).blocking, &other); // the same text, but not the same step
    EXPECT_EQ(other.selectedText(), u"wo"_s);
    EXPECT_EQ(other.cursorPosition(), 1); // all as it was
    EXPECT_EQ(edits.undo(other).blocking, nullptr);
    EXPECT_EQ(other.text(), u"xytwo"_s);
    EXPECT_EQ(edits.undo(other).blocking, nullptr);
    EXPECT_EQ(edits.undo(box).blocking, nullptr);
    expectTexts({}, {});
}

TEST_F(LinkedEditsTest, EachOfManyEditsOfTheSameTextsIsAStepOfItsOwn)
{
    for (int times = 0; times < 3; ++times) {
        fill(kWhole, u"a"_s, u"a"_s);
    }
    edits.undo(box);
    edits.undo(other);
    expectTexts(u"a"_s, u"a"_s);
    edits.undo(box);
    expectTexts({}, {});
    EXPECT_FALSE(box.isUndoAvailable());
    EXPECT_FALSE(other.isUndoAvailable());
}

TEST_F(LinkedEditsTest, WhatWasCutBeforeIsAStepOfItsOwn)
{
    QTest::keyClicks(&box, u"kept"_s);
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_Delete);
    fill(kLeader, u"one"_s, {});
    edits.undo(box);
    expectTexts({}, {});
    edits.undo(box);
    expectTexts(u"kept"_s, {});
}

TEST_F(LinkedEditsTest, WhatIsTypedAfterIsAStepOfItsOwn)
{
    QTest::keyClicks(&box, u"a"_s);
    fill(kWhole, {}, u"a"_s);
    QTest::keyClicks(&box, u"b"_s);
    edits.undo(box);
    expectTexts({}, u"a"_s);
    edits.undo(box);
    expectTexts(u"a"_s, {});
}

TEST_F(LinkedEditsTest, TypingEndsWhatCouldBeRedone)
{
    fill(kWhole, u"one"_s, u"two"_s);
    edits.undo(box);
    QTest::keyClicks(&other, u"x"_s);
    EXPECT_EQ(edits.redo(box).blocking, &other);
    EXPECT_EQ(edits.redo(other).blocking, nullptr);
    expectTexts({}, u"x"_s);
}

TEST_F(LinkedEditsTest, AForgottenBoxHoldsNothingBack)
{
    fill(kWhole, u"one"_s, u"two"_s);
    other.setText({});
    edits.forget(other);
    QTest::keyClicks(&other, u"new"_s);
    EXPECT_EQ(edits.undo(box).blocking, nullptr);
    expectTexts({}, u"new"_s);
}

TEST_F(LinkedEditsTest, ABoxWhoseTextWasSetHoldsNothingBackOnceItsTypingIsUndone)
{
    fill(kWhole, u"one"_s, u"two"_s);
    other.setText(u"set"_s); // as assistive technology may do
    QTest::keyClicks(&other, u"!"_s);
    EXPECT_EQ(edits.undo(box).blocking, &other);
    EXPECT_EQ(edits.undo(other).blocking, nullptr);
    EXPECT_EQ(edits.undo(box).blocking, nullptr);
    expectTexts({}, u"set"_s);
}

TEST_F(LinkedEditsTest, ABoxWhoseTextWasSetDoesNotKeepTheOtherFromRedo)
{
    fill(kWhole, u"one"_s, u"two"_s);
    other.setText(u"set"_s);
    EXPECT_EQ(edits.undo(box).blocking, nullptr);
    expectTexts({}, u"set"_s);
    EXPECT_EQ(edits.redo(box).blocking, nullptr);
    expectTexts(u"one"_s, u"set"_s);
}

TEST_F(LinkedEditsTest, NothingShowsTheMark)
{
    QStringList seen;
    const auto see = [&seen](const QString &text) { seen << text; };
    QObject::connect(&box, &QLineEdit::textChanged, see);
    QObject::connect(&box, &QLineEdit::textEdited, see);
    QTest::keyClicks(&box, u"a"_s);
    fill(kWhole, u"one"_s, u"two"_s);
    edits.undo(box);
    edits.redo(other);
    QTest::keyClicks(&other, u"x"_s);
    edits.undo(box); // looks only
    EXPECT_GT(seen.size(), 0);
    for (const QString &text : seen) {
        EXPECT_FALSE(text.contains(QChar(0xFDD0))) << text.toStdString();
    }
}

} // namespace
} // namespace tarvold::testing
