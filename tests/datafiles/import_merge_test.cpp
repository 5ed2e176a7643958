// What the import does with whole, odd and changing files.

#include "datafiles/import_merge.h"
#include "support/folder_test.h"

#include <QThread>

#include <filesystem>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

const auto kSource = u"source.tvd"_s;
const auto kTarget = u"target.tvd"_s;

QByteArray stipulation(const QByteArray &matchType, const QByteArray &name)
{
    return recordOf(19, {matchType, name});
}

QString duplicate(const char *matchType, const char *name, const QString &target = kTarget)
{
    return u"The combination of match type: %1 and stipulation: %2 are already in "
           "the file %3 so will not be imported."_s.arg(QLatin1StringView(matchType),
                                                        QLatin1StringView(name), target);
}

class ImportMerge : public FolderTest
{
protected:
    void expectDone(DataFileKind kind, const QString &source, const QString &target)
    {
        const auto imported = importRecords({source, target, kind}, [this](const QString &message) {
            messages << message;
            if (duringMessage) {
                duringMessage();
            }
        });
        EXPECT_TRUE(imported) << imported.error().file.toStdString() << ": "
                              << imported.error().error.cause.toStdString();
    }

    void importStipulations() { expectDone(DataFileKind::Stipulations, kSource, kTarget); }

    QStringList messages;
    std::function<void()> duringMessage;
};

TEST_F(ImportMerge, ALastLineWithoutItsEndIsWrittenWithOne)
{
    QByteArray source = recordOf(19, {"Singles"});
    source.chop(2);
    putBytes(kSource, source);
    expectDone(DataFileKind::Interviews, kSource, kTarget);
    EXPECT_EQ(bytesIn(kTarget), recordOf(19, {"Singles"}));
}

TEST_F(ImportMerge, AnEmptySourceCreatesAMissingTargetOfAnyKind)
{
    putBytes(kSource, {});
    for (const DataFileKindRow &row : kDataFileKinds) {
        QFile::remove(kTarget);
        expectDone(row.kind, kSource, kTarget);
        EXPECT_EQ(bytesIn(kTarget), QByteArray());
    }
}

TEST_F(ImportMerge, OnlyStipulationsAreComparedWithTheTarget)
{
    for (const DataFileKind kind : {DataFileKind::Interviews, DataFileKind::TalkShows}) {
        putBytes(kSource, recordOf(19));
        putBytes(kTarget, recordOf(19));
        expectDone(kind, kSource, kTarget);
        EXPECT_EQ(messages, QStringList());
        EXPECT_EQ(bytesIn(kTarget), recordOf(19) + recordOf(19));
    }
}

struct SelfCase
{
    const char *name;
    QString target;
};

void PrintTo(const SelfCase &self, std::ostream *out)
{
    *out << self.name;
}

class ImportIntoItself : public ImportMerge, public ::testing::WithParamInterface<SelfCase>
{
protected:
    void SetUp() override
    {
        std::error_code refusal;
        std::filesystem::create_symlink("source.tvd", "link.tvd", refusal);
        if (refusal && GetParam().target == u"link.tvd"_s) {
            GTEST_SKIP() << "this system makes no symbolic links for this user";
        }
    }

    void fillSource(const QByteArray &bytes)
    {
        putBytes(kSource, bytes);
        QFile::remove(u"hard.tvd"_s);
        std::filesystem::create_hard_link("source.tvd", "hard.tvd");
    }
};

TEST_P(ImportIntoItself, DoublesInterviewsOnceAndEnds)
{
    fillSource(recordOf(19, {"1"}) + recordOf(19, {"2"}));
    expectDone(DataFileKind::Interviews, kSource, GetParam().target);
    EXPECT_EQ(bytesIn(kSource), recordOf(19, {"1"}) + recordOf(19, {"2"}) + recordOf(19, {"1"}) +
                                    recordOf(19, {"2"}));
}

TEST_P(ImportIntoItself, ReportsEachStipulationAndWritesNothing)
{
    const QByteArray bytes = stipulation("Singles", "Ladder") + stipulation("Any", "Cage");
    fillSource(bytes);
    const QString target = GetParam().target;
    expectDone(DataFileKind::Stipulations, kSource, target);
    EXPECT_EQ(messages, QStringList({duplicate("Singles", "Ladder", target),
                                     duplicate("Any", "Cage", target)}));
    EXPECT_EQ(bytesIn(kSource), bytes);
}

INSTANTIATE_TEST_SUITE_P(, ImportIntoItself,
                         ::testing::Values(SelfCase{"SameName", kSource},
                                           SelfCase{"OtherPath", u"./source.tvd"_s},
                                           SelfCase{"SymbolicLink", u"link.tvd"_s},
                                           SelfCase{"HardLink", u"hard.tvd"_s}),
                         kNameOfRow);

class ChangingTarget : public ImportMerge
{
protected:
    ChangingTarget()
    {
        putBytes(kSource, stipulation("Singles", "Ladder") + stipulation("Singles", "Cage"));
        putBytes(kTarget, stipulation("Singles", "Ladder"));
        letItGrowOld();
    }

    /// A file that was changed just now is always read again.
    static void letItGrowOld() { QThread::msleep(50); }
};

TEST_F(ChangingTarget, GrownWhileAMessageWaitsIsSeenForTheNextRecord)
{
    const QByteArray grown = stipulation("Singles", "Ladder") + stipulation("Singles", "Cage");
    duringMessage = [&] { putBytes(kTarget, grown); };
    importStipulations();
    EXPECT_EQ(messages,
              QStringList({duplicate("Singles", "Ladder"), duplicate("Singles", "Cage")}));
    EXPECT_EQ(bytesIn(kTarget), grown);
}

TEST_F(ChangingTarget, RewrittenAtOnceInTheSameSizeIsSeenForTheNextRecord)
{
    putBytes(kSource, stipulation("Singles", "Sword") + stipulation("Singles", "Chain"));
    for (int attempt = 0; attempt < 20; ++attempt) {
        messages.clear();
        putBytes(kTarget, stipulation("Singles", "Sword"));
        if (attempt % 4 == 0) {
            letItGrowOld();
        }
        duringMessage = [&] {
            QFile file(kTarget);
            ASSERT_TRUE(file.open(QIODevice::ReadWrite));
            file.write(stipulation("Singles", "Chain"));
        };
        importStipulations();
        ASSERT_EQ(messages,
                  QStringList({duplicate("Singles", "Sword"), duplicate("Singles", "Chain")}));
    }
}

TEST_F(ChangingTarget, ReplacedByAnotherFileIsSeenForTheNextRecord)
{
    duringMessage = [&] {
        putBytes(u"other.tvd"_s, stipulation("Singles", "Other "));
        std::filesystem::rename("other.tvd", "target.tvd");
    };
    importStipulations();
    EXPECT_EQ(messages, QStringList(duplicate("Singles", "Ladder")));
    EXPECT_EQ(bytesIn(kTarget), stipulation("Singles", "Other ") + stipulation("Singles", "Cage"));
}

TEST_F(ChangingTarget, ChangedDuringTheLastMessageIsOnlyAppendedTo)
{
    putBytes(kSource, stipulation("Any", "Cage") + stipulation("Singles", "Ladder"));
    duringMessage = [&] { putBytes(kTarget, stipulation("Any", "Cage")); };
    importStipulations();
    EXPECT_EQ(messages, QStringList(duplicate("Singles", "Ladder")));
    EXPECT_EQ(bytesIn(kTarget), stipulation("Any", "Cage") + stipulation("Any", "Cage"));
}

TEST_F(ImportMerge, ManyLinesAreCopiedWhole)
{
    constexpr int kRecords = 20'000;
    QByteArray bytes;
    for (int record = 0; record < kRecords; ++record) {
        bytes += recordOf(44, {QByteArray::number(record)});
    }
    putBytes(kSource, bytes);
    putBytes(kTarget, recordOf(44, {"first"}));
    expectDone(DataFileKind::RunInEndings, kSource, kTarget);
    EXPECT_TRUE(bytesIn(kTarget) == recordOf(44, {"first"}) + bytes); // too long to be shown
}

TEST_F(ImportMerge, ALineOfAnyLengthIsCopiedWhole)
{
    const QByteArray line(20'000'000, 'x');
    putBytes(kSource, recordOf(33, {"Singles", line}));
    expectDone(DataFileKind::TurnEndings, kSource, kTarget);
    EXPECT_TRUE(bytesIn(kTarget) == recordOf(33, {"Singles", line}));
}

} // namespace
} // namespace tarvold::testing
