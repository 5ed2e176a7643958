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
namespace {

struct Broken
{
    QString text;
    QString oneLine;
};

/// Texts with every kind of line break, each of which is one blank in a field.
QList<Broken> brokenTexts()
{
    return {{QStringLiteral("a\r\nb"), QStringLiteral("a b")},
            {QStringLiteral("a\rb"), QStringLiteral("a b")},
            {QStringLiteral("a\nb"), QStringLiteral("a b")},
            {u'a' + QString(QChar(0x2028)) + u'b', QStringLiteral("a b")},
            {u'a' + QString(QChar(0x2029)) + u'b', QStringLiteral("a b")},
            {u'a' + QString(QChar(0x85)) + u'b', QStringLiteral("a b")},
            {QStringLiteral("a\n\r\n\rb"), QStringLiteral("a   b")},
            {QStringLiteral("\r\na\r\n"), QStringLiteral(" a ")}};
}

class TextBoxTest : public WindowTest
{
public:
    TextBoxTest() { add(box); }
    ~TextBoxTest() override { box.setParent(nullptr); }

protected:
    /// Brings every broken text into the box between "<" and ">", and checks that it came in one
    /// line and that undoing it brings back what was there.
    void expectOneLine(const std::function<void(const QString &)> &bringIn)
    {
        for (const Broken &row : brokenTexts()) {
            SCOPED_TRACE(::testing::PrintToString(row.text.toUtf8().toPercentEncoding()));
            box.setText(QStringLiteral("<>"));
            box.setFocus();
            box.setCursorPosition(1);
            bringIn(row.text);
            EXPECT_EQ(box.text(), QString(u'<' + row.oneLine + u'>'));
            QTest::keySequence(window.windowHandle(), QKeySequence::Undo);
            EXPECT_EQ(box.text(), QStringLiteral("<>"));
        }
    }

    /// Where the cursor is to be seen in the box.
    QPoint cursorPlace() const
    {
        return box.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    }

    TextBox box;
};

TEST_F(TextBoxTest, PasteByKeyTurnsBreaksIntoBlanks)
{
    expectOneLine([this](const QString &text) { paste(box, text); });
}

TEST_F(TextBoxTest, PasteByShiftInsertTurnsBreaksIntoBlanks)
{
    expectOneLine([this](const QString &text) {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(window.windowHandle(), Qt::Key_Insert, Qt::ShiftModifier);
    });
}

TEST_F(TextBoxTest, PasteByTheContextMenuTurnsBreaksIntoBlanks)
{
    expectOneLine([this](const QString &text) {
        QApplication::clipboard()->setText(text);
        const std::unique_ptr<QMenu> menu(box.createStandardContextMenu());
        const QList<QAction *> actions = menu->actions();
        const auto found = std::find_if(actions.begin(), actions.end(), [](const QAction *action) {
            return action->text().startsWith(QStringLiteral("&Paste"));
        });
        ASSERT_NE(found, actions.end());
        (*found)->trigger();
    });
}

TEST_F(TextBoxTest, PasteByTheMiddleButtonTurnsBreaksIntoBlanks)
{
    if (!QApplication::clipboard()->supportsSelection()) {
        GTEST_SKIP() << "this platform has no selection to paste with the middle button";
    }
    expectOneLine([this](const QString &text) {
        QApplication::clipboard()->setText(text, QClipboard::Selection);
        QTest::mouseClick(&box, Qt::MiddleButton, {}, cursorPlace());
    });
}

TEST_F(TextBoxTest, DroppedBreaksBecomeBlanks)
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

TEST_F(TextBoxTest, BreaksInTheTextOfAKeyBecomeBlanks)
{
    expectOneLine([this](const QString &text) {
        // A first character that cannot be seen makes a key one that types nothing.
        const QString typed = text.front().isPrint() ? text : u' ' + text.mid(2);
        QTest::sendKeyEvent(QTest::Click, window.windowHandle(), Qt::Key_unknown, typed,
                            Qt::NoModifier);
    });
}

TEST_F(TextBoxTest, KeysThatBearAControlCharacterLeaveTheTextAlone)
{
    for (const char control : {'\r', '\n', '\t', '\x1b', '\x0b'}) {
        box.setText(QStringLiteral("hello"));
        box.setFocus();
        box.selectAll();
        QTest::sendKeyEvent(QTest::Click, window.windowHandle(), Qt::Key_unknown,
                            QString(QLatin1Char(control)), Qt::ControlModifier | Qt::AltModifier);
        EXPECT_EQ(box.text(), QStringLiteral("hello")) << int(control);
    }
}

TEST_F(TextBoxTest, BreaksFromAnInputMethodBecomeBlanks)
{
    expectOneLine([this](const QString &text) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&box, &event);
    });
}

TEST_F(TextBoxTest, PasteReplacesWhatIsSelected)
{
    box.setText(QStringLiteral("old"));
    box.selectAll();
    paste(box, QStringLiteral("new\nest"));
    EXPECT_EQ(box.text(), QStringLiteral("new est"));
    QTest::keySequence(window.windowHandle(), QKeySequence::Undo);
    EXPECT_EQ(box.text(), QStringLiteral("old"));
}

TEST_F(TextBoxTest, UndoingAPasteKeepsWhatWasTypedBefore)
{
    typeOver(box, QStringLiteral("typed "));
    paste(box, QStringLiteral("pasted"));
    EXPECT_EQ(box.text(), QStringLiteral("typed pasted"));
    QTest::keySequence(window.windowHandle(), QKeySequence::Undo);
    EXPECT_EQ(box.text(), QStringLiteral("typed "));
}

TEST_F(TextBoxTest, UndoingWhatWasTypedAfterAPasteKeepsThePaste)
{
    box.setText(QStringLiteral("<>"));
    box.setCursorPosition(1);
    paste(box, QStringLiteral("pasted"));
    QTest::keyClicks(&box, QStringLiteral(" typed"));
    EXPECT_EQ(box.text(), QStringLiteral("<pasted typed>"));
    QTest::keySequence(window.windowHandle(), QKeySequence::Undo);
    EXPECT_EQ(box.text(), QStringLiteral("<pasted>"));
}

TEST_F(TextBoxTest, AReadOnlyBoxTakesNoPasteAndNothingFromAnInputMethod)
{
    box.setText(QStringLiteral("fixed"));
    box.setReadOnly(true);
    paste(box, QStringLiteral("pasted"));
    QApplication::clipboard()->setText(QStringLiteral("pasted"), QClipboard::Selection);
    QTest::mouseClick(&box, Qt::MiddleButton, {}, cursorPlace());
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("composed"));
    QApplication::sendEvent(&box, &event);
    EXPECT_EQ(box.text(), QStringLiteral("fixed"));
}

TEST_F(TextBoxTest, AVeryLongTextStaysWhole)
{
    const QString longText = QString(39'999, u'x') + u'!';
    box.setText(longText);
    EXPECT_EQ(box.text(), longText);
    box.clear();
    paste(box, longText);
    EXPECT_EQ(box.text(), longText);
}

TEST_F(TextBoxTest, TabsAndNulsStay)
{
    const QString odd = QStringLiteral("a\tb") + QChar(0) + u'c';
    box.setText(odd);
    EXPECT_EQ(box.text(), odd);
    box.clear();
    paste(box, odd);
    EXPECT_EQ(box.text(), odd);
}

} // namespace
} // namespace tarvold::testing
