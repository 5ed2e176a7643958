// Compares the values in docs/file-formats.md with the lists of the program.

#include "docs/markdown.h"
#include "support/flow_test.h"
#include "support/print.h"

#include <QRegularExpression>

#include <map>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

QStringList valuesIn(QString cell)
{
    static const QRegularExpression value(u"`([^`]*)`"_s);
    QStringList values;
    for (const auto &match : value.globalMatch(cell)) {
        values << match.captured(1);
    }
    if (cell.endsWith(u"`1` to `100`"_s)) {
        values.removeLast();
        for (int number = 2; number <= 100; ++number) {
            values << QString::number(number);
        }
    }
    return values;
}

/// The documented list of each control, by "Form4, Combo3".
std::map<QString, QStringList> documentedLists()
{
    std::map<QString, QStringList> lists;
    for (const MarkdownTable &table : markdownTables(QStringLiteral(TARVOLD_FILE_FORMATS))) {
        if (table.heading != u"What the lists offer"_s) {
            continue;
        }
        for (const QStringList &row : table.rows) {
            for (const QString &control : row[1].split(u"; "_s)) {
                EXPECT_TRUE(lists.emplace(control, valuesIn(row[0])).second)
                    << control.toStdString();
            }
        }
    }
    return lists;
}

class ListValues : public FlowTest
{
protected:
    void addList(const QWidget &control)
    {
        const auto *box = qobject_cast<const QComboBox *>(&control);
        if (box == nullptr) {
            return;
        }
        QStringList items;
        for (int item = 0; item < box->count(); ++item) {
            items << box->itemText(item);
        }
        program[u"%1, %2"_s.arg(control.window()->objectName(), control.objectName())] = items;
    }

    std::map<QString, QStringList> program;
};

TEST_F(ListValues, EveryListThatFeedsARecordIsDocumented)
{
    for (const FlowPath &flow :
         {kNormalPath, kRunInPath, kTurnPath, kInterviewPath, kTalkShowPath}) {
        for (const RecordField *field : flow.format()) {
            addList(source(flow, *field));
        }
    }
    for (const QComboBox *box : screen("Form3").findChildren<QComboBox *>()) {
        addList(*box);
    }
    EXPECT_EQ(documentedLists(), program);
}

} // namespace
} // namespace tarvold::testing
