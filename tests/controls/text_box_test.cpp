#include "controls/text_box.h"
#include "support/window_test.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>

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

} // namespace
} // namespace tarvold::testing
