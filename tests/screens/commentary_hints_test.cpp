#include "screens/commentary_hints.h"
#include "screens/commentary_line.h"
#include "screens/hint_line.h"
#include "support/events.h"
#include "support/stub_screen.h"

#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>
#include <utility>

/// How often the hints about tags are made. What they say is tested with the commentary.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

int countedLooks = 0;

/// Each time when the hints are made, the one tag of the lines is looked at.
constexpr Refusal kCounting = {{"Form1", "Text1"},
                               [](const QString & /*text*/) {
                                   ++countedLooks;
                                   return false;
                               },
                               "",
                               ""};
constexpr CommentaryTag kCountedTags[] = {{"Item", "<tag>", &kCounting}};

class CommentaryHintsTest : public ::testing::Test
{
protected:
    CommentaryHintsTest()
    {
        screens.declare<StubScreen<'1'>>();
        for (CommentaryLine *line : {first, second}) {
            layout->addWidget(line);
            hints.watch(*line);
        }
        layout->addWidget(hints.label());
        first->setText(u"<tag>"_s);
        window.show();
        expectActive(window);
        click(*second);
    }

    /// How often the hints were made since the last call.
    static int looks() { return std::exchange(countedLooks, 0); }

    Screens screens;
    QWidget window;
    QVBoxLayout *layout = new QVBoxLayout(&window);
    CommentaryLine *first = new CommentaryLine(&window);
    CommentaryLine *second = new CommentaryLine(&window);
    CommentaryHints hints{&window, screens, kCountedTags};
};

TEST_F(CommentaryHintsTest, AreMadeOncePerKey)
{
    looks();
    for (const char key : {'a', 'b', ' '}) {
        QTest::keyClick(second, key);
        EXPECT_EQ(looks(), 1) << key;
    }
    QTest::keyClick(second, Qt::Key_Left);
    EXPECT_EQ(looks(), 1);
    QTest::keyClick(second, Qt::Key_Shift);
    EXPECT_EQ(looks(), 0);
}

TEST_F(CommentaryHintsTest, AreMadeOncePerPasteAndUndo)
{
    QTest::keyClicks(second, u"some words"_s);
    second->setCursorPosition(4);
    looks();
    paste(*second, u" more"_s);
    EXPECT_EQ(second->text(), u"some more words"_s);
    EXPECT_EQ(looks(), 1);
    QTest::keySequence(second, QKeySequence::Undo);
    EXPECT_EQ(second->text(), u"some words"_s);
    EXPECT_EQ(looks(), 1);
}

TEST_F(CommentaryHintsTest, AreMadeAgainOnRequest)
{
    looks();
    hints.update();
    EXPECT_EQ(looks(), 0);
    hints.refresh();
    EXPECT_EQ(looks(), 1);
}

TEST_F(CommentaryHintsTest, AreNotMadeWhileTheScreenIsHidden)
{
    window.hide();
    looks();
    second->setText(u"<wrong>"_s);
    EXPECT_EQ(looks(), 0);
    EXPECT_EQ(hints.label()->accessibleName(), QString());
}

TEST_F(CommentaryHintsTest, ATextOfTheScreenStaysUntilTheyChange)
{
    hints.tell(u"Look there."_s);
    EXPECT_EQ(hints.label()->accessibleName(), u"Look there."_s);
    QTest::keyClick(second, Qt::Key_Shift);
    EXPECT_EQ(hints.label()->accessibleName(), u"Look there."_s);
    QTest::keyClick(second, Qt::Key_A);
    EXPECT_EQ(hints.label()->accessibleName(), QString());
}

} // namespace
} // namespace tarvold::testing
