// Records whose first line was left empty when they were written: they can be saved, and
// the import leaves them out.

#include "import/import_test.h"
#include "support/flow_test.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

struct EmptiedBox
{
    const char *name; ///< of its test
    const FlowPath &flow;
    const char *box; ///< on the first screen of the flow
    const ImportKind &kind;
};

void PrintTo(const EmptiedBox &row, std::ostream *out)
{
    *out << row.name;
}

class EmptiedFirstLine : public ImportTest, public ::testing::WithParamInterface<EmptiedBox>
{
protected:
    /// Goes through the flow with the box emptied and saves.
    void writeRecord()
    {
        const FlowPath &flow = GetParam().flow;
        press("Form1", flow.button);
        type(flow.screens.front(), GetParam().box, {});
        for (const char *screen : flow.screens) {
            if (screen != flow.screens.back()) {
                press(screen, "Command2");
            }
        }
        type(flow.screens.back(), "Text1", u"The end."_s);
        boxes.expectQuestion(title(), QLatin1StringView(flow.question), Answer::Yes);
        boxes.expectNotice(title(), u"Saved OK."_s);
        press(flow.screens.back(), "Command1");
        expectOnly("Form1");
    }
};

TEST_P(EmptiedFirstLine, IsSavedAndSilentlyLeftOutOfAnImport)
{
    const ImportKind &kind = GetParam().kind;
    const QString source = QLatin1StringView(kind.target);
    writeRecord();
    const QByteArray record = bytesOf(source);
    EXPECT_TRUE(record.startsWith("\r\n"));
    EXPECT_EQ(record.count("\r\n"), kind.lines);

    enter();
    press("Form2", kind.button);
    select(source);
    type("Form2", "Text1", u"other.tvd"_s);
    import();
    expectStage1();
    EXPECT_EQ(bytesOf(u"other.tvd"_s), "");
    EXPECT_EQ(bytesOf(source), record);
}

INSTANTIATE_TEST_SUITE_P(
    , EmptiedFirstLine,
    ::testing::Values(EmptiedBox{"NormalEnding", kNormalPath, "Combo3", kImportKinds[0]},
                      EmptiedBox{"RunInEnding", kRunInPath, "Combo12", kImportKinds[1]},
                      EmptiedBox{"TurnEnding", kTurnPath, "Combo12", kImportKinds[3]},
                      EmptiedBox{"Interview", kInterviewPath, "Combo3", kImportKinds[4]}),
    [](const auto &row) { return std::string(row.param.name); });

} // namespace
} // namespace tarvold::testing
