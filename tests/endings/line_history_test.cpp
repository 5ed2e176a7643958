#include "endings/lines_test.h"
#include "walk/dice.h"

#include <QApplication>
#include <QClipboard>

#include <array>
#include <map>
#include <vector>

/// Random typing, swaps, pastes, undo and redo in ten lines: nothing that was typed gets lost.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr int kLines = 10;

/// What ten lines must do, in the plainest form: each has a list of steps, some of them undone.
class PlainLines
{
public:
    QString text(int line) const
    {
        const History &history = m_lines.at(std::size_t(line));
        return history.done == 0 ? QString() : history.steps.at(history.done - 1).text;
    }

    QStringList texts() const
    {
        QStringList all;
        for (int line = 0; line < kLines; ++line) {
            all << text(line);
        }
        return all;
    }

    void type(int line, const QString &word) { edit({{line, text(line) + word}}, false); }

    void swap(int line, int other)
    {
        if (text(line) != text(other)) {
            edit({{line, text(other)}, {other, text(line)}}, true);
        }
    }

    void paste(int line, qsizetype at, QStringList pasted)
    {
        qsizetype room = 1;
        while (line + room < kLines && text(line + int(room)).isEmpty()) {
            ++room;
        }
        if (pasted.size() > room) {
            pasted = pasted.first(room - 1) << pasted.sliced(room - 1).join(u' ');
        }
        const QString behind = text(line).sliced(at);
        pasted.front().prepend(text(line).first(at));
        pasted.back() += behind;
        std::vector<std::pair<int, QString>> changes;
        for (int below = 0; below < pasted.size(); ++below) {
            changes.emplace_back(line + below, pasted[below]);
        }
        edit(changes, !behind.isEmpty() && pasted.size() > 1);
    }

    void undo(int line)
    {
        go(
            line,
            [](const History &history) {
                return history.done == 0 ? 0 : history.steps.at(history.done - 1).edit;
            },
            [](History &history) { --history.done; });
    }

    void redo(int line)
    {
        go(
            line,
            [](const History &history) {
                return history.done == history.steps.size() ? 0
                                                            : history.steps.at(history.done).edit;
            },
            [](History &history) { ++history.done; });
    }

private:
    struct Step
    {
        int edit;
        QString text; ///< after it
    };

    struct History
    {
        std::vector<Step> steps;
        std::size_t done = 0;
    };

    struct Edit
    {
        std::vector<int> lines;
        bool isWhole;
    };

    void edit(const std::vector<std::pair<int, QString>> &changes, bool isWhole)
    {
        const int number = static_cast<int>(m_edits.size()) + 1;
        Edit &edit = m_edits[number];
        edit.isWhole = isWhole;
        for (const auto &[line, text] : changes) {
            History &history = m_lines.at(std::size_t(line));
            history.steps.resize(history.done);
            history.steps.push_back({number, text});
            ++history.done;
            edit.lines.push_back(line);
        }
    }

    template <class Next, class Pass>
    void go(int line, const Next &next, const Pass &pass)
    {
        const int number = next(m_lines.at(std::size_t(line)));
        if (number == 0) {
            return;
        }
        const Edit &edit = m_edits.at(number);
        std::vector<int> along;
        for (const int each : edit.lines) {
            const bool isBound = each == line || edit.isWhole || edit.lines.front() == line;
            if (isBound && next(m_lines.at(std::size_t(each))) == number) {
                along.push_back(each);
            }
        }
        if (edit.isWhole && along.size() < edit.lines.size()) {
            return;
        }
        for (const int each : along) {
            pass(m_lines.at(std::size_t(each)));
        }
    }

    std::array<History, kLines> m_lines;
    std::map<int, Edit> m_edits;
};

class LineHistory : public LinesTest, public ::testing::WithParamInterface<unsigned>
{
protected:
    /// Goes through all lines until nothing changes any more.
    void toTheEnd(QKeySequence::StandardKey key)
    {
        constexpr int kManySteps = 12; // some change no text, such as the same word typed over
        for (int idle = 0; idle < kManySteps; ++idle) {
            const QStringList before = lines();
            for (int number = 1; number <= kLines; ++number) {
                hit(number, key);
            }
            idle = lines() == before ? idle : -1;
        }
    }

    /// Does something at random, in the lines and in the model.
    void act(Dice &dice)
    {
        const int line = dice.below(kLines);
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
            if (number < kLines) {
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
            redo(number);
            m_model.redo(line);
            break;
        default:
            undo(number);
            m_model.undo(line);
        }
    }

    void expectNothingToUndo()
    {
        for (int number = 1; number <= kLines; ++number) {
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
