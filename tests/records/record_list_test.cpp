#include "record_list_test.h"

#include "controls/contrast.h"
#include "records/preview.h"

#include <QApplication>
#include <QFont>

namespace tarvold::testing {
namespace {

using namespace Qt::StringLiterals;
using List = RecordListModel;

TEST_F(RecordListTest, ShowsNumberChangeTellingTextsAndProblems)
{
    load({one, damaged("Broken"), three});
    QStringList headers;
    for (int column = 0; column < list.columnCount(); ++column) {
        headers.append(list.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    }
    EXPECT_EQ(headers, u"Number Change"_s.split(u' ') +
                           records::columnsOf(DataFileKind::TalkShows) +
                           QStringList{u"Problems"_s});
    EXPECT_EQ(textAt(1, List::Number), u"2");
    EXPECT_EQ(textAt(1, List::State), u"");
    EXPECT_EQ(textAt(1, List::Telling), u"Broken");
    EXPECT_EQ(textAt(0, list.problemColumn()), u"");
    EXPECT_EQ(textAt(1, list.problemColumn()), u"1"_s);
}

TEST_F(RecordListTest, SaysWhatWasDoneToARecord)
{
    load({one, two, three, talkShow("Four")});
    document.replace(0, talkShow("New"), u"Edit"_s);
    document.duplicate(1);
    document.remove({3});
    QStringList words;
    for (int row = 0; row < list.rowCount(); ++row) {
        words.append(textAt(row, List::State));
    }
    EXPECT_EQ(words.join(u',').toStdString(), "Edited,,Added,Deleted,");
    document.move(1, -1);
    EXPECT_EQ(textAt(0, List::State), u"Moved");
    EXPECT_EQ(list.index(3, List::Number).data(Qt::AccessibleTextRole), u"Record 4, Deleted"_s);
}

TEST_F(RecordListTest, StrikesOutADeletedRecord)
{
    document.remove({1});
    const auto isStruck = [this](int row) {
        return list.index(row, List::Telling).data(Qt::FontRole).value<QFont>().strikeOut();
    };
    EXPECT_FALSE(isStruck(0));
    EXPECT_TRUE(isStruck(1));
}

TEST_F(RecordListTest, SortsByProblemsOnceMoreWhenAllAreFound)
{
    writeFile(kFile, one + damaged("Broken") + three);
    open();
    ASSERT_TRUE(scan.isRunning());
    list.sort(list.problemColumn());
    EXPECT_EQ(numbers(), "1 2 3");
    waitForScan();
    EXPECT_EQ(numbers(), "2 1 3");
    document.replace(1, talkShow("Mended"), u"Edit"_s);
    waitForScan();
    EXPECT_EQ(numbers(), "2 1 3") << "a row stays where it is until the next sort";
    document.replace(2, damaged("Broken"), u"Edit"_s);
    list.sort(list.problemColumn());
    EXPECT_EQ(numbers(), "3 1 2");
}

TEST_F(RecordListTest, HasColoursThatCanBeReadInEveryPalette)
{
    load({one, damaged("Broken"), three});
    document.replace(0, talkShow("New"), u"Edit"_s);
    document.remove({2});
    const QPalette usual = QApplication::palette();
    for (const QColor &background : {QColor(Qt::white), QColor(Qt::black), QColor(u"#353535"_s)}) {
        QPalette palette = usual;
        palette.setColor(QPalette::Base, background);
        palette.setColor(QPalette::AlternateBase, background);
        QApplication::setPalette(palette);
        for (const QModelIndex &index : {list.index(0, List::State), list.index(2, List::Telling),
                                         list.index(1, list.problemColumn())}) {
            const auto colour = index.data(Qt::ForegroundRole).value<QColor>();
            EXPECT_GE(contrast::ratio(colour, background), contrast::kText - 0.1)
                << index.column() << " on " << background.name().toStdString();
        }
    }
    QApplication::setPalette(usual);
}

TEST_F(RecordListTest, HasTheColumnsOfAnotherKind)
{
    list.sort(List::Telling);
    ASSERT_TRUE(document.take(document.fileName(), document.file(), DataFileKind::Stipulations));
    EXPECT_EQ(list.columnCount(), int(records::columnsOf(DataFileKind::Stipulations).size()) + 3);
    EXPECT_EQ(list.sortColumn(), -1);
}

TEST_F(RecordListTest, SortsByEveryColumnAndBack)
{
    load({talkShow("b"), talkShow("C"), damaged("a"), talkShow("B")});
    document.replace(3, talkShow("b"), u"Edit"_s);
    list.sort(List::Telling);
    waitForSearch();
    EXPECT_EQ(numbers(), "3 1 4 2");
    list.sort(List::Telling, Qt::DescendingOrder);
    EXPECT_EQ(numbers(), "2 1 4 3");
    list.sort(List::Number, Qt::DescendingOrder);
    EXPECT_EQ(numbers(), "4 3 2 1");
    list.sort(List::State);
    EXPECT_EQ(numbers().front(), '4');
    list.sort(list.problemColumn());
    EXPECT_EQ(numbers().front(), '3');
    list.sort(-1);
    EXPECT_EQ(numbers(), "1 2 3 4");
}

TEST_F(RecordListTest, KeepsTheCurrentRecordAndTheSelectionWhileItSorts)
{
    load({talkShow("Bruno"), talkShow("Comet"), talkShow("Ann")});
    const QPersistentModelIndex current = list.index(1, List::Telling);
    list.sort(List::Telling, Qt::DescendingOrder);
    EXPECT_EQ(current.data(), u"Comet"_s);
    EXPECT_EQ(current.row(), 0);
    list.setSearch(u"comet"_s);
    EXPECT_EQ(current.row(), 0);
    list.setSearch(u"bruno"_s);
    EXPECT_FALSE(current.isValid());
}

TEST_F(RecordListTest, KeepsItsOrderThroughChanges)
{
    load({talkShow("b"), talkShow("c"), talkShow("a")});
    list.sort(List::Telling);
    document.replace(2, talkShow("z"), u"Edit"_s);
    EXPECT_EQ(numbers(), "3 1 2"); // nothing jumps while somebody writes
    document.duplicate(0);
    EXPECT_EQ(numbers(), "4 1 2 3");
    undo();
    EXPECT_EQ(numbers(), "3 1 2");
    document.remove({0});
    ASSERT_TRUE(document.save({}));
    EXPECT_EQ(numbers(), "2 1");
    undo();
    EXPECT_EQ(document.count(), 3);
    EXPECT_EQ(list.rowCount(), 3);
}

TEST_F(RecordListTest, PutsWhatTheFileGotWhereItIsSorted)
{
    const QByteArrayList all = {talkShow("b"), talkShow("c"), talkShow("a")};
    const auto grow = [&] {
        writeFile(kFile, all.join() + talkShow("BB") + damaged("0"));
        ASSERT_EQ(document.takeGrowth(), 2);
    };
    const auto sorted = [&](int column, Qt::SortOrder order) {
        load(all);
        list.sort(column, order);
        waitForSearch();
        document.replace(2, talkShow("z"), u"Edit"_s);
        grow();
        return numbers();
    };
    EXPECT_EQ(sorted(-1, Qt::AscendingOrder), "1 2 3 4 5");
    EXPECT_EQ(sorted(List::Telling, Qt::AscendingOrder), "5 3 1 4 2") << "an edited one stays";
    EXPECT_EQ(sorted(List::Telling, Qt::DescendingOrder), "2 4 1 3 5");
    EXPECT_EQ(sorted(List::Number, Qt::DescendingOrder), "5 4 3 2 1");
    EXPECT_EQ(sorted(list.problemColumn(), Qt::AscendingOrder), "5 1 2 3 4");
    list.sort(List::Telling);
    document.duplicate(4);
    EXPECT_EQ(numbers(), "5 6 1 4 2 3") << "a copy is beside the record";
}

TEST_F(RecordListTest, ShowsAReloadedFileInItsOrder)
{
    load({talkShow("b"), talkShow("a")});
    list.sort(List::Telling);
    writeFile(kFile, talkShow("b") + talkShow("a") + talkShow("0"));
    ASSERT_TRUE(document.reload());
    EXPECT_EQ(numbers(), "3 2 1");
}

TEST_F(RecordListTest, ShortensATextOfMegabytes)
{
    load({talkShow(QByteArray(3'000'000, 'x'))});
    EXPECT_LT(textAt(0, List::Telling).size(), 2000);
}

} // namespace
} // namespace tarvold::testing
