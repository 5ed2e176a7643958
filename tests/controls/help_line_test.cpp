#include "controls/combo_box.h"
#include "screens/help_line.h"
#include "support/window_test.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

const QString kShort = u"Name ~ Short."_s;
const QString kLong = u"Stable ~ "_s + u"a long explanation of many words "_s.repeated(12);

class HelpLineTest : public WindowTest
{
public:
    HelpLineTest()
    {
        combo.addItems({u"Any"_s, u"Face"_s});
        window.resize(400, 300);
        add(help);
        add(combo);
        add(name);
        elsewhere.setFocus();
        help.explain(name, kShort, HelpOn::Focus);
        help.explain(combo, kLong, HelpOn::FocusAndClick);
        QTest::qWait(0);
    }
    ~HelpLineTest() override
    {
        for (QWidget *control : {static_cast<QWidget *>(&name), static_cast<QWidget *>(&combo),
                                 static_cast<QWidget *>(&help)}) {
            control->setParent(nullptr);
        }
    }

protected:
    HelpLine help;
    ComboBox combo;
    TextBox name;
};

TEST_F(HelpLineTest, StartsEmpty)
{
    EXPECT_EQ(help.text(), QString());
}

TEST_F(HelpLineTest, ShowsTheHelpOfTheFocusedField)
{
    name.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(help.text(), kShort);
    combo.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(help.text(), kLong);
}

TEST_F(HelpLineTest, KeepsItsTextWhenAFieldWithoutHelpGetsTheFocus)
{
    name.setFocus(Qt::TabFocusReason);
    elsewhere.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(help.text(), kShort);
}

TEST_F(HelpLineTest, AClickShowsHelpOnlyWithFocusAndClick)
{
    for (TextBox *box : {&name, &elsewhere}) {
        box->setFocus();
        help.setText(u"before"_s);
        click(*box);
        EXPECT_EQ(help.text(), u"before"_s);
    }
    combo.setFocus();
    help.setText(u"before"_s);
    click(combo);
    EXPECT_EQ(help.text(), kLong);
}

TEST_F(HelpLineTest, KeepsItsHeightForAnyText)
{
    const QRect before = help.geometry();
    const QRect nameBefore = name.geometry();
    for (const QString &text : {kShort, kLong, QString()}) {
        help.setText(text);
        QTest::qWait(0);
        EXPECT_EQ(help.geometry(), before);
        EXPECT_EQ(name.geometry(), nameBefore);
    }
}

TEST_F(HelpLineTest, HasRoomForItsLongestHelp)
{
    const QRect room =
        help.contentsRect().adjusted(help.margin(), help.margin(), -help.margin(), -help.margin());
    const QRect needed =
        help.fontMetrics().boundingRect(QRect(0, 0, room.width(), 10'000), Qt::TextWordWrap, kLong);
    EXPECT_GE(room.height(), needed.height());
}

TEST_F(HelpLineTest, ShowsPlainText)
{
    EXPECT_EQ(help.textFormat(), Qt::PlainText);
}

TEST_F(HelpLineTest, SetsTheAccessibleDescription)
{
    EXPECT_EQ(name.accessibleDescription(), kShort);
    EXPECT_EQ(combo.accessibleDescription(), kLong);
}

} // namespace
} // namespace tarvold::testing
