#include "controls/controls.h"
#include "support/flow_test.h"
#include "support/folder_test.h"
#include "text/texts.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QLineEdit>

#include <algorithm>
#include <functional>

/// Text pasted into the fields of match endings and segments reaches the file byte for byte, or a
/// message names the character that cannot be saved and nothing is written.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

struct Kind
{
    const char *name;
    const FlowPath *flow;
};

void PrintTo(const Kind &kind, std::ostream *out)
{
    *out << kind.name;
}

const Kind kKinds[] = {{"Normal", &kNormalPath},
                       {"RunIn", &kRunInPath},
                       {"Turn", &kTurnPath},
                       {"Interview", &kInterviewPath},
                       {"TalkShow", &kTalkShowPath}};

class Characters : public FlowTest, public ::testing::WithParamInterface<Kind>
{
protected:
    static const FlowPath &flow() { return *GetParam().flow; }
    static const char *last() { return flow().screens.back(); }
    static RecordFormat format() { return flow().format(); }

    /// Whether a user can enter any text into the field and it is saved unchanged.
    bool takesText(const RecordField &field)
    {
        return field.coding != Coding::FinisherType && boxOf(field) != nullptr &&
               boxOf(field)->isVisible();
    }

    QLineEdit *boxOf(const RecordField &field)
    {
        QWidget &widget = source(flow(), field);
        auto *box = qobject_cast<ComboBox *>(&widget);
        return box != nullptr ? box->lineEdit() : qobject_cast<QLineEdit *>(&widget);
    }

    /// Goes through the whole flow and pastes text into every field that accepts any.
    /// \param textAt returns the text for a line of the record, from 0
    void pasteEverywhere(const std::function<QString(std::size_t)> &textAt)
    {
        press("Form1", flow().button);
        for (const char *screen : flow().screens) {
            expectOnly(screen);
            // From the last line up, as a paste of several lines also fills empty lines below.
            for (std::size_t line = format().size(); line-- > 0;) {
                const RecordField &field = *format()[line];
                const QWidget *window = source(flow(), field).window();
                if (window->objectName() == QLatin1StringView(screen) && takesText(field)) {
                    click(*boxOf(field));
                    QTest::keySequence(boxOf(field)->window()->windowHandle(),
                                       QKeySequence::SelectAll);
                    paste(*boxOf(field), textAt(line));
                    m_pasted.push_back(line);
                }
            }
            if (screen != last()) {
                press(screen, "Command2");
            }
        }
        std::sort(m_pasted.begin(), m_pasted.end());
        EXPECT_GT(m_pasted.size(), 10U);
    }

    void expectEverywhere(const texts::Taken &row)
    {
        pasteEverywhere([&row](std::size_t /*line*/) { return row.text; });
        save(flow());
        const QByteArray bytes = bytesOf(QLatin1StringView(flow().file));
        const QByteArrayList lines = texts::linesOf(bytes);
        ASSERT_EQ(std::size_t(lines.size()), format().size());
        for (const std::size_t line : m_pasted) {
            EXPECT_EQ(lines[qsizetype(line)], row.bytes) << format()[line]->name;
        }
    }

    /// Tries to save and returns the message.
    QString refusal()
    {
        QString message;
        boxes.expectQuestion(title(), QLatin1StringView(flow().question), Answer::Yes);
        boxes.catchNotice(title(), &message);
        press(last(), "Command1");
        expectOnly(last());
        EXPECT_TRUE(QDir().isEmpty());
        return message;
    }

    std::vector<std::size_t> m_pasted; ///< the lines of the record
};

INSTANTIATE_TEST_SUITE_P(Kinds, Characters, ::testing::ValuesIn(kKinds), kNameOfRow);

TEST_P(Characters, TheWholeCodePageIsSavedFromEveryField)
{
    expectEverywhere(texts::wholePage());
}

TEST_P(Characters, LineBreaksBecomeSpacesInEveryField)
{
    expectEverywhere(texts::lineBreaks());
}

TEST_P(Characters, LettersWithCombiningMarksAreComposedInEveryField)
{
    expectEverywhere(texts::marks());
}

TEST_P(Characters, UnsupportedCharactersAreRefusedInEveryField)
{
    pasteEverywhere([](std::size_t line) { return texts::refusedAt(line).text; });
    for (const std::size_t line : m_pasted) {
        const RecordField &field = *format()[line];
        SCOPED_TRACE(field.name);
        const texts::Refused odd = texts::refusedAt(line);
        EXPECT_EQ(refusal(), texts::refusalOf(QString::fromUtf8(field.name), odd.character));
        EXPECT_EQ(controls::textOf(source(flow(), field)), odd.text);
        controls::setTextOf(source(flow(), field), u"fixed"_s);
    }
    save(flow());
    EXPECT_EQ(std::size_t(bytesOf(QLatin1StringView(flow().file)).count("\r\n")), format().size());
}

TEST_P(Characters, ALineEndFromAssistiveTechnologyIsRefused)
{
    goToCommentary(flow());
    type(last(), "Text1", u"The end."_s);
    QAccessibleInterface *box = QAccessible::queryAccessibleInterface(&control(last(), "Text2"));
    box->setText(QAccessible::Value, u"one\r\ntwo"_s);
    EXPECT_EQ(refusal(), texts::refusalOf(u"Commentary line 2"_s, u"U+000D"_s));
}

} // namespace
} // namespace tarvold::testing
