#include "datafiles/data_file_kind.h"
#include "support/flow_test.h"

#include <QLabel>

#include <algorithm>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// A layout of a kind whose records end with commentary.
struct LayoutRow
{
    const char *name;
    const RecordLayout &(*layout)();
    DataFileKind kind;
    const FlowPath *flow;
    int lines;
};

const LayoutRow kLayouts[] = {
    {"normal", normalEndingLayout, DataFileKind::NormalEndings, &kNormalPath, 36},
    {"run-in", runInEndingLayout, DataFileKind::RunInEndings, &kRunInPath, 44},
    {"turn", turnEndingLayout, DataFileKind::TurnEndings, &kTurnPath, 33},
    {"interview", interviewLayout, DataFileKind::Interviews, &kInterviewPath, 19},
    {"talk show", talkShowLayout, DataFileKind::TalkShows, &kTalkShowPath, 19},
};

class RecordLayouts : public FlowTest
{
protected:
    /// The label that belongs to a control, if there is one.
    QString captionOf(ControlRef ref)
    {
        const QWidget &control = this->control(ref.screen, ref.control);
        for (const QLabel *label : screen(ref.screen).findChildren<QLabel *>()) {
            if (label->buddy() == &control) {
                return label->text();
            }
        }
        return {};
    }
};

TEST_F(RecordLayouts, HaveAsManyLinesAsARecordOfTheirKind)
{
    for (const LayoutRow &row : kLayouts) {
        EXPECT_EQ(row.layout().size(), std::size_t(row.lines)) << row.name;
        EXPECT_EQ(rowOf(row.kind).linesPerRecord, row.lines) << row.name;
    }
}

TEST_F(RecordLayouts, TakeEveryLineFromAControlThatItsScreenHas)
{
    for (const LayoutRow &row : kLayouts) {
        for (const RecordField &field : row.layout()) {
            expectOnItsScreen(field.source);
        }
    }
}

TEST_F(RecordLayouts, TakeEveryLineFromAScreenOfTheirFlow)
{
    for (const LayoutRow &row : kLayouts) {
        for (const RecordField &field : row.layout()) {
            const auto &screens = row.flow->screens;
            EXPECT_TRUE(std::any_of(
                screens.begin(), screens.end(),
                [&](const char *screen) { return qstrcmp(screen, field.source.screen) == 0; }))
                << row.name << ' ' << field.source.screen;
        }
    }
}

TEST_F(RecordLayouts, TakeNoControlTwice)
{
    for (const LayoutRow &row : kLayouts) {
        QStringList seen;
        for (const RecordField &field : row.layout()) {
            const QString source = QLatin1StringView(field.source.screen) + u'.' +
                                   QLatin1StringView(field.source.control);
            EXPECT_FALSE(seen.contains(source)) << row.name << ' ' << source.toStdString();
            seen << source;
        }
    }
}

TEST_F(RecordLayouts, CallEveryFieldAsItsScreenDoes)
{
    for (const LayoutRow &row : kLayouts) {
        const RecordLayout &layout = row.layout();
        for (std::size_t line = 0; line + 10 < layout.size(); ++line) {
            const RecordField &field = layout[line];
            // Both match type lists stand beside one label, which belongs to the first.
            const ControlRef source = qstrcmp(field.source.control, "Combo12") == 0
                                          ? ControlRef{"Form4", "Combo3"}
                                          : field.source;
            EXPECT_EQ(captionOf(source), QLatin1StringView(field.caption))
                << row.name << ' ' << line + 1;
        }
    }
}

TEST_F(RecordLayouts, EndWithTheTenLinesOfTheirCommentaryScreen)
{
    for (const LayoutRow &row : kLayouts) {
        const RecordLayout &layout = row.layout();
        for (int line = 1; line <= 10; ++line) {
            const RecordField &field = layout.at(layout.size() - 11 + std::size_t(line));
            EXPECT_STREQ(field.source.screen, row.flow->screens.back());
            EXPECT_EQ(QLatin1StringView(field.source.control), u"Text%1"_s.arg(line));
            EXPECT_EQ(field.coding, line == 1 ? Coding::AsShown : Coding::BlankIfEmpty);
        }
    }
}

} // namespace
} // namespace tarvold::testing
