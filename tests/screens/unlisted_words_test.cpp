#include "controls/announcement.h"
#include "controls/contrast.h"
#include "support/flow_test.h"
#include "support/palettes.h"
#include "support/tool_tips.h"

#include <QApplication>
#include <QLineEdit>

/// The mark on a list whose box holds a word that is not in it.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

const QString kLacksLine = u"Not in the list. The file will lack this line."_s;
const QString kNotListed = u"Not in the list."_s;

class UnlistedWords : public FlowTest
{
protected:
    /// Types into a list of the attacker's details and leaves it.
    void typeAndLeave(const char *name, const QString &text)
    {
        type("Form5", name, text);
        QTest::keyClick(screen("Form5").windowHandle(), Qt::Key_Tab);
    }

    QString tip(const char *name)
    {
        return toolTipOf(*combo("Form5", name).lineEdit()).value_or(QString());
    }

    /// Presses keys on the window of the screen that is shown.
    void hit(const char *name, Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        expectActive(screen(name));
        QTest::keyClick(screen(name).windowHandle(), key, modifiers);
        boxes.checkAllCame();
    }

    QString purpose(const char *name) { return combo("Form5", name).accessibleDescription(); }
};

TEST_F(UnlistedWords, AFinisherThatTheFileWouldLackIsMarked)
{
    goTo(kNormalPath, "Form5");
    const QString help = purpose("Combo7");
    EXPECT_FALSE(combo("Form5", "Combo7").isMarked());
    EXPECT_EQ(tip("Combo7"), QString());
    typeAndLeave("Combo7", u"Submision"_s);
    EXPECT_TRUE(combo("Form5", "Combo7").isMarked());
    EXPECT_EQ(tip("Combo7"), kLacksLine);
    EXPECT_EQ(toolTipOf(combo("Form5", "Combo7")), kLacksLine);
    EXPECT_EQ(purpose("Combo7"), QString(kLacksLine + u' ' + help));
    EXPECT_EQ(text("Form5", "Combo7"), u"Submision"_s); // stays as typed
    typeAndLeave("Combo7", u"Submission"_s);
    EXPECT_FALSE(combo("Form5", "Combo7").isMarked());
    EXPECT_EQ(tip("Combo7"), QString());
    EXPECT_EQ(purpose("Combo7"), help);
}

TEST_F(UnlistedWords, AWordInAYesNoListIsMarked)
{
    goTo(kNormalPath, "Form5");
    typeAndLeave("Combo4", u"yes"_s); // the game knows only "Yes"
    EXPECT_TRUE(combo("Form5", "Combo4").isMarked());
    EXPECT_EQ(tip("Combo4"), kNotListed);
    choose("Form5", "Combo4", u"Yes"_s);
    EXPECT_FALSE(combo("Form5", "Combo4").isMarked());
}

TEST_F(UnlistedWords, OtherListsOnlySuggest)
{
    goTo(kNormalPath, "Form5");
    typeAndLeave("Combo1", u"Luchador"_s);
    EXPECT_FALSE(combo("Form5", "Combo1").isMarked());
    EXPECT_EQ(tip("Combo1"), QString());
}

TEST_F(UnlistedWords, TheBeginningOfAnItemIsMarkedOnlyWhenTheUserLeaves)
{
    goTo(kNormalPath, "Form5");
    type("Form5", "Combo7", u"Sub"_s);
    EXPECT_FALSE(combo("Form5", "Combo7").isMarked());
    QTest::keyClicks(combo("Form5", "Combo7").lineEdit(), u"x"_s);
    EXPECT_TRUE(combo("Form5", "Combo7").isMarked());
    QTest::keyClick(combo("Form5", "Combo7").lineEdit(), Qt::Key_Backspace);
    EXPECT_FALSE(combo("Form5", "Combo7").isMarked());
    QTest::keyClick(screen("Form5").windowHandle(), Qt::Key_Tab);
    EXPECT_TRUE(combo("Form5", "Combo7").isMarked());
}

TEST_F(UnlistedWords, TheBeginningOfAnItemIsMarkedWhenKeysPressAButton)
{
    goTo(kNormalPath, "Form5");
    const QString help = purpose("Combo7");
    const Announcement &announcement = *combo("Form5", "Combo7").findChild<Announcement *>();
    type("Form5", "Combo7", u"Sub"_s);
    EXPECT_FALSE(combo("Form5", "Combo7").isMarked());
    hit("Form5", Qt::Key_Right, Qt::AltModifier);
    expectOnly("Form6");
    EXPECT_TRUE(combo("Form5", "Combo7").isMarked());
    EXPECT_EQ(announcement.accessibleName(), kLacksLine);
    hit("Form6", Qt::Key_Left, Qt::AltModifier);
    expectOnly("Form5");
    EXPECT_TRUE(combo("Form5", "Combo7").isMarked());
    EXPECT_EQ(purpose("Combo7"), QString(kLacksLine + u' ' + help));
}

TEST_F(UnlistedWords, AMarkThatAppearedWhileTypingIsDescribedWhenKeysPressAButton)
{
    goTo(kNormalPath, "Form5");
    const QString help = purpose("Combo7");
    type("Form5", "Combo7", u"Sux"_s);
    EXPECT_EQ(purpose("Combo7"), help);
    hit("Form5", Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(purpose("Combo7"), QString(kLacksLine + u' ' + help));
}

TEST_F(UnlistedWords, TheBeginningOfAnItemIsMarkedWhenItsWindowIsHidden)
{
    goTo(kNormalPath, "Form5");
    type("Form5", "Combo7", u"Sub"_s);
    screen("Form5").hide();
    EXPECT_TRUE(combo("Form5", "Combo7").isMarked());
    EXPECT_TRUE(purpose("Combo7").startsWith(kLacksLine));
}

TEST_F(UnlistedWords, AnEmptyFinisherIsMarked)
{
    goTo(kNormalPath, "Form5");
    typeAndLeave("Combo7", {});
    EXPECT_TRUE(combo("Form5", "Combo7").isMarked());
}

TEST_F(UnlistedWords, ScreenReadersHearItOnce)
{
    goTo(kNormalPath, "Form5");
    const Announcement &announcement = *combo("Form5", "Combo7").findChild<Announcement *>();
    int shown = 0;
    class Counter : public QObject
    {
    public:
        explicit Counter(int &count) : m_count(count) {}

    protected:
        bool eventFilter(QObject * /*watched*/, QEvent *event) override
        {
            m_count += event->type() == QEvent::Show ? 1 : 0;
            return false;
        }

    private:
        int &m_count;
    } counter(shown);
    const_cast<Announcement &>(announcement).installEventFilter(&counter);
    typeAndLeave("Combo7", u"xyz and more"_s);
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(announcement.accessibleName(), kLacksLine);
}

TEST_F(UnlistedWords, NoDescriptionChangesWhileTyping)
{
    // Screen readers would read it out at each change.
    goTo(kNormalPath, "Form5");
    QLineEdit &box = *combo("Form5", "Combo7").lineEdit();
    const QString help = purpose("Combo7");
    const QString helpOfBox = box.accessibleDescription();
    type("Form5", "Combo7", {});
    int marked = 0;
    for (const Qt::Key key : {Qt::Key_S, Qt::Key_U, Qt::Key_X, Qt::Key_Backspace, Qt::Key_Y}) {
        QTest::keyClick(&box, key, key == Qt::Key_S ? Qt::ShiftModifier : Qt::NoModifier);
        marked += combo("Form5", "Combo7").isMarked() ? 1 : 0;
        EXPECT_EQ(purpose("Combo7"), help);
        EXPECT_EQ(box.accessibleDescription(), helpOfBox);
    }
    EXPECT_GT(marked, 1);
    QTest::keyClick(screen("Form5").windowHandle(), Qt::Key_Tab);
    EXPECT_EQ(purpose("Combo7"), QString(kLacksLine + u' ' + help));
    EXPECT_TRUE(box.accessibleDescription().startsWith(kLacksLine));
}

TEST_F(UnlistedWords, APickTakesTheDescriptionAwayAtOnce)
{
    goTo(kNormalPath, "Form5");
    const QString help = purpose("Combo7");
    typeAndLeave("Combo7", u"Submision"_s);
    EXPECT_NE(purpose("Combo7"), help);
    choose("Form5", "Combo7", u"Submission"_s);
    EXPECT_EQ(purpose("Combo7"), help);
    EXPECT_FALSE(combo("Form5", "Combo7").lineEdit()->accessibleDescription().contains(kLacksLine));
}

TEST_F(UnlistedWords, AMarkedWordIsSavedAsBefore)
{
    goTo(kNormalPath, "Form5");
    typeAndLeave("Combo4", u"Maybe"_s);
    press("Form5", "Command2");
    press("Form6", "Command2");
    type("Form7", "Text1", u"The end."_s);
    save(kNormalPath);
    EXPECT_TRUE(bytesOf(u"normreports.tvd"_s).contains("\r\nMaybe\r\n"));
}

TEST_F(UnlistedWords, TheFormOfAStipulationMarksThemToo)
{
    given("Form3", "matchquality", u"Great"_s);
    EXPECT_TRUE(combo("Form3", "matchquality").isMarked());
    EXPECT_EQ(combo("Form3", "matchquality").accessibleDescription(), kLacksLine);
    given("Form3", "dqposs", u"Perhaps"_s);
    EXPECT_EQ(combo("Form3", "dqposs").accessibleDescription(), kNotListed);
    given("Form3", "matchtype", u"Sumo"_s);
    EXPECT_FALSE(combo("Form3", "matchtype").isMarked());
}

/// The best contrast of any pixel of the mark with the box behind it.
double contrastOfMark(const ComboBox &combo)
{
    const QWidget &box = *combo.lineEdit();
    const QImage picture = const_cast<QWidget &>(box).grab().toImage();
    const QColor behind = box.palette().color(QPalette::Base);
    double best = 1;
    for (int x = box.width() - 19; x < box.width() - 3; ++x) {
        best = std::max(
            best, tarvold::contrast::ratio(picture.pixelColor(x, box.height() / 2 + 5), behind));
    }
    return best;
}

TEST_F(UnlistedWords, TheMarkIsVisibleInLightAndDark)
{
    goTo(kNormalPath, "Form5");
    EXPECT_LT(contrastOfMark(combo("Form5", "Combo7")), 1.1); // no mark yet
    typeAndLeave("Combo7", u"x"_s);
    EXPECT_GE(contrastOfMark(combo("Form5", "Combo7")), tarvold::contrast::kControl);
    const QPalette light = QApplication::palette();
    useDarkPalette();
    EXPECT_GE(contrastOfMark(combo("Form5", "Combo7")), tarvold::contrast::kControl);
    QApplication::setPalette(light);
}

} // namespace
} // namespace tarvold::testing
