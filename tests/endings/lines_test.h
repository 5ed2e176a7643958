#pragma once

#include "support/ending_test.h"

#include <QLineEdit>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

/// The program, showing the ten lines of commentary of a normal ending.
class LinesTest : public EndingTest
{
protected:
    LinesTest() { goTo("Form7"); }

    QLineEdit &lineBox(int number)
    {
        return screen("Form7").control<QLineEdit>(qPrintable(u"Text%1"_s.arg(number)));
    }

    void write(int number, const QString &text)
    {
        type("Form7", qPrintable(u"Text%1"_s.arg(number)), text);
    }

    void pasteInto(int number, const QString &text)
    {
        click(lineBox(number));
        paste(lineBox(number), text);
    }

    /// Presses a key in a line, without a click that would move the cursor.
    void hit(int number, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        lineBox(number).setFocus(Qt::OtherFocusReason);
        QTest::keyClick(screen("Form7").windowHandle(), key, modifiers);
    }

    void hit(int number, QKeySequence::StandardKey key)
    {
        lineBox(number).setFocus(Qt::OtherFocusReason);
        QTest::keySequence(screen("Form7").windowHandle(), key);
    }

    /// Types at the end of a line.
    void add(int number, const QString &text)
    {
        hit(number, Qt::Key_End);
        QTest::keyClicks(&lineBox(number), text);
    }

    void undo(int number) { hit(number, QKeySequence::Undo); }
    void redo(int number) { hit(number, QKeySequence::Redo); }
    void swapUp(int number) { hit(number, Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier); }
    void swapDown(int number)
    {
        hit(number, Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    }

    /// The texts of the ten lines.
    QStringList lines()
    {
        QStringList texts;
        for (int number = 1; number <= 10; ++number) {
            texts << lineBox(number).text();
        }
        return texts;
    }

    /// Expects these texts from the first line on, and empty lines after them.
    void expectLines(QStringList texts)
    {
        texts.resize(10);
        EXPECT_EQ(lines().join(u'|'), texts.join(u'|'));
    }
};

} // namespace tarvold::testing
