#include "controls/announcement.h"
#include "controls/combo_box.h"
#include "records/window_fixture.h"

namespace tarvold::testing {
namespace {

/// What a records window tells screen readers, and when.
class WindowAnnouncementsTest : public RecordsWindowTest
{
};

TEST_F(WindowAnnouncementsTest, HowManyProblemsAreLeftIsAnnounced)
{
    open(endings(1) + ending("Ending 2 <recshortnam>"));
    clickRow(1);
    ASSERT_TRUE(part<QWidget>("repair").isVisible());
    const auto *announcement =
        part<QWidget>("record").findChild<Announcement *>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_NE(announcement, nullptr);
    EXPECT_EQ(announcement->accessibleName(), QString());
    QTest::mouseClick(&part<QWidget>("repair"), Qt::LeftButton);
    EXPECT_EQ(announcement->accessibleName(), u"No problems."_s);
    press(QKeySequence::Undo);
    EXPECT_EQ(announcement->accessibleName(), u"1 problem."_s);
}

TEST_F(WindowAnnouncementsTest, AWindowInTheBackgroundAnnouncesNothingUntilItIsUsedAgain)
{
    open(endings(1) + ending("Ending 2 <recshortnam>"));
    clickRow(1);
    auto *said = part<QWidget>("notice").parentWidget()->findChild<Announcement *>();
    const auto *problems =
        part<QWidget>("record").findChild<Announcement *>(QString(), Qt::FindDirectChildrenOnly);
    QWidget other;
    other.show();
    expectActive(other);
    changeOnDisk(endings(3));
    EXPECT_EQ(list().model()->rowCount(), 3);
    EXPECT_EQ(notice(), u"Read the file again: 3 records."_s);
    EXPECT_EQ(said->accessibleName(), QString());
    EXPECT_EQ(problems->accessibleName(), QString());
    const auto isSaid = [&said] { return !said->accessibleName().isEmpty(); };
    expectActive(window());
    EXPECT_TRUE(QTest::qWaitFor(isSaid));
    EXPECT_EQ(said->accessibleName(), notice());
    said->setAccessibleName({});
    expectActive(other);
    expectActive(window());
    EXPECT_FALSE(QTest::qWaitFor(isSaid, 100)) << "once is enough";
}

TEST_F(WindowAnnouncementsTest, WhatIsNoLongerSoIsNotAnnouncedLater)
{
    open(endings(2));
    auto *said = part<QWidget>("notice").parentWidget()->findChild<Announcement *>();
    QWidget other;
    other.show();
    expectActive(other);
    ASSERT_TRUE(QFile::remove(QString::fromLatin1(kFile)));
    EXPECT_TRUE(QTest::qWaitFor([this] { return notice().contains(u"is gone"_s); }));
    writeFile(kFile, endings(2));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !notice().contains(u"is gone"_s); }));
    expectActive(window());
    QTest::qWait(100);
    EXPECT_FALSE(said->accessibleName().contains(u"is gone"_s));
}

TEST_F(WindowAnnouncementsTest, AWordOutsideTheListIsAnnouncedOnlyWhereTheUserPutsIt)
{
    open(endings(1) + ending("Ending 2", "Sinfles"));
    press(Qt::CTRL | Qt::Key_2);
    clickRow(1);
    const auto *announcement = part<ComboBox>("field1").findChild<Announcement *>();
    EXPECT_TRUE(part<ComboBox>("field1").isMarked());
    EXPECT_EQ(announcement->accessibleName(), QString());
    clickRow(0);
    typeInto(1, u"Sinfles"_s);
    EXPECT_EQ(announcement->accessibleName(), u"Not in the list."_s);
}

} // namespace
} // namespace tarvold::testing
