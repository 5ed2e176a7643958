#include "controls/message_box.h"
#include "support/window_test.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QTest>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using messagebox::EnterMeans;

class MessageBoxTest : public WindowTest
{
public:
    MessageBoxTest() { add(box); }
    ~MessageBoxTest() override { box.setParent(nullptr); }

protected:
    bool ask(EnterMeans enter, Answer answer)
    {
        boxes.expectQuestion(title(), u"Sure?"_s, answer);
        const bool yes = messagebox::question(&window, title(), u"Sure?"_s, enter);
        boxes.checkAllCame();
        return yes;
    }

    void awaitOffer(Answer answer) { boxes.expectFailedSave(title(), u"It failed."_s, answer); }

    bool makeOffer()
    {
        const bool taken =
            messagebox::offer(&window, title(), u"It failed."_s, u"&Save To Another File..."_s);
        boxes.checkAllCame();
        return taken;
    }

    bool offer(Answer answer)
    {
        awaitOffer(answer);
        return makeOffer();
    }

    /// The button beside OK.
    static QAbstractButton &otherButton(const QMessageBox &shown)
    {
        const auto buttons = shown.buttons();
        return *(buttons.front() == shown.button(QMessageBox::Ok) ? buttons.back()
                                                                  : buttons.front());
    }

    TextBox box;
};

TEST_F(MessageBoxTest, TextsAreShownVerbatim)
{
    for (const char *text : {"The <table> is set", "a & b", "<b>bold</b>", "&File", "100%1",
                             "two\nlines", "Saved OK."}) {
        SCOPED_TRACE(text);
        boxes.expectNotice(title(), QLatin1StringView(text));
        messagebox::notice(&window, title(), QLatin1StringView(text));
        boxes.checkAllCame();
    }
}

TEST_F(MessageBoxTest, ALongWordIsWrappedAndNotChanged)
{
    const QString text = u"The file \"%1\" is odd."_s.arg(QString(200, u'w'));
    QSize size;
    boxes.expectNotice(title(), text);
    boxes.beforeItsAnswer([&size](QMessageBox &shown) {
        const auto &label = *shown.findChild<QLabel *>(u"qt_msgbox_label"_s);
        EXPECT_LE(label.sizeHint().width(), label.width());
        EXPECT_LE(label.heightForWidth(label.width()), label.height());
        size = shown.size();
    });
    messagebox::notice(&window, title(), text);
    boxes.checkAllCame();
    EXPECT_LE(size.width(), window.screen()->availableSize().width());
}

TEST_F(MessageBoxTest, AShortTextMakesASmallBox)
{
    boxes.expectNotice(title(), u"Saved OK."_s);
    boxes.beforeItsAnswer([](QMessageBox &shown) { EXPECT_LT(shown.width(), 300); });
    messagebox::notice(&window, title(), u"Saved OK."_s);
    boxes.checkAllCame();
}

TEST_F(MessageBoxTest, TheTitleIsAsGiven)
{
    boxes.expectNotice(u"Filename Error"_s, u"Oh."_s);
    messagebox::notice(&window, u"Filename Error"_s, u"Oh."_s);
}

TEST_F(MessageBoxTest, TheDefaultTitleHasNoVersionNumber)
{
    EXPECT_STREQ(messagebox::kTitle, "Tarvold Data Editor");
}

TEST_F(MessageBoxTest, EveryAnswerClosesANotice)
{
    for (const Answer answer : {Answer::Ok, Answer::Enter, Answer::Escape, Answer::Close}) {
        boxes.expectNotice(title(), u"Saved OK."_s, answer);
        messagebox::notice(&window, title(), u"Saved OK."_s);
        boxes.checkAllCame();
    }
}

TEST_F(MessageBoxTest, OnlyItsButtonAcceptsAnOffer)
{
    EXPECT_TRUE(offer(Answer::Elsewhere));
    for (const Answer answer : {Answer::Ok, Answer::Enter, Answer::Escape, Answer::Close}) {
        EXPECT_FALSE(offer(answer));
    }
}

TEST_F(MessageBoxTest, AnOfferIsWideEnoughForItsButtons)
{
    awaitOffer(Answer::Ok);
    boxes.beforeItsAnswer([](QMessageBox &shown) {
        for (const QAbstractButton *button : shown.buttons()) {
            EXPECT_GE(button->width(), button->sizeHint().width());
            EXPECT_TRUE(shown.rect().contains(button->geometry()));
        }
    });
    makeOffer();
}

TEST_F(MessageBoxTest, TabAndTheMnemonicReachTheOfferButton)
{
    awaitOffer(Answer::Enter);
    boxes.beforeItsAnswer([](QMessageBox &shown) {
        expectActive(shown);
        EXPECT_EQ(QApplication::focusWidget(), shown.button(QMessageBox::Ok));
        QTest::keyClick(shown.windowHandle(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), &otherButton(shown));
    });
    EXPECT_TRUE(makeOffer()) << "Enter did not press the focused button";

    awaitOffer(Answer::Ok);
    bool isPressed = false;
    boxes.beforeItsAnswer([&isPressed](QMessageBox &shown) {
        expectActive(shown);
        const auto press = [&isPressed] { isPressed = true; };
        QObject::connect(&otherButton(shown), &QAbstractButton::pressed, press);
        QTest::keyClick(shown.windowHandle(), Qt::Key_S, Qt::AltModifier);
    });
    makeOffer();
    EXPECT_TRUE(isPressed);
}

TEST_F(MessageBoxTest, TheOfferButtonHasItsCaptionAsAccessibleName)
{
    awaitOffer(Answer::Ok);
    boxes.beforeItsAnswer([](QMessageBox &shown) {
        const QAccessibleInterface &button =
            *QAccessible::queryAccessibleInterface(&otherButton(shown));
        EXPECT_EQ(button.text(QAccessible::Name), u"Save To Another File..."_s);
        EXPECT_EQ(button.role(), QAccessible::PushButton);
    });
    makeOffer();
}

TEST_F(MessageBoxTest, EnterMeansYesInAQuestionThatSaves)
{
    EXPECT_TRUE(ask(EnterMeans::Yes, Answer::Yes));
    EXPECT_FALSE(ask(EnterMeans::Yes, Answer::No));
    EXPECT_TRUE(ask(EnterMeans::Yes, Answer::Enter));
    EXPECT_FALSE(ask(EnterMeans::Yes, Answer::Escape));
    EXPECT_FALSE(ask(EnterMeans::Yes, Answer::Close));
}

TEST_F(MessageBoxTest, EnterMeansNoInAQuestionThatDiscards)
{
    EXPECT_TRUE(ask(EnterMeans::No, Answer::Yes));
    EXPECT_FALSE(ask(EnterMeans::No, Answer::No));
    EXPECT_FALSE(ask(EnterMeans::No, Answer::Enter));
    EXPECT_FALSE(ask(EnterMeans::No, Answer::Escape));
    EXPECT_FALSE(ask(EnterMeans::No, Answer::Close));
}

} // namespace
} // namespace tarvold::testing
