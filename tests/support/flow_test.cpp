#include "support/flow_test.h"

#include "screens/commentary_screen.h"
#include "support/spoken.h"

#include <QScrollBar>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr char kMissingFinish[] = "You haven't written the match finish!";
constexpr char kAddFinish[] = "Add this finish to the file?";

bool isFirst(const FlowPath &flow, const char *screen)
{
    return qstrcmp(flow.screens.front(), screen) == 0;
}

} // namespace

const FlowPath kNormalPath = {
    "Command3", {"Form4", "Form5", "Form6", "Form7"}, "Text3", "normreports.tvd", kMissingFinish,
    kAddFinish, DataFileKind::NormalEndings};
const FlowPath kRunInPath = {"Command4",
                             {"Form4", "Form5", "Form6", "Form8", "Form9"},
                             "Text4",
                             "feudreports.tvd",
                             kMissingFinish,
                             kAddFinish,
                             DataFileKind::RunInEndings};
const FlowPath kTurnPath = {"Command5",
                            {"Form4", "Form5", "Form6", "Form10", "Form11"},
                            "Text5",
                            "turnreports.tvd",
                            kMissingFinish,
                            kAddFinish,
                            DataFileKind::TurnEndings};
const FlowPath kInterviewPath = {"Command6",
                                 {"Form12", "Form13"},
                                 "Text6",
                                 "interviews.tvd",
                                 "You haven't written the interview segment!",
                                 "Add this interview segment to the file?",
                                 DataFileKind::Interviews};
const FlowPath kTalkShowPath = {"Command7",
                                {"Form14", "Form15"},
                                "Text7",
                                "talkshow.tvd",
                                "You haven't written the talk show segment!",
                                "Add this talk show segment to the file?",
                                DataFileKind::TalkShows};

QWidget &FlowTest::source(const FlowPath &flow, const RecordField &field)
{
    return dynamic_cast<CommentaryScreen &>(screen(flow.screens.back())).source(field);
}

void FlowTest::goTo(const FlowPath &flow, const char *screen)
{
    press("Form1", flow.button);
    for (const char *step : flow.screens) {
        expectOnly(step);
        if (qstrcmp(step, screen) == 0) {
            return;
        }
        press(step, "Command2");
    }
    ADD_FAILURE() << "the flow does not lead to " << screen;
}

void FlowTest::goBack(const FlowPath &flow)
{
    press(flow.screens.back(), "Command2");
    for (auto step = flow.screens.rbegin() + 1; !isFirst(flow, *step); ++step) {
        press(*step, "Command1");
    }
    leave(flow);
}

void FlowTest::leave(const FlowPath &flow)
{
    expectReturnQuestion(Answer::Yes);
    press(flow.screens.front(), "Command1");
    expectOnly("Form1");
}

void FlowTest::save(const FlowPath &flow)
{
    boxes.expectQuestion(title(), QLatin1StringView(flow.question), Answer::Yes);
    boxes.expectNotice(title(), u"Saved OK."_s);
    press(flow.screens.back(), "Command1");
    expectOnly("Form1");
}

void FlowTest::fill(const char *screen, const std::vector<Entry> &entries)
{
    for (const Entry &entry : entries) {
        QWidget &field = control(screen, entry.control);
        if (qobject_cast<ComboBox *>(&field) != nullptr) {
            choose(screen, entry.control, entry.value);
        } else if (auto *bar = qobject_cast<QScrollBar *>(&field)) {
            expectReachable(*bar);
            bar->setFocus(Qt::TabFocusReason);
            QTest::keyClick(bar, Qt::Key_Home);
            for (int value = bar->minimum(); value < entry.value.toInt(); ++value) {
                QTest::keyClick(bar, Qt::Key_Right);
            }
        } else {
            type(screen, entry.control, entry.value);
        }
    }
    expectTexts(screen, entries);
}

void FlowTest::expectTexts(const char *screen, const std::vector<Entry> &expected)
{
    for (const Entry &entry : expected) {
        EXPECT_EQ(text(screen, entry.control), entry.value) << screen << ' ' << entry.control;
    }
}

void FlowTest::expectStops(const char *screen, const std::vector<const char *> &names)
{
    tabTo(this->screen(screen), names.front());
    const QList<QWidget *> stops = tabStops(this->screen(screen));
    ASSERT_EQ(std::size_t(stops.size()), names.size());
    int above = 0;
    for (std::size_t stop = 0; stop < names.size(); ++stop) {
        const QWidget &control = *stops[qsizetype(stop)];
        EXPECT_EQ(control.objectName(), QLatin1StringView(names[stop]));
        const int top = control.mapTo(&this->screen(screen), QPoint()).y();
        const bool isLast = stop + 1 == names.size();
        EXPECT_TRUE(isLast ? top == above : top > above) << names[stop];
        above = top;
    }
}

void FlowTest::expectReturnQuestion(Answer answer)
{
    boxes.expectQuestion(title(),
                         u"This will return you to the main menu and lose any "
                         "changes you haven't saved. Continue?"_s,
                         answer);
}

void FlowTest::given(const char *screen, const char *control, const QString &text)
{
    editor.screens().setText({screen, control}, text);
}

QByteArray FlowTest::asFile(const std::vector<QByteArray> &lines)
{
    QByteArray file;
    for (const QByteArray &line : lines) {
        file += line + "\r\n";
    }
    return file;
}

} // namespace tarvold::testing
