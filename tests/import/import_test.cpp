#include "import/import_test.h"

#include <QTest>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr const char *kStage1[] = {"Command1", "Command2", "Command3", "Command4",
                                   "Command5", "Command6", "Command7"};
constexpr const char *kStage2[] = {"File1", "Label2", "Text1", "Command8", "Command9"};
constexpr const char *kBoth[] = {"Label1", "Label3", "Line1"};

} // namespace

// clang-format off
const std::array<ImportKind, 6> kImportKinds = {{
    {"NormalEndings", "Command2", "Normal Match Endings",       "Normal Matches", "normreports.tvd",  36},
    {"RunInEndings",  "Command3", "Match Endings With Run-Ins", "Run-In Matches", "feudreports.tvd",  44},
    {"Stipulations",  "Command4", "Match Stipulations",         "Stipulations",   "stipulations.tvd", 19},
    {"TurnEndings",   "Command5", "Match Endings With Turns",   "Turn Matches",   "turnreports.tvd",  33},
    {"Interviews",    "Command6", "Interview Segments",         "Interviews",     "interviews.tvd",   19},
    {"TalkShows",     "Command7", "Talk Show Segments",         "Talk Shows",     "talkshow.tvd",     19},
}};
// clang-format on

void PrintTo(const ImportKind &kind, std::ostream *out)
{
    *out << kind.name;
}

void ImportTest::enter()
{
    press("Form1", "Command8");
    expectOnly("Form2");
    expectReachable(control("Form2", "Command1"));
}

QStringList ImportTest::listed()
{
    QStringList names;
    for (int row = 0; row < files().model()->rowCount(); ++row) {
        names << files().model()->index(row, 0).data().toString();
    }
    return names;
}

QString ImportTest::selected()
{
    const QModelIndexList rows = files().selectionModel()->selectedIndexes();
    return rows.isEmpty() ? QString() : rows.front().data().toString();
}

void ImportTest::select(const QString &file)
{
    const int row = int(listed().indexOf(file));
    ASSERT_GE(row, 0) << file.toStdString() << " is not listed";
    expectReachable(files());
    const QModelIndex index = files().model()->index(row, 0);
    files().scrollTo(index);
    QTest::mouseClick(files().viewport(), Qt::LeftButton, {}, files().visualRect(index).center());
    EXPECT_EQ(selected(), file);
}

void ImportTest::expectStage1()
{
    expectOnly("Form2");
    EXPECT_EQ(text("Form2", "Label1"), u"What would you like to import?"_s);
    for (const char *name : kStage1) {
        EXPECT_TRUE(control("Form2", name).isVisible()) << name;
    }
    for (const char *name : kStage2) {
        EXPECT_FALSE(control("Form2", name).isVisible()) << name;
    }
    for (const char *name : kBoth) {
        EXPECT_TRUE(control("Form2", name).isVisible()) << name;
    }
    EXPECT_FALSE(control("Form2", "whatimport").isVisible());
}

void ImportTest::expectStage2()
{
    expectOnly("Form2");
    EXPECT_EQ(text("Form2", "Label1"), u"Which file would you like to import from?"_s);
    for (const char *name : kStage1) {
        EXPECT_FALSE(control("Form2", name).isVisible()) << name;
    }
    for (const char *name : kStage2) {
        EXPECT_TRUE(control("Form2", name).isVisible()) << name;
    }
    for (const char *name : kBoth) {
        EXPECT_TRUE(control("Form2", name).isVisible()) << name;
    }
    EXPECT_FALSE(control("Form2", "whatimport").isVisible());
}

void ImportTest::import()
{
    boxes.expectNotice(u"Import"_s, u"Import Complete."_s);
    press("Form2", "Command8");
}

} // namespace tarvold::testing
