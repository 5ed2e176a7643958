#include "shell/fonts.h"
#include "support/ending_test.h"
#include "support/spoken.h"

#include <QApplication>
#include <QPushButton>

namespace tarvold::testing {
namespace {

constexpr const char *kScreens[] = {"Form1", "Form4", "Form5", "Form6", "Form7"};

class EndingWindows : public EndingTest
{
protected:
    EndingWindows() { createAllScreens(); }
};

TEST_F(EndingWindows, EveryControlHasANameOfItsOwnOnItsScreen)
{
    for (const char *name : kScreens) {
        SCOPED_TRACE(name);
        expectOwnNames(screen(name));
    }
}

TEST_F(EndingWindows, TabGoesInReadingOrder)
{
    expectReadingOrder(screen("Form1"));
    press("Form1", "Command3");
    for (const char *name : kFlow) {
        SCOPED_TRACE(name);
        expectReadingOrder(screen(name));
        if (qstrcmp(name, "Form7") != 0) {
            press(name, "Command2");
        }
    }
}

TEST_F(EndingWindows, BackStandsLeftAndTheWayOnRightInTheSamePlaces)
{
    press("Form1", "Command3");
    QRect back;
    int right = 0;
    for (const char *name : kFlow) {
        SCOPED_TRACE(name);
        QTest::qWait(0);
        const bool isLast = qstrcmp(name, "Form7") == 0;
        const QRect left = control(name, isLast ? "Command2" : "Command1").geometry();
        const QRect on = control(name, isLast ? "Command1" : "Command2").geometry();
        if (back.isNull()) {
            back = left;
            right = on.right();
        }
        EXPECT_EQ(left, back);
        EXPECT_EQ(on.right(), right);
        EXPECT_EQ(on.top(), left.top());
        if (!isLast) {
            press(name, "Command2");
        }
    }
}

/// The same at several text sizes of the desktop.
class TextSizes : public ::testing::TestWithParam<int>
{
public:
    TextSizes() : m_before(QApplication::font())
    {
        QFont font = m_before;
        font.setPointSize(GetParam());
        QApplication::setFont(font);
        fonts::apply();
    }
    ~TextSizes() override
    {
        QApplication::setFont(m_before);
        fonts::apply();
    }

private:
    QFont m_before;
};

INSTANTIATE_TEST_SUITE_P(Points, TextSizes, ::testing::Values(9, 10, 12, 18),
                         ::testing::PrintToStringParamName());

/// Whether all of a control's text can be seen.
void expectNothingCut(const Screen &window)
{
    for (const QWidget *control : window.findChildren<QPushButton *>()) {
        EXPECT_GE(control->width(), control->sizeHint().width())
            << control->objectName().toStdString();
    }
    for (const QLabel *label : window.findChildren<QLabel *>()) {
        if (label->isVisible() && !label->wordWrap()) {
            EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
        }
        if (label->isVisible() && label->wordWrap()) {
            EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                << label->text().toStdString();
        }
    }
}

TEST_P(TextSizes, AllWindowsHaveOneSizeAndCutNothing)
{
    Editor editor;
    editor.start();
    Screens &screens = editor.screens();
    const QSize standard = screens["Form1"].size();
    click(screens["Form1"].control("Command3"));
    for (const char *name : {"Form4", "Form5", "Form6", "Form7"}) {
        SCOPED_TRACE(name);
        Screen &window = screens[name];
        expectActive(window);
        QTest::qWait(0);
        EXPECT_EQ(window.size(), standard);
        EXPECT_LE(window.minimumSizeHint().height(), standard.height());
        EXPECT_LE(window.minimumSizeHint().width(), standard.width());
        expectNothingCut(window);
        if (qstrcmp(name, "Form7") != 0) {
            click(window.control("Command2"));
        }
    }
}

} // namespace
} // namespace tarvold::testing
