#include "support/commentary_test.h"

#include <QDir>
#include <QPushButton>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr const char *kLines[] = {"Text1", "Text2", "Text3", "Text4", "Text5",
                                  "Text6", "Text7", "Text8", "Text9", "Text10"};

bool isYellow(const QWidget &line)
{
    const QColor colour = line.palette().color(QPalette::Base);
    EXPECT_TRUE(colour == QColor(0xFF, 0xFF, 0x00) || colour == QColor(0xFF, 0xFF, 0xFF));
    return colour == QColor(0xFF, 0xFF, 0x00);
}

} // namespace

CommentaryTest::CommentaryTest(const FlowPath &flow) : m_flow(flow), m_screen(flow.screens.back())
{
    goToCommentary(flow);
}

void CommentaryTest::chooseTag(const char *item)
{
    choose(m_screen, "Combo1", QLatin1StringView(item));
}

QString CommentaryTest::insertedBy(const char *item)
{
    typeLine("Text1", {});
    chooseTag(item);
    return line("Text1");
}

void CommentaryTest::expectRefusal(const RefusalRow &refusal)
{
    boxes.expectNotice(QLatin1StringView(refusal.title), QLatin1StringView(refusal.message));
}

void CommentaryTest::expectFixedTexts(const char *heading, const char *instructions,
                                      const char *addCaption)
{
    EXPECT_EQ(screen(m_screen).windowTitle(), u"Tarvold 1.3 Data Editor"_s);
    EXPECT_EQ(text(m_screen, "Label1"), QLatin1StringView(heading));
    EXPECT_EQ(text(m_screen, "Label3"), QLatin1StringView(instructions));
    EXPECT_EQ(screen(m_screen).control<QPushButton>("Command1").text(),
              QLatin1StringView(addCaption));
    EXPECT_EQ(screen(m_screen).control<QPushButton>("Command2").text(), u"<<"_s);
    EXPECT_FALSE(control(m_screen, "hiddenlabel").isVisible());
    EXPECT_EQ(pending(), QString());
    for (const char *name : kLines) {
        EXPECT_EQ(line(name), QString());
        EXPECT_FALSE(isYellow(control(m_screen, name))) << name;
    }
}

void CommentaryTest::expectList(std::span<const TagRow> tags)
{
    const ComboBox &list = combo(m_screen, "Combo1");
    ASSERT_EQ(std::size_t(list.count()), tags.size());
    for (int row = 0; row < list.count(); ++row) {
        EXPECT_EQ(list.itemText(row), QLatin1StringView(tags[std::size_t(row)].item));
    }
}

void CommentaryTest::expectEveryTagInserted(std::span<const TagRow> tags)
{
    static const QStringList kWhatever = {{}};
    for (const TagRow &row : tags) {
        for (const QString &fitting : row.refusal != nullptr ? row.refusal->accepted : kWhatever) {
            SCOPED_TRACE(std::string(row.item) + ": " + fitting.toStdString());
            if (row.refusal != nullptr) {
                editor.screens().setText(row.refusal->box, fitting);
            }
            EXPECT_EQ(insertedBy(row.item), QLatin1StringView(row.tag));
            EXPECT_EQ(pending(), QLatin1StringView(row.tag));
            EXPECT_EQ(control(m_screen, "taghint").accessibleName(), QString());
        }
    }
}

void CommentaryTest::expectEveryRefusal(std::span<const TagRow> tags)
{
    const TagRow &before = tags.front();
    ASSERT_EQ(before.refusal, nullptr);
    chooseTag(before.item);
    for (const TagRow &row : tags) {
        if (row.refusal == nullptr) {
            continue;
        }
        for (const QString &excluding : row.refusal->refused) {
            SCOPED_TRACE(std::string(row.item) + ": " + excluding.toStdString());
            editor.screens().setText(row.refusal->box, excluding);
            expectRefusal(*row.refusal);
            EXPECT_EQ(insertedBy(row.item), QLatin1StringView(before.tag));
            EXPECT_EQ(pending(), QLatin1StringView(before.tag));
        }
    }
}

void CommentaryTest::expectRememberedWhenNothingIsMarked(const TagRow &first, const TagRow &second)
{
    chooseTag(first.item);
    EXPECT_EQ(pending(), QLatin1StringView(first.tag));
    for (const char *name : kLines) {
        EXPECT_EQ(line(name), QString()) << name;
    }
    click(control(m_screen, "Text4"));
    EXPECT_TRUE(isYellow(control(m_screen, "Text4")));
    chooseTag(second.item);
    EXPECT_EQ(line("Text4"), QLatin1StringView(second.tag));
}

void CommentaryTest::expectEmptyFirstLineIsRefused()
{
    typeLine("Text2", u"Only the second line."_s);
    boxes.expectNotice(title(), QLatin1StringView(m_flow.missing));
    press(m_screen, "Command1");
    expectOnly(m_screen);
    EXPECT_TRUE(QDir().isEmpty());
}

void CommentaryTest::expectNoWritesNothing()
{
    typeLine("Text1", u"The end."_s);
    boxes.expectQuestion(title(), QLatin1StringView(m_flow.question), Answer::No);
    press(m_screen, "Command1");
    expectOnly(m_screen);
    EXPECT_EQ(line("Text1"), u"The end."_s);
    EXPECT_TRUE(isYellow(control(m_screen, "Text1")));
    EXPECT_TRUE(QDir().isEmpty());
}

void CommentaryTest::expectOneSpaceIsSaved()
{
    typeLine("Text1", u" "_s);
    save(m_flow);
    const QByteArray commentary = "\r\n " + QByteArray("\r\n-BLANK-").repeated(9) + "\r\n";
    EXPECT_TRUE(bytesOf(QLatin1StringView(m_flow.file)).endsWith(commentary));
}

void CommentaryTest::expectNothingIsClearedByASave()
{
    typeLine("Text1", u"The end."_s);
    typeLine("Text10", u"Really."_s);
    chooseTag(combo(m_screen, "Combo1").itemText(0).toUtf8().constData());
    const QString tag = pending();
    save(m_flow);
    EXPECT_EQ(line("Text1"), u"The end."_s);
    EXPECT_EQ(line("Text10"), u"Really."_s + tag);
    EXPECT_TRUE(isYellow(control(m_screen, "Text10")));
    EXPECT_EQ(pending(), tag);
}

void CommentaryTest::expectTheFileBoxCountsWhenSaving()
{
    typeLine("Text1", u"The end."_s);
    given("Form1", m_flow.fileBox, u"a name of my own.txt"_s);
    save(m_flow);
    EXPECT_EQ(QDir().entryList(QDir::Files), QStringList{u"a name of my own.txt"_s});
}

} // namespace tarvold::testing
