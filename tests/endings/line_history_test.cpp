#include "endings/lines_test.h"
#include "endings/plain_lines.h"
#include "walk/dice.h"

#include <QApplication>
#include <QClipboard>

#include <vector>

/// Random typing, swaps, pastes, undo and redo in ten lines: nothing that was typed gets lost.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class LineHistory : public LinesTest, public ::testing::WithParamInterface<unsigned>
{
protected:
    /// Goes through all lines until nothing changes any more.
    void toTheEnd(QKeySequence::StandardKey key)
    {
        constexpr int kManySteps = 12; // some change no text, such as the same word typed over
        for (int idle = 0; idle < kManySteps; ++idle) {
            const QStringList before = lines();
            for (int number = 1; number <= PlainLines::kCount; ++number) {
                hit(number, key);
            }
            idle = lines() == before ? idle : -1;
        }
    }

    /// Does something at random, in the lines and in the model.
    void act(Dice &dice)
    {
        const int line = dice.below(PlainLines::kCount);
        const int number = line + 1;
        switch (dice.below(8)) {
        case 0:
        case 1: {
            hit(number, Qt::Key_Home); // so that this is an undo step of its own
            const QString word = newWord(dice);
            add(number, word);
            m_model.type(line, word);
            break;
        }
        case 2:
            swapDown(number);
            if (number < PlainLines::kCount) {
                m_model.swap(line, line + 1);
            }
            break;
        case 3:
            swapUp(number);
            if (number > 1) {
                m_model.swap(line, line - 1);
            }
            break;
        case 4:
            pasteAtRandom(line, dice);
            break;
        case 5:
            redoAndType(line, dice);
            break;
        default:
            undo(number);
            m_model.undo(line);
        }
    }

    /// Redoes a step, and in some rounds types right where that leaves the cursor.
    void redoAndType(int line, Dice &dice)
    {
        const QString before = m_model.text(line);
        redo(line + 1);
        m_model.redo(line);
        const QString text = m_model.text(line);
        if (text != before && dice.chance(50)) {
            QLineEdit &box = lineBox(line + 1);
            const QString word = newWord(dice);
            const int at = box.cursorPosition();
            QTest::keyClicks(&box, word);
            m_model.insert(line, at, word);
        }
    }

    void expectNothingToUndo()
    {
        for (int number = 1; number <= PlainLines::kCount; ++number) {
            EXPECT_FALSE(lineBox(number).isUndoAvailable()) << number;
        }
    }

    /// A word of its own in some runs; in others one of very few, so that texts are often equal.
    QString newWord(Dice &dice)
    {
        return m_hasOwnWords ? u"w%1."_s.arg(++m_words) : dice.pick(QStringList{u"a"_s, u"b"_s});
    }

    void pasteAtRandom(int line, Dice &dice)
    {
        QStringList pasted = {newWord(dice)};
        while (dice.chance(60)) {
            pasted << newWord(dice);
        }
        QLineEdit &box = lineBox(line + 1);
        box.setFocus(Qt::OtherFocusReason);
        const int length = static_cast<int>(box.text().size());
        const int at = dice.chance(50) ? length : dice.below(length + 1);
        box.setCursorPosition(at);
        QApplication::clipboard()->setText(pasted.join(u'\n'));
        QTest::keySequence(screen("Form7").windowHandle(), QKeySequence::Paste);
        m_model.paste(line, at, pasted);
    }

    /// Of the words that were made, none is in the lines twice.
    void expectNoWordTwice()
    {
        const QString all = lines().join(u'|');
        for (int word = 1; m_hasOwnWords && word <= m_words; ++word) {
            EXPECT_LE(all.count(u"w%1."_s.arg(word)), 1) << word << ' ' << all.toStdString();
        }
    }

    PlainLines m_model;
    bool m_hasOwnWords = GetParam() % 2 == 0;
    int m_words = 0;
};

TEST_P(LineHistory, IsThatOfThePlainLines)
{
    Dice dice(GetParam());
    for (int times = 0; times < 120; ++times) {
        act(dice);
        ASSERT_EQ(lines().join(u'|'), m_model.texts().join(u'|')) << times;
        expectNoWordTwice();
    }
    toTheEnd(QKeySequence::Redo);
    const QStringList last = lines();
    toTheEnd(QKeySequence::Undo);
    expectLines({});
    expectNothingToUndo();
    toTheEnd(QKeySequence::Redo);
    EXPECT_EQ(lines().join(u'|'), last.join(u'|'));
}

/// Keys in any order, also such as Qt joins to one undo step.
TEST_P(LineHistory, AnyKeysCanAllBeUndone)
{
    constexpr auto kSwap = Qt::ControlModifier | Qt::ShiftModifier;
    const std::vector<QKeyCombination> keys = {Qt::Key_A,
                                               Qt::Key_A,
                                               Qt::Key_B,
                                               Qt::Key_Backspace,
                                               Qt::Key_Delete,
                                               Qt::Key_Home,
                                               Qt::Key_Left,
                                               Qt::Key_Up,
                                               Qt::Key_Down,
                                               Qt::CTRL | Qt::Key_A,
                                               Qt::SHIFT | Qt::Key_Left,
                                               Qt::CTRL | Qt::Key_X,
                                               Qt::CTRL | Qt::Key_C,
                                               Qt::CTRL | Qt::Key_V,
                                               Qt::CTRL | Qt::Key_Z,
                                               Qt::CTRL | Qt::Key_Z,
                                               Qt::CTRL | Qt::SHIFT | Qt::Key_Z,
                                               kSwap | Qt::Key_Up,
                                               kSwap | Qt::Key_Down};
    Dice dice(GetParam());
    lineBox(1).setFocus(Qt::OtherFocusReason);
    for (int times = 0; times < 300; ++times) {
        if (dice.chance(5)) {
            QApplication::clipboard()->setText(dice.chance(50) ? u"a\nb\na"_s : u"a"_s);
        }
        const QKeyCombination key = dice.pick(keys);
        QTest::keyClick(screen("Form7").windowHandle(), key.key(), key.keyboardModifiers());
        ASSERT_FALSE(lines().join(u'|').contains(QChar(0xFDD0)));
    }
    toTheEnd(QKeySequence::Redo);
    const QStringList last = lines();
    toTheEnd(QKeySequence::Undo);
    expectLines({});
    expectNothingToUndo();
    toTheEnd(QKeySequence::Redo);
    EXPECT_EQ(lines().join(u'|'), last.join(u'|'));
}

INSTANTIATE_TEST_SUITE_P(Seeds, LineHistory, ::testing::Range(1U, 21U));

} // namespace
} // namespace tarvold::testing
