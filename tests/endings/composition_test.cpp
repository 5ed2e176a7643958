#include "endings/lines_test.h"
#include "screens/commentary_line.h"

#include <QApplication>
#include <QInputMethodEvent>

#include <utility>

/// Edits of commentary lines in the middle of what an input method is composing.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// When the input method makes what it is composing part of the text.
enum class Commits {
    AtOnce, ///< when it is asked to, before the edit
    Late,   ///< after the edit, into the line that has the focus then
};

/// Composes "xyz" in text boxes. The platform of the tests has no input method that could be asked.
class InputMethod : public QObject
{
public:
    explicit InputMethod(Commits commits) : m_commits(commits) {}

    /// Answers before the focus leaves this line and before edits in it.
    void follow(QLineEdit &line)
    {
        line.installEventFilter(this);
        connect(qobject_cast<CommentaryLine *>(&line), &CommentaryLine::editStarted, this,
                &InputMethod::answer);
    }

    void compose(QLineEdit &line)
    {
        QInputMethodEvent event(u"xyz"_s, {});
        QApplication::sendEvent(&line, &event);
        m_isComposing = true;
        EXPECT_FALSE(line.text().contains(u"xyz"_s));
    }

    /// Makes it part of the text, unless that was done.
    void finish()
    {
        if (std::exchange(m_isComposing, false)) {
            QInputMethodEvent event;
            event.setCommitString(u"xyz"_s);
            QApplication::sendEvent(QApplication::focusWidget(), &event);
        }
    }

protected:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::FocusAboutToChange) {
            answer();
        }
        return false;
    }

private:
    void answer()
    {
        if (m_commits == Commits::AtOnce) {
            finish();
        }
    }

    Commits m_commits;
    bool m_isComposing = false;
};

/// Line 1 holds "One" and line 2 "Two".
class Composition : public LinesTest, public ::testing::WithParamInterface<Commits>
{
protected:
    Composition()
    {
        write(1, u"One"_s);
        write(2, u"Two"_s);
        for (int number = 1; number <= 10; ++number) {
            m_method.follow(lineBox(number));
        }
    }

    static bool isAtOnce() { return GetParam() == Commits::AtOnce; }

    void compose(int number, int at)
    {
        lineBox(number).setFocus(Qt::OtherFocusReason);
        lineBox(number).setCursorPosition(at);
        m_method.compose(lineBox(number));
    }

    void finish() { m_method.finish(); }

private:
    InputMethod m_method{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(InputMethods, Composition,
                         ::testing::Values(Commits::AtOnce, Commits::Late),
                         [](const auto &commits) {
                             return std::string(commits.param == Commits::AtOnce ? "AtOnce"
                                                                                 : "Late");
                         });

TEST_P(Composition, IsWrittenOnce)
{
    compose(1, 1);
    finish();
    expectLines({u"Oxyzne"_s, u"Two"_s});
    undo(1);
    expectLines({u"One"_s, u"Two"_s});
    redo(1);
    expectLines({u"Oxyzne"_s, u"Two"_s});
}

TEST_P(Composition, GoesWithALineThatIsSwapped)
{
    compose(1, 1);
    swapDown(1);
    finish();
    expectLines({u"Two"_s, u"Oxyzne"_s});
    EXPECT_TRUE(lineBox(2).hasFocus());
    undo(2);
    expectLines(isAtOnce() ? QStringList{u"Oxyzne"_s, u"Two"_s} : QStringList{u"Two"_s, u"One"_s});
    undo(isAtOnce() ? 1 : 2);
    expectLines({u"One"_s, u"Two"_s});
    redo(1);
    redo(2);
    expectLines({u"Two"_s, u"Oxyzne"_s});
}

TEST_P(Composition, IsNeitherLostNorDoubledByAPasteOfSeveralLines)
{
    write(4, u"ab"_s);
    compose(4, 1);
    paste(lineBox(4), u"1\n2"_s);
    finish();
    const QString first = isAtOnce() ? u"axyz1"_s : u"a1xyz"_s;
    expectLines({u"One"_s, u"Two"_s, {}, first, u"2b"_s});
    undo(4);
    expectLines({u"One"_s,
                 u"Two"_s,
                 {},
                 isAtOnce() ? u"axyzb"_s : u"a1"_s,
                 isAtOnce() ? QString() : u"2b"_s});
    undo(4);
    expectLines({u"One"_s, u"Two"_s, {}, u"ab"_s});
    redo(4);
    redo(4);
    expectLines({u"One"_s, u"Two"_s, {}, first, u"2b"_s});
}

TEST_P(Composition, IsNeitherLostNorDoubledWhenTheFocusGoesOn)
{
    compose(1, 1);
    QTest::keyClick(screen("Form7").windowHandle(), Qt::Key_Down);
    EXPECT_TRUE(lineBox(2).hasFocus());
    finish();
    expectLines(isAtOnce() ? QStringList{u"Oxyzne"_s, u"Two"_s}
                           : QStringList{u"One"_s, u"Twoxyz"_s});
    undo(isAtOnce() ? 1 : 2);
    expectLines({u"One"_s, u"Two"_s});
    save();
    EXPECT_TRUE(bytesOf(u"normreports.tvd"_s).contains("\r\nOne\r\nTwo\r\n"));
}

TEST_P(Composition, IsNeitherLostNorDoubledByAnUndo)
{
    swapDown(1);
    compose(2, 1);
    undo(2);
    finish();
    // Either the step before is undone, or what has just been composed.
    expectLines(isAtOnce() ? QStringList{u"Two"_s, u"One"_s} : QStringList{u"One"_s, u"Twoxyz"_s});
    if (isAtOnce()) {
        redo(2);
        expectLines({u"Two"_s, u"Oxyzne"_s});
    } else {
        undo(2);
        expectLines({u"One"_s, u"Two"_s});
    }
}

TEST_P(Composition, IsInTheRecordThatIsSaved)
{
    compose(1, 1);
    finish();
    save();
    EXPECT_TRUE(bytesOf(u"normreports.tvd"_s).contains("\r\nOxyzne\r\nTwo\r\n"));
}

} // namespace
} // namespace tarvold::testing
