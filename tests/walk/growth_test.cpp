#include "support/flow_test.h"
#include "support/folder_test.h"

#include <QListView>

#include <algorithm>
#include <limits>
#include <malloc.h>

/// Memory does not grow with the number of saves.
///
/// The heap in use is compared after one stretch of many saves and the next. What the first ones
/// make (screens, fonts, caches of Qt) stays, and now and then a cache grows in one of the
/// later ones. A save that kept so much as one record, which is about 500 bytes, would show as more
/// than the bound in every stretch; so one that stays below it proves that none did.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// How many saves a stretch has; for a longer look, set TARVOLD_SAVES.
int savesPerStretch()
{
    return qEnvironmentVariableIsSet("TARVOLD_SAVES")
               ? qEnvironmentVariableIntValue("TARVOLD_SAVES")
               : 60;
}

constexpr qint64 kBytesPerSave = 200; ///< what the caches of Qt may still take
constexpr int kStretches = 5;         ///< how often they may grow

qint64 heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
}

class Growth : public FlowTest
{
protected:
    template <class Save>
    void expectNone(Save save)
    {
        ASSERT_GT(savesPerStretch(), 0);
        const auto stretch = [&save] {
            for (int count = savesPerStretch(); count > 0; --count) {
                save();
            }
            return heapInUse();
        };
        qint64 before = stretch();
        qint64 least = std::numeric_limits<qint64>::max();
        const qint64 most = kBytesPerSave * savesPerStretch();
        for (int count = kStretches; count > 0 && least > most; --count) {
            const qint64 after = stretch();
            least = std::min(least, after - before);
            before = after;
        }
        RecordProperty("bytes", std::to_string(least));
        EXPECT_LE(least, most) << "more after each " << savesPerStretch() << " saves";
    }

    void expectNoneByRecords(const FlowPath &flow)
    {
        goToCommentary(flow);
        expectNone([this, &flow] {
            type(flow.screens.back(), "Text1", u"The end."_s);
            save(flow);
            goToCommentary(flow);
        });
    }

    void press(const char *screen, const char *name)
    {
        FlowTest::press(screen, name);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void select()
    {
        auto &list = screen("Form16").control<QListView>("List1");
        click(*list.viewport());
        QTest::keyClick(list.window()->windowHandle(), Qt::Key_Home);
    }
};

TEST_F(Growth, StaysAwayFromNormalEndings)
{
    expectNoneByRecords(kNormalPath);
}

TEST_F(Growth, StaysAwayFromRunInEndings)
{
    expectNoneByRecords(kRunInPath);
}

TEST_F(Growth, StaysAwayFromTurnEndings)
{
    expectNoneByRecords(kTurnPath);
}

TEST_F(Growth, StaysAwayFromInterviews)
{
    expectNoneByRecords(kInterviewPath);
}

TEST_F(Growth, StaysAwayFromTalkShows)
{
    expectNoneByRecords(kTalkShowPath);
}

TEST_F(Growth, StaysAwayFromStipulationsThatAreMadeAndDeleted)
{
    press("Form1", "Command1");
    expectNone([this] {
        press("Form16", "Command1");
        type("Form3", "stipulation", u"Ladder Match"_s);
        boxes.expectNotice(u"Stipulations Editor"_s, u"Saved OK!"_s);
        press("Form3", "Command2");
        select();
        boxes.expectQuestion(u"Delete Stipulation"_s,
                             u"Are you sure you want to permanently delete the match "
                             "stipulation:\r\n\r\nSingles / Ladder Match\r\n"_s,
                             Answer::Yes);
        boxes.expectNotice(u"Delete"_s, u"Stipulation Deleted."_s);
        press("Form16", "Command4");
        press("Form16", "Command3");
        press("Form1", "Command1");
    });
}

TEST_F(Growth, StaysAwayFromStipulationsThatAreEditedWithoutLeavingTheList)
{
    putBytes(u"stipulations.tvd"_s, recordOf(19));
    press("Form1", "Command1");
    expectNone([this] {
        select();
        press("Form16", "Command2");
        boxes.expectNotice(u"Stipulations Editor"_s, u"Saved OK!"_s);
        press("Form3", "Command2");
    });
}

TEST_F(Growth, StaysAwayFromImports)
{
    putBytes(u"a.tvd"_s, recordOf(36).repeated(50));
    press("Form1", "Command8");
    expectNone([this] {
        press("Form2", "Command2");
        QTest::keyClick(screen("Form2").windowHandle(), Qt::Key_Home); // not the target itself
        boxes.expectNotice(u"Import"_s, u"Import Complete."_s);
        press("Form2", "Command8");
    });
}

} // namespace
} // namespace tarvold::testing
