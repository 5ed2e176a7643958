#include "stipulations/stipulation_test.h"

#include <QTest>

#include <memory>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

QByteArray untouched(const QByteArray &name)
{
    return "Singles\r\n" + name +
           "\r\n\r\nYes\r\nNo\r\nNo\r\nYes\r\n5\r\n50\r\n50\r\n50\r\n50\r\n"
           "NA\r\nNA\r\nNA\r\nNA\r\nNo\r\nNo\r\nNo\r\n";
}

void StipulationTest::open(const QByteArray &file)
{
    writeFile(kFile, file);
    press("Form1", "Command1");
    expectOnly("Form16");
}

void StipulationTest::startAnew()
{
    std::destroy_at(&editor);
    std::construct_at(&editor);
    editor.start();
}

QListView &StipulationTest::list()
{
    return screen("Form16").control<QListView>("List1");
}

std::vector<std::string> StipulationTest::listed()
{
    std::vector<std::string> texts;
    const QAbstractItemModel &model = *list().model();
    for (int row = 0; row < model.rowCount(); ++row) {
        texts.push_back(model.index(row, 0).data().toString().toStdString());
    }
    return texts;
}

void StipulationTest::select(int row)
{
    expectReachable(list());
    const QModelIndex index = list().model()->index(row, 0);
    ASSERT_TRUE(index.isValid()) << "no row " << row;
    list().scrollTo(index);
    const QPoint place = list().visualRect(index).center();
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place);
    ASSERT_TRUE(list().selectionModel()->isSelected(index));
}

bool StipulationTest::anySelected()
{
    return list().selectionModel()->hasSelection();
}

void StipulationTest::edit(int row)
{
    select(row);
    press("Form16", "Command2");
    expectOnly("Form3");
}

void StipulationTest::remove(int row, const QString &shown, Answer answer)
{
    select(row);
    boxes.expectQuestion(
        u"Delete Stipulation"_s,
        u"Are you sure you want to permanently delete the match stipulation:\r\n\r\n"_s + shown +
            u"\r\n"_s,
        answer);
    if (answer == Answer::Yes) {
        boxes.expectNotice(u"Delete"_s, u"Stipulation Deleted."_s);
    }
    press("Form16", "Command4");
    expectOnly("Form16");
}

void StipulationTest::save()
{
    boxes.expectNotice(u"Stipulations Editor"_s, u"Saved OK!"_s);
    press("Form3", "Command2");
    expectOnly("Form16");
}

void StipulationTest::saveRefused(const std::vector<Notice> &notices)
{
    for (const Notice &notice : notices) {
        boxes.expectNotice(utf8(notice.title), utf8(notice.text));
    }
    press("Form3", "Command2");
    expectOnly("Form3");
}

} // namespace tarvold::testing
