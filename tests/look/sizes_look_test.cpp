#include "controls/list_box.h"
#include "controls/sizes.h"
#include "look/parts.h"
#include "look/views.h"
#include "screens/commentary_line.h"
#include "screens/help_line.h"

#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// Windows of other sizes than the one they start with.
class SizesLookTest : public LookTest
{
protected:
    void resizeTo(const QSize &size)
    {
        shown().resize(size);
        QCoreApplication::processEvents();
        ASSERT_EQ(shown().size(), size);
    }

    QScrollBar &scrollBar() { return *shown().findChild<QScrollArea *>()->verticalScrollBar(); }

    /// Whether texts are larger than normal. They may need more than a low window.
    static bool areTextsLarge() { return qEnvironmentVariableIntValue("TARVOLD_TEXT_SIZE") > 12; }

    void expectReadableWidth();
    void expectVisible(QWidget &part);
};

bool growsInWidth(const QWidget &part)
{
    return qobject_cast<const CommentaryLine *>(&part) != nullptr ||
           qobject_cast<const ListBox *>(&part) != nullptr;
}

void SizesLookTest::expectReadableWidth()
{
    const int readable = shown().fontMetrics().averageCharWidth() * 100;
    for (const QWidget *part : parts::items(shown())) {
        const auto *label = qobject_cast<const QLabel *>(part);
        const QRect place = label != nullptr ? parts::textOf(*label) : parts::placeOf(*part);
        const std::string name = parts::nameOf(*part).toStdString();
        if (growsInWidth(*part)) {
            EXPECT_EQ(place.right() + 1, shown().width() - kMargin) << name;
        } else {
            EXPECT_LE(place.right(), readable) << name;
        }
    }
}

void SizesLookTest::expectVisible(QWidget &part)
{
    EXPECT_TRUE(part.isVisible()) << parts::nameOf(part).toStdString();
    EXPECT_EQ(part.visibleRegion().boundingRect(), part.rect())
        << parts::nameOf(part).toStdString() << " is not fully visible";
}

} // namespace

TEST_P(SizesLookTest, OnlyLinesAndListsGrowWithTheWidth)
{
    for (const QSize size : {QSize(1366, 738), QSize(1920, 1050), QSize(2560, 1410)}) {
        if (!areTextsLarge()) {
            resizeTo(size);
            expectReadableWidth();
        }
    }
}

TEST_P(SizesLookTest, OnlyLinesAndListsGrowInAMaximisedWindow)
{
    shown().showMaximized();
    expectActive(shown());
    QCoreApplication::processEvents(); // fits the gaps
    QCoreApplication::processEvents(); // lays out what no longer scrolls
    EXPECT_GT(shown().width(), shown().screen()->availableSize().width() * 9 / 10);
    if (scrollBar().maximum() == 0) {
        expectReadableWidth();
    }
}

TEST_P(SizesLookTest, ButtonsStayNearTheFieldsInATallWindow)
{
    const int lineHeight = shown().fontMetrics().lineSpacing();
    resizeTo({1920, 120 * lineHeight});
    const int most =
        shown().findChild<ListBox *>() != nullptr && shown().findChild<ListBox *>()->isVisible()
            ? shown().height()
            : 60 * lineHeight;
    for (const QPushButton *button : parts::visible<QPushButton>(shown())) {
        EXPECT_LT(parts::placeOf(*button).bottom(), most) << parts::nameOf(*button).toStdString();
    }
}

TEST_P(SizesLookTest, NothingScrollsOnADisplayOf600Pixels)
{
    if (areTextsLarge()) {
        GTEST_SKIP() << "large texts need more";
    }
    constexpr int kFrame = 48; // the largest window frame that a desktop draws
    resizeTo({shown().width(), 600 - kFrame});
    EXPECT_EQ(scrollBar().maximum(), 0);
}

TEST_P(SizesLookTest, HeadingHelpAndButtonsStayInALowWindow)
{
    if (areTextsLarge()) {
        GTEST_SKIP() << "large texts need more";
    }
    resizeTo({shown().width(), 400});
    for (const char *name : {"Label1", "Label3"}) {
        auto *heading = shown().findChild<QLabel *>(QLatin1StringView(name));
        if (heading != nullptr && heading->parentWidget() == &shown() && heading->isVisible()) {
            expectVisible(*heading);
        }
    }
    if (auto *help = shown().findChild<HelpLine *>()) {
        expectVisible(*help);
    }
    for (QPushButton *button : parts::visible<QPushButton>(shown())) {
        expectVisible(*button);
    }
}

TEST_P(SizesLookTest, OnlyTheLinesScrollInALowCommentaryWindow)
{
    if (shown().findChild<CommentaryLine *>() == nullptr || areTextsLarge()) {
        return;
    }
    resizeTo({shown().width(), 400});
    EXPECT_GT(scrollBar().maximum(), 0);
    QWidget &tags = shown().control("Combo1");
    tags.setFocus(Qt::TabFocusReason);
    for (int number = 1; number <= 10; ++number) {
        QTest::keyClick(shown().windowHandle(), Qt::Key_Tab);
        const QString name = u"Text"_s + QString::number(number);
        QWidget &line = shown().control(qPrintable(name));
        EXPECT_TRUE(line.hasFocus()) << number;
        for (QWidget *part : {&line, &tags, &shown().control("Label1"), &shown().control("Label3"),
                              &shown().control("taghint"), &shown().control("Command1"),
                              &shown().control("Command2")}) {
            expectVisible(*part);
        }
    }
    EXPECT_GT(scrollBar().value(), 0);
}

INSTANTIATE_TEST_SUITE_P(All, SizesLookTest, ::testing::ValuesIn(looksIn(Colours::Light)), nameOf);

} // namespace tarvold::testing
