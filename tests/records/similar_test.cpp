#include "controls/controls.h"
#include "records/records_window.h"
#include "records/similar.h"
#include "screens/commentary_screen.h"
#include "screens/main_menu.h"
#include "support/flow_test.h"

#include <QScrollBar>

namespace tarvold::testing {

using namespace Qt::StringLiterals;
using records::RecordsWindow;

namespace {

/// The last path is of the stipulations, which have a list and a form instead.
const FlowPath *const kPaths[] = {&kNormalPath, &kRunInPath, &kTurnPath, &kInterviewPath,
                                  &kTalkShowPath};

class Similar : public FlowTest
{
public:
    Similar() = default;
    ~Similar() override { EXPECT_TRUE(RecordsWindow::closeAll()); }
    Q_DISABLE_COPY_MOVE(Similar)

protected:
    /// Opens a records window and asks it for a record like this one. The window is closed again,
    /// so that the screens are alone.
    void request(const QByteArray &record, DataFileKind kind)
    {
        writeFile("shown.tvd", record);
        editor.screens().get<Form1>().fileDropped(u"shown.tvd"_s);
        const QList<RecordsWindow *> windows = RecordsWindow::all();
        ASSERT_EQ(windows.size(), 1);
        emit windows.front()->writeSimilarRequested(record, kind);
        boxes.checkAllCame();
        EXPECT_TRUE(RecordsWindow::closeAll());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Enters something into each visible control of a screen.
    /// \param shift which items of the lists
    void enterValues(const char *name, RecordFormat format, int shift)
    {
        for (const RecordField *field : format) {
            QWidget *control = screen(name).sourceOf(*field);
            if (control == nullptr) {
                continue;
            }
            QString value = u"Words %1, & more"_s.arg(++m_entered);
            if (const auto *list = qobject_cast<ComboBox *>(control)) {
                value = list->itemText((m_entered + shift) % list->count());
            } else if (qobject_cast<QScrollBar *>(control) != nullptr) {
                value = QString::number(20 + shift);
            }
            fill(name, {{qPrintable(control->objectName()), value}});
        }
    }

    /// Goes from the first screen of a flow, which is shown, to the last.
    void goOn(const FlowPath &flow)
    {
        for (const char *step : flow.screens) {
            expectOnly(step);
            if (step != flow.screens.back()) {
                press(step, "Command2");
            }
        }
    }

    /// Writes a record through the screens and returns its bytes.
    QByteArray written(const FlowPath &flow, int shift)
    {
        press("Form1", flow.button);
        for (const char *step : flow.screens) {
            enterValues(step, flow.format(), shift);
            if (step != flow.screens.back()) {
                press(step, "Command2");
            }
        }
        type(flow.screens.back(), "Text7", QString());
        save(flow);
        return bytesOf(QLatin1StringView(flow.file));
    }

    /// Puts something else into each control that feeds the record.
    void forget(const FlowPath &flow)
    {
        for (const RecordField *field : flow.format()) {
            controls::setTextOf(source(flow, *field), u"99"_s);
        }
    }

private:
    int m_entered = 0;
};

TEST_F(Similar, SavedWithoutAChangeItIsTheSameRecord)
{
    for (const FlowPath *flow : kPaths) {
        for (const int shift : {0, 1}) {
            SCOPED_TRACE(std::string(flow->file) + " " + std::to_string(shift));
            const QByteArray record = written(*flow, shift);
            EXPECT_TRUE(record.contains("Words")) << record.toStdString();
            forget(*flow);
            request(record, flow->kind);
            goOn(*flow);
            save(*flow);
            EXPECT_EQ(bytesOf(QLatin1StringView(flow->file)), record + record);
            QFile::remove(QLatin1StringView(flow->file));
        }
    }
}

TEST_F(Similar, AFeudTypeThatDoesNotFollowTheMatchTypeStays)
{
    press("Form1", kRunInPath.button);
    choose("Form4", "Combo12", u"Singles"_s);
    for (const char *step : {"Form4", "Form5", "Form6"}) {
        press(step, "Command2");
    }
    choose("Form8", "Combo3", u"Tag Team"_s);
    press("Form8", "Command2");
    type("Form9", "Text1", u"The end."_s);
    save(kRunInPath);
    const QByteArray record = bytesOf(u"feudreports.tvd"_s);
    request(record, DataFileKind::RunInEndings);
    EXPECT_EQ(text("Form8", "Combo3"), u"Tag Team"_s);
    EXPECT_EQ(text("Form8", "HScroll1"), u"10"_s);
    EXPECT_EQ(text("Form8", "Label8"), u"10%"_s);
}

TEST_F(Similar, TheLabelOfABarShowsItsValue)
{
    const QByteArray record =
        recordOf(19, {"Singles", "N/A", "N/A", "Any", "Any", "Any", "Any", "Any", "63"});
    request(record, DataFileKind::Interviews);
    EXPECT_EQ(text("Form12", "HScroll1"), u"63"_s);
    EXPECT_EQ(text("Form12", "Label8"), u"63%"_s);
}

TEST_F(Similar, AStipulationSavedInAnotherFileIsTheSame)
{
    press("Form1", "Command1");
    press("Form16", "Command1");
    enterValues("Form3", rowOf(DataFileKind::Stipulations).format, 0);
    fill("Form3", {{"matchtype", u"Tag Team"_s},
                   {"stipulation", u"Ladder Match"_s},
                   {"matchshowsas", u"Ladder"_s},
                   {"dqposs", u"No"_s},
                   {"runins", u"No"_s},
                   {"HScroll1", u"31"_s},
                   {"drawmax", u"77"_s},
                   {"drawdec", u"12"_s},
                   {"exclusive", u"Yes"_s},
                   {"prominitials", u"TWA"_s},
                   {"matchquality", u"50% Standard, 50% Hardcore"_s},
                   {"titleneeded", u"Yes"_s}});
    boxes.expectNotice(u"Stipulations Editor"_s, u"Saved OK!"_s);
    press("Form3", "Command2");
    press("Form16", "Command3");
    const QByteArray record = bytesOf(u"stipulations.tvd"_s);
    EXPECT_EQ(record.count("\r\n"), 19);

    type("Form1", "Text1", u"other.tvd"_s);
    request(record, DataFileKind::Stipulations);
    expectOnly("Form3");
    EXPECT_EQ(text("Form3", "risk"), u"31%"_s);
    EXPECT_EQ(text("Form3", "exclusive"), u"Yes"_s);
    EXPECT_EQ(text("Form16", "listpos"), u"NEW"_s);
    boxes.expectNotice(u"Stipulations Editor"_s, u"Saved OK!"_s);
    press("Form3", "Command2");
    EXPECT_EQ(bytesOf(u"other.tvd"_s), record);
    EXPECT_EQ(bytesOf(u"stipulations.tvd"_s), record);
}

TEST_F(Similar, AStipulationOfNoPromotionIsExclusiveToNone)
{
    QByteArrayList lines = {"Singles", "Cage", "",   "Yes", "No", "No", "Yes", "5",  "50", "50",
                            "50",      "50",   "NA", "NA",  "NA", "NA", "No",  "No", "No"};
    request(asFile({lines.begin(), lines.end()}), DataFileKind::Stipulations);
    EXPECT_EQ(text("Form3", "exclusive"), u"No"_s);
    EXPECT_EQ(text("Form3", "prominitials"), QString());
}

TEST_F(Similar, IsRefusedWhileAFlowIsUnderWay)
{
    const QByteArray record = recordOf(19);
    for (const FlowPath *flow : kPaths) {
        goTo(*flow, flow->screens.at(1));
        QString told;
        boxes.catchNotice(u"Write A Similar One"_s, &told);
        request(record, DataFileKind::TalkShows);
        EXPECT_TRUE(told.startsWith(u"Finish or leave the "_s) && told.endsWith(u" first."_s))
            << told.toStdString();
        expectOnly(flow->screens.at(1));
        press(flow->screens.at(1), flow->screens.size() == 2 ? "Command2" : "Command1");
        leave(*flow);
    }
}

TEST_F(Similar, IsRefusedOnAllOtherScreens)
{
    const auto expectRefusal = [this](const QString &refusal) {
        boxes.expectNotice(u"Write A Similar One"_s, refusal);
        request(recordOf(19), DataFileKind::TalkShows);
    };
    press("Form1", "Command1");
    expectRefusal(u"Leave the list of match stipulations first."_s);
    press("Form16", "Command1");
    expectRefusal(u"Finish or leave the match stipulation that you are editing first."_s);
    press("Form3", "Command1");
    press("Form16", "Command3");
    press("Form1", "Command8");
    expectRefusal(u"Finish or leave the import first."_s);
}

TEST_F(Similar, AStipulationNeedsTheFileThatTheMainMenuNames)
{
    type("Form1", "Text1", u"nothing"_s);
    boxes.expectNotice(u"Filename Error"_s, u"Please enter the name of the file you want to edit, "
                                            "including the .tvd extension."_s);
    request(recordOf(19), DataFileKind::Stipulations);
    expectOnly("Form1");
}

/// An interview with one line changed, inserted or left out.
QByteArrayList interviewLines()
{
    return {"Singles", "N/A",     "N/A",          "Any",     "Any",     "Any",     "Any",
            "Any",     "10",      "Hello there.", "-BLANK-", "-BLANK-", "-BLANK-", "-BLANK-",
            "-BLANK-", "-BLANK-", "-BLANK-",      "-BLANK-", "-BLANK-"};
}

TEST_F(Similar, AMissingLineLeavesTheStartValueAndIsTold)
{
    QByteArrayList lines = interviewLines();
    lines.removeAt(8);
    boxes.expectNotice(u"Write A Similar One"_s,
                       u"The line for \"Feud Heat Increase\" is missing; its box is as for a new "
                       "record."_s);
    request(asFile({lines.begin(), lines.end()}), DataFileKind::Interviews);
    EXPECT_EQ(text("Form12", "HScroll1"), u"10"_s);
    EXPECT_EQ(text("Form13", "Text1"), u"Hello there."_s);
}

TEST_F(Similar, ALineThatIsMissingAmongEqualsIsNotNamedForCertain)
{
    QByteArrayList lines = interviewLines();
    lines.removeAt(5); // "Any"
    boxes.expectNotice(
        u"Write A Similar One"_s,
        u"A line from \"Disposition Of Side 1\" to \"Gender of Feuding Wrestlers\" is "
        "missing, and it is not certain which; the box of \"Gender of Feuding "
        "Wrestlers\" is as for a new record."_s);
    request(asFile({lines.begin(), lines.end()}), DataFileKind::Interviews);
}

TEST_F(Similar, ANumberThatTheBarCannotShowIsTold)
{
    QByteArrayList lines = interviewLines();
    lines[8] = "150";
    boxes.expectNotice(u"Write A Similar One"_s,
                       u"\"150\" for \"Feud Heat Increase\" is no whole number from 1 to 100; the "
                       "bar shows 100."_s);
    request(asFile({lines.begin(), lines.end()}), DataFileKind::Interviews);
    EXPECT_EQ(text("Form12", "HScroll1"), u"100"_s);
    EXPECT_EQ(text("Form12", "Label8"), u"100%"_s);
}

TEST_F(Similar, AnUnknownFinisherIsShownAsItStandsAndTold)
{
    press("Form1", kNormalPath.button);
    for (const char *step : {"Form4", "Form5", "Form6"}) {
        press(step, "Command2");
    }
    type("Form7", "Text1", u"The end."_s);
    save(kNormalPath);
    std::vector<QByteArray> lines;
    const QByteArrayList written = bytesOf(u"normreports.tvd"_s).split('\n');
    for (const QByteArray &line : written.first(36)) {
        lines.push_back(line.chopped(1));
    }
    lines[14] = "x"; // the attacker's finisher
    boxes.expectNotice(u"Write A Similar One"_s,
                       u"\"x\" for \"Attacker(s) Finisher Type\" is no word that its screen knows; "
                       "it is shown as it stands."_s);
    request(asFile(lines), DataFileKind::NormalEndings);
    EXPECT_EQ(text("Form5", "Combo7"), u"x"_s);
    EXPECT_TRUE(combo("Form5", "Combo7").isMarked());
}

TEST_F(Similar, ALineThatIsTooLongForABoxIsRefused)
{
    QByteArrayList lines = interviewLines();
    lines[9] = QByteArray(1'000'001, 'a');
    boxes.expectNotice(u"Write A Similar One"_s,
                       u"The line for \"Commentary line 1\" has 1000001 characters. Its screen can "
                       "show 1000000 at most."_s);
    request(asFile({lines.begin(), lines.end()}), DataFileKind::Interviews);
    expectOnly("Form1");
}

} // namespace
} // namespace tarvold::testing
