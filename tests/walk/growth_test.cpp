#include "support/flow_test.h"
#include "support/folder_test.h"

#include <QListView>

#include <algorithm>
#include <limits>
#include <malloc.h>

/// Checks that memory does not grow with the number of saves.
///
/// Compares the heap in use after series of many saves. The first series creates screens, fonts and
/// caches of Qt, and a cache may still grow in a later one. But a leak of even one record per save,
/// about 500 bytes, would exceed the limit in every series; so one series below the limit proves
/// that there is none.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// The number of saves in a series; set TARVOLD_SAVES for a longer one.
int savesPerSeries()
{
    return qEnvironmentVariableIsSet("TARVOLD_SAVES")
               ? qEnvironmentVariableIntValue("TARVOLD_SAVES")
               : 60;
}

constexpr qint64 kBytesPerSave = 200; ///< limit, leaves room for Qt's caches
constexpr int kSeries = 5;            ///< at most, until one is below the limit

qint64 heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
}

class MemoryGrowth : public FlowTest
{
protected:
    template <class Save>
    void expectNone(Save save)
    {
        ASSERT_GT(savesPerSeries(), 0);
        const auto series = [&save] {
            for (int count = savesPerSeries(); count > 0; --count) {
                save();
            }
            return heapInUse();
        };
        qint64 before = series();
        qint64 least = std::numeric_limits<qint64>::max();
        const qint64 most = kBytesPerSave * savesPerSeries();
        for (int count = kSeries; count > 0 && least > most; --count) {
            const qint64 after = series();
            least = std::min(least, after - before);
            before = after;
        }
        RecordProperty("bytes", std::to_string(least));
        EXPECT_LE(least, most) << "bytes more after each series of " << savesPerSeries()
                               << " saves";
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

TEST_F(MemoryGrowth, NoneWithNormalEndings)
{
    expectNoneByRecords(kNormalPath);
}

TEST_F(MemoryGrowth, NoneWithRunInEndings)
{
    expectNoneByRecords(kRunInPath);
}

TEST_F(MemoryGrowth, NoneWithTurnEndings)
{
    expectNoneByRecords(kTurnPath);
}

TEST_F(MemoryGrowth, NoneWithInterviews)
{
    expectNoneByRecords(kInterviewPath);
}

TEST_F(MemoryGrowth, NoneWithTalkShows)
{
    expectNoneByRecords(kTalkShowPath);
}

TEST_F(MemoryGrowth, NoneWithCreatedAndDeletedStipulations)
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

TEST_F(MemoryGrowth, NoneWithStipulationsEditedWithoutLeavingTheList)
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

TEST_F(MemoryGrowth, NoneWithImports)
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
