// A failed import says why, and leaves the target as it was.

#include "datafiles/import_fixture.h"

#include <QFileInfo>
#include <QThread>

namespace tarvold::testing {
namespace {

struct KindCase
{
    const char *name;
    DataFileKind kind;
    int lines;
};

void PrintTo(const KindCase &kind, std::ostream *out)
{
    *out << kind.name;
}

class ImportOfCutShortSource : public ImportFails, public ::testing::WithParamInterface<KindCase>
{
};

TEST_P(ImportOfCutShortSource, NamesFileLineAndRecordAndCreatesNothing)
{
    const int lines = GetParam().lines;
    putBytes(kSource, recordOf(lines) + recordOf(lines) + recordOf(lines - 1));
    expectPlace(causeOf(GetParam().kind, kSource), 3 * lines - 1, 3);
    EXPECT_FALSE(QFileInfo::exists(kTarget));
}

TEST_P(ImportOfCutShortSource, LeavesTheTargetAsItWas)
{
    const int lines = GetParam().lines;
    putBytes(kSource, recordOf(lines) + "Any\r\n");
    putBytes(kTarget, recordOf(lines, {"before"}));
    expectPlace(causeOf(GetParam().kind, kSource), lines + 1, 2);
    EXPECT_EQ(bytesIn(kTarget), recordOf(lines, {"before"}));
}

INSTANTIATE_TEST_SUITE_P(, ImportOfCutShortSource,
                         ::testing::Values(KindCase{"Normal", DataFileKind::NormalEndings, 36},
                                           KindCase{"RunIn", DataFileKind::RunInEndings, 44},
                                           KindCase{"Turn", DataFileKind::TurnEndings, 33},
                                           KindCase{"Interview", DataFileKind::Interviews, 19},
                                           KindCase{"TalkShow", DataFileKind::TalkShows, 19},
                                           KindCase{"Stipulation", DataFileKind::Stipulations, 19}),
                         kNameOfRow);

TEST_F(ImportFails, WithoutItsSource)
{
    putBytes(kTarget, recordOf(36));
    causeOf(DataFileKind::NormalEndings, kSource);
    EXPECT_EQ(bytesIn(kTarget), recordOf(36));
}

TEST_F(ImportFails, FromAFolder)
{
    QDir().mkdir(kSource);
    causeOf(DataFileKind::TalkShows, kSource);
    EXPECT_FALSE(QFileInfo::exists(kTarget));
}

TEST_F(ImportFails, IntoAFolder)
{
    putBytes(kSource, recordOf(44));
    QDir().mkdir(kTarget);
    causeOf(DataFileKind::RunInEndings, kTarget);
    EXPECT_TRUE(QDir(kTarget).isEmpty());
}

TEST_F(ImportFails, WhenStipulationsHaveNoTarget)
{
    putBytes(kSource, recordOf(19, {"Any", "Cage"}));
    causeOf(DataFileKind::Stipulations, kTarget);
    EXPECT_FALSE(QFileInfo::exists(kTarget));
}

TEST_F(ImportFails, WhenTheTargetOfStipulationsVanishesDuringAMessage)
{
    putBytes(kSource, recordOf(19, {"Any", "Cage"}) + recordOf(19, {"Any", "Ladder"}));
    putBytes(kTarget, recordOf(19, {"Any", "Cage"}));
    QThread::msleep(50); // a file that was changed just now is always read again
    duringMessage = [] { ASSERT_TRUE(QFile::remove(kTarget)); };
    causeOf(DataFileKind::Stipulations, kTarget);
    EXPECT_EQ(messages, 1);
    EXPECT_FALSE(QFileInfo::exists(kTarget));
}

struct CutCase
{
    const char *name;
    int lines; ///< that are left of the target's second record, which is a duplicate
    int messages;
};

void PrintTo(const CutCase &cut, std::ostream *out)
{
    *out << cut.name;
}

class ImportIntoCutShortTarget : public ImportFails, public ::testing::WithParamInterface<CutCase>
{
};

TEST_P(ImportIntoCutShortTarget, FailsAfterTheMessagesOfWhatCouldBeRead)
{
    const QByteArray source = recordOf(19, {"Any", "Cage"});
    putBytes(kSource, source + source);
    const QByteArray target =
        source + recordOf(GetParam().lines, QByteArrayList({"", "Cage"}).mid(0, GetParam().lines));
    putBytes(kTarget, target);
    expectPlace(causeOf(DataFileKind::Stipulations, kTarget), 19 + GetParam().lines, 2);
    EXPECT_EQ(messages, GetParam().messages);
    EXPECT_EQ(bytesIn(kTarget), target);
}

INSTANTIATE_TEST_SUITE_P(, ImportIntoCutShortTarget,
                         ::testing::Values(CutCase{"AfterTheMatchType", 1, 1},
                                           CutCase{"AfterTheName", 2, 2},
                                           CutCase{"BeforeTheLastLine", 18, 2}),
                         kNameOfRow);

} // namespace
} // namespace tarvold::testing
