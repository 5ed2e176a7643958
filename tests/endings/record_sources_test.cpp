#include "datafiles/record_fields.h"
#include "screens/screen.h"
#include "support/flow_test.h"

#include <QLabel>

#include <algorithm>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// A flow that ends with a record.
struct FlowRow
{
    const char *name;
    const FlowPath &flow;
    int lines; ///< of its record
};

const FlowRow kFlows[] = {
    {"normal", kNormalPath, 36},       {"run-in", kRunInPath, 44},       {"turn", kTurnPath, 33},
    {"interview", kInterviewPath, 19}, {"talk show", kTalkShowPath, 19},
};

QString nameOf(const QWidget &control)
{
    return control.window()->objectName() + u'.' + control.objectName();
}

/// Where each line of a record comes from.
class RecordSources : public FlowTest
{
protected:
    /// The label of a control, if it has one.
    static QString captionOf(const QWidget &control)
    {
        for (const QLabel *label : control.window()->findChildren<QLabel *>()) {
            if (label->buddy() == &control) {
                return label->text();
            }
        }
        return {};
    }
};

TEST_F(RecordSources, HaveAsManyLinesAsARecordOfTheirKind)
{
    for (const FlowRow &row : kFlows) {
        EXPECT_EQ(row.flow.format().size(), std::size_t(row.lines)) << row.name;
        EXPECT_EQ(rowOf(row.flow.kind).linesPerRecord(), row.lines) << row.name;
    }
}

TEST_F(RecordSources, FeedEveryLineFromAControlThatItsScreenHas)
{
    for (const FlowRow &row : kFlows) {
        for (const RecordField *field : row.flow.format()) {
            const QWidget &control = source(row.flow, *field);
            const QByteArray screen = control.window()->objectName().toLatin1();
            const QByteArray name = control.objectName().toLatin1();
            expectOnItsScreen({screen.constData(), name.constData()});
        }
    }
}

TEST_F(RecordSources, FeedEveryLineFromAScreenOfTheirFlow)
{
    for (const FlowRow &row : kFlows) {
        for (const RecordField *field : row.flow.format()) {
            const QString screen = source(row.flow, *field).window()->objectName();
            const auto &screens = row.flow.screens;
            EXPECT_TRUE(std::any_of(
                screens.begin(), screens.end(),
                [&screen](const char *name) { return screen == QLatin1StringView(name); }))
                << row.name << ' ' << screen.toStdString();
        }
    }
}

TEST_F(RecordSources, UseNoControlTwice)
{
    for (const FlowRow &row : kFlows) {
        QStringList seen;
        for (const RecordField *field : row.flow.format()) {
            const QString name = nameOf(source(row.flow, *field));
            EXPECT_FALSE(seen.contains(name)) << row.name << ' ' << name.toStdString();
            seen << name;
        }
    }
}

TEST_F(RecordSources, UseNoFieldTwice)
{
    for (const FlowRow &row : kFlows) {
        for (const RecordField *field : row.flow.format()) {
            const RecordFormat format = row.flow.format();
            EXPECT_EQ(std::count(format.begin(), format.end(), field), 1)
                << row.name << ' ' << field->name;
        }
    }
}

/// Otherwise the wrong screen of the flow could feed a line.
TEST_F(RecordSources, HaveEachFieldOnOneScreenOfTheirFlowOnly)
{
    for (const FlowRow &row : kFlows) {
        for (const RecordField *field : row.flow.format()) {
            const auto &screens = row.flow.screens;
            EXPECT_EQ(std::count_if(screens.begin(), screens.end(),
                                    [&](const char *name) {
                                        return screen(name).sourceOf(*field) != nullptr;
                                    }),
                      1)
                << row.name << ' ' << field->name;
        }
    }
}

TEST_F(RecordSources, CallEveryFieldAsItsScreenDoes)
{
    for (const FlowRow &row : kFlows) {
        const RecordFormat details = row.flow.format().first(std::size_t(row.lines - 10));
        for (const RecordField *field : details) {
            // Both lists of match types share one label, which belongs to the first.
            const QWidget &control = field == &fields::kBasicMatchType
                                         ? this->control("Form4", "Combo3")
                                         : source(row.flow, *field);
            EXPECT_EQ(captionOf(control), QLatin1StringView(field->name)) << row.name;
        }
    }
}

TEST_F(RecordSources, EndWithTheTenLinesOfTheirCommentaryScreen)
{
    for (const FlowRow &row : kFlows) {
        const RecordFormat commentary = row.flow.format().last(10);
        for (int line = 1; line <= 10; ++line) {
            const RecordField &field = *commentary[std::size_t(line - 1)];
            const QString expected =
                u"%1.Text%2"_s.arg(QLatin1StringView(row.flow.screens.back())).arg(line);
            EXPECT_EQ(nameOf(source(row.flow, field)), expected);
            EXPECT_EQ(field.coding, line == 1 ? Coding::AsShown : Coding::BlankIfEmpty);
        }
    }
}

} // namespace
} // namespace tarvold::testing
