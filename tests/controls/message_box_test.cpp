#include "controls/message_box.h"
#include "support/window_test.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QFontDatabase>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <cstdlib>
#include <functional>

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

/// Message boxes over a window of the size of a screen.
class MessageBoxPlaceTest : public MessageBoxTest
{
public:
    MessageBoxPlaceTest()
    {
        window.resize(600, 450);
        window.move(120, 150);
        QCoreApplication::processEvents();
    }

protected:
    using Check = std::function<void(QMessageBox &)>;

    /// Shows a box of every kind, with short, long and broken texts, and runs a check on each.
    void checkAll(const Check &check)
    {
        const QString texts[] = {u"Saved OK."_s, u"Add this finish to the file?"_s,
                                 u"The file can't be written. "_s.repeated(12).trimmed(),
                                 u"The file \"a.tvd\" could not be written.\n\nIt is a folder."_s,
                                 u"There is no file "_s + QString(200, u'w')};
        for (const QString &text : texts) {
            SCOPED_TRACE(text.toStdString());
            boxes.expectNotice(title(), text);
            boxes.beforeItsAnswer(check);
            messagebox::notice(&window, title(), text);
            boxes.expectQuestion(title(), text, Answer::No);
            boxes.beforeItsAnswer(check);
            messagebox::question(&window, title(), text, EnterMeans::No);
            boxes.expectFailedSave(title(), text);
            boxes.beforeItsAnswer(check);
            messagebox::offer(&window, title(), text, u"&Save To Another File..."_s);
            boxes.checkAllCame();
        }
    }

    void expectCentred(QMessageBox &shown) const
    {
        const QPoint apart =
            shown.frameGeometry().center() - window.window()->frameGeometry().center();
        EXPECT_LE(std::abs(apart.x()), 1) << apart.x();
        EXPECT_LE(std::abs(apart.y()), 1) << apart.y();
    }
};

TEST_F(MessageBoxPlaceTest, TheTitleFitsBesideTheCloseButton)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::TitleFont);
    font.setBold(true);
    const QFontMetrics metrics(font);
    for (const char *title :
         {"Tarvold Data Editor", "Exclusive To Who?", "No Stipulation Stated"}) {
        SCOPED_TRACE(title);
        boxes.expectNotice(QLatin1StringView(title), u"Oh."_s);
        boxes.beforeItsAnswer([&](QMessageBox &shown) {
            const int room = 4 * metrics.height(); // icon, close button and borders
            EXPECT_GE(shown.width(), metrics.horizontalAdvance(QLatin1StringView(title)) + room);
        });
        messagebox::notice(&window, QLatin1StringView(title), u"Oh."_s);
        boxes.checkAllCame();
    }
}

TEST_F(MessageBoxPlaceTest, IsCentredOverItsWindow)
{
    checkAll([this](QMessageBox &shown) { expectCentred(shown); });
}

TEST_F(MessageBoxPlaceTest, IsCentredOverTheWindowOfTheControlThatAsks)
{
    boxes.expectNotice(title(), u"Saved OK."_s);
    boxes.beforeItsAnswer([this](QMessageBox &shown) { expectCentred(shown); });
    messagebox::notice(&elsewhere, title(), u"Saved OK."_s);
    boxes.checkAllCame();
}

TEST_F(MessageBoxPlaceTest, IsWhollyOnTheScreen)
{
    const QRect screen = window.screen()->availableGeometry();
    for (const QPoint &place :
         {QPoint(-560, -400), QPoint(screen.right() - 40, screen.bottom() - 40),
          QPoint(-560, screen.bottom() - 40), QPoint(screen.right() - 40, -400)}) {
        window.move(place);
        QCoreApplication::processEvents();
        checkAll(
            [&screen](QMessageBox &shown) { EXPECT_TRUE(screen.contains(shown.frameGeometry())); });
    }
}

TEST_F(MessageBoxPlaceTest, TheMarginsAreEven)
{
    checkAll([](QMessageBox &shown) {
        QRect content = shown.findChild<QLabel *>(u"qt_msgbox_label"_s)->geometry();
        const int left = content.left();
        for (const QAbstractButton *button : shown.buttons()) {
            content |= QRect(button->mapTo(&shown, QPoint()), button->size());
        }
        EXPECT_EQ(content.left(), left) << "the buttons begin left of the text";
        EXPECT_EQ(content.left(), shown.rect().right() - content.right());
        EXPECT_EQ(content.top(), shown.rect().bottom() - content.bottom());
        EXPECT_EQ(content.top(), content.left());
    });
}

TEST_F(MessageBoxPlaceTest, AsksForACloseButtonOnly)
{
    checkAll([](QMessageBox &shown) {
        const Qt::WindowFlags flags = shown.windowFlags();
        EXPECT_TRUE(flags.testFlag(Qt::WindowCloseButtonHint));
        EXPECT_FALSE(flags.testFlag(Qt::WindowMinimizeButtonHint));
        EXPECT_FALSE(flags.testFlag(Qt::WindowMaximizeButtonHint));
        EXPECT_EQ(shown.minimumSize(), shown.maximumSize());
    });
}

TEST_F(MessageBoxPlaceTest, ComesBackWhenTheDesktopMinimisesIt)
{
    const bool hasDesktop = QGuiApplication::platformName() == "xcb"_L1;
    boxes.expectNotice(title(), u"Saved OK."_s);
    boxes.beforeItsAnswer([&](QMessageBox &shown) {
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&shown));
        bool wasMinimised = false;
        QObject::connect(
            shown.windowHandle(), &QWindow::windowStateChanged, &shown,
            [&](Qt::WindowState state) { wasMinimised |= state == Qt::WindowMinimized; });
        if (hasDesktop) {
            const QString id = QString::number(shown.winId());
            ASSERT_EQ(QProcess::execute(u"xdotool"_s, {u"windowminimize"_s, id}), 0);
        } else {
            shown.showMinimized();
        }
        EXPECT_TRUE(QTest::qWaitFor([&] { return wasMinimised && !shown.isMinimized(); }));
        EXPECT_TRUE(QTest::qWaitForWindowActive(&shown));
        EXPECT_TRUE(QTest::qWaitFor([this] { return window.windowHandle()->isExposed(); }));
        EXPECT_FALSE(window.isMinimized());
    });
    messagebox::notice(&window, title(), u"Saved OK."_s);
    boxes.checkAllCame();
}

/// Counts how often a message box is moved or resized while the user sees it.
class MessageBoxJumps : public QObject
{
public:
    MessageBoxJumps() { qApp->installEventFilter(this); }

    bool isSeen = false;
    int count = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (qobject_cast<QMessageBox *>(watched) == nullptr) {
            return false;
        }
        const QEvent::Type type = event->type();
        if (type == QEvent::Paint) {
            isSeen = true;
        } else if (type == QEvent::Hide) {
            isSeen = false;
        } else if (isSeen && (type == QEvent::Move || type == QEvent::Resize)) {
            ++count;
        }
        return false;
    }
};

TEST_F(MessageBoxPlaceTest, NeverJumps)
{
    MessageBoxJumps jumps;
    checkAll([&jumps](QMessageBox &shown) {
        ASSERT_TRUE(QTest::qWaitFor([&jumps] { return jumps.isSeen; }));
        QEvent request(QEvent::LayoutRequest); // as after a change of the style
        QCoreApplication::sendEvent(&shown, &request);
        QCoreApplication::processEvents();
    });
    EXPECT_EQ(jumps.count, 0);
}

} // namespace
} // namespace tarvold::testing
