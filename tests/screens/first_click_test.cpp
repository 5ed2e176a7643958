#include "support/flow_test.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QStyleOptionComboBox>

/// The first click on fields of the screens that read "Any", as a writer makes it who types then.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class FirstClick : public FlowTest
{
protected:
    FirstClick()
    {
        goTo(kNormalPath, "Form5");
        expectActive(screen("Form5"));
    }

    void write(const QString &text)
    {
        for (const QChar letter : text) {
            QTest::keyClick(screen("Form5").windowHandle(), letter.toLatin1());
        }
    }

    void clickArrow(ComboBox &list)
    {
        QStyleOptionComboBox option;
        option.initFrom(&list);
        option.editable = true;
        const QRect arrow = list.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                         QStyle::SC_ComboBoxArrow, &list);
        QTest::mouseClick(&list, Qt::LeftButton, {}, arrow.center());
        ASSERT_TRUE(list.view()->isVisible());
    }
};

TEST_F(FirstClick, OnTheFieldThatItsScreenSelectedKeepsTheWordSelected)
{
    auto &box = screen("Form5").control<QLineEdit>("Text2");
    ASSERT_TRUE(box.hasFocus());
    ASSERT_EQ(box.selectedText(), u"Any"_s);
    click(box);
    EXPECT_EQ(box.selectedText(), u"Any"_s);
    write(u"Rocco Vance"_s);
    EXPECT_EQ(box.text(), u"Rocco Vance"_s);
}

TEST_F(FirstClick, OnAnotherFieldSelectsTheWord)
{
    auto &box = screen("Form5").control<QLineEdit>("Text3");
    ASSERT_EQ(box.text(), u"N/A"_s);
    click(box);
    write(u"The Crew"_s);
    EXPECT_EQ(box.text(), u"The Crew"_s);
}

TEST_F(FirstClick, OnAnArrowSelectsTheWordForTheTimeAfterTheList)
{
    ComboBox &list = combo("Form5", "Combo1");
    ASSERT_EQ(list.currentText(), u"Any"_s);
    clickArrow(list);
    QTest::keyClick(list.view(), Qt::Key_Escape);
    QCoreApplication::processEvents();
    screen("Form5").activateWindow();
    expectActive(screen("Form5"));
    write(u"Luchador"_s);
    EXPECT_EQ(list.currentText(), u"Luchador"_s);
}

} // namespace
} // namespace tarvold::testing
