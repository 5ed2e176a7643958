#include "controls/announcement.h"
#include "support/ending_test.h"

#include <QAccessible>

#include <optional>

/// What screen readers announce about tags on the commentary screen.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// Records what a screen reader reads out: the name of the notification each time it is shown.
class Listener : public QObject
{
public:
    explicit Listener(Announcement &announcement) { announcement.installEventFilter(this); }

    QStringList told;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show) {
            told << static_cast<Announcement *>(watched)->accessibleName();
        }
        return QObject::eventFilter(watched, event);
    }
};

class Announcements : public EndingTest
{
protected:
    Announcements()
    {
        goTo("Form7");
        listener.emplace(announcement());
    }

    Announcement &announcement() { return *screen("Form7").findChild<Announcement *>(); }

    const QStringList &told() const { return listener->told; }

    void chooseTag(const char *item) { choose("Form7", "Combo1", QLatin1StringView(item)); }

    std::optional<Listener> listener;
};

TEST_F(Announcements, SayWhichTagWentIntoWhichLine)
{
    click(control("Form7", "Text4"));
    chooseTag("Attacker 1 Short Name");
    EXPECT_EQ(told(), QStringList(u"Inserted <att1shortname> into line 4."_s));
}

TEST_F(Announcements, SayTheSameTwiceWhenItHappensTwice)
{
    click(control("Form7", "Text10"));
    chooseTag("Attacker 1 Short Name");
    chooseTag("Attacker 1 Short Name");
    EXPECT_EQ(told(), QStringList(2, u"Inserted <att1shortname> into line 10."_s));
}

TEST_F(Announcements, SayThatNoLineIsMarked)
{
    chooseTag("Attacker 1 Short Name");
    EXPECT_EQ(told(), QStringList(u"No line is marked, so nothing was inserted."_s));
}

TEST_F(Announcements, SayThatATagWasRefusedAndWhatWasInsertedInstead)
{
    click(control("Form7", "Text1"));
    chooseTag("Attacker 1 Short Name");
    listener->told.clear();
    boxes.expectNotice(title(), u"You have the receiver's manager name as 'N/A' or 'None', "
                                "which means you can't involve the receiver's manager in "
                                "this finish."_s);
    chooseTag("Receiver's Manager Name");
    EXPECT_EQ(told(), QStringList(u"Tag refused. Inserted <att1shortname> into line 1."_s));
}

TEST_F(Announcements, SayThatTheFirstTagWasRefused)
{
    click(control("Form7", "Text1"));
    boxes.expectNotice(title(), u"You have the receiver's manager name as 'N/A' or 'None', "
                                "which means you can't involve the receiver's manager in "
                                "this finish."_s);
    chooseTag("Receiver's Manager Name");
    EXPECT_EQ(told(), QStringList(u"Tag refused. Nothing was inserted."_s));
}

TEST_F(Announcements, AreNotRepeatedWhenTheScreenIsShownAgain)
{
    click(control("Form7", "Text1"));
    chooseTag("Attacker 1 Short Name");
    listener->told.clear();
    press("Form7", "Command2");
    press("Form6", "Command2");
    expectOnly("Form7");
    EXPECT_EQ(told(), QStringList());
}

TEST_F(Announcements, AreNotificationsThatTakeNoSpaceAndNoFocus)
{
    chooseTag("Attacker 1 Short Name");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&announcement())->role(),
              QAccessible::Notification);
    EXPECT_TRUE(announcement().size().isEmpty());
    EXPECT_EQ(announcement().focusPolicy(), Qt::NoFocus);
}

} // namespace
} // namespace tarvold::testing
