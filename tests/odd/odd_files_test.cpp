// What is no data file, under every name and in every use of the file layer.

#include "datafiles/import_merge.h"
#include "datafiles/stipulation_table.h"
#include "disk/append.h"
#include "disk/read.h"
#include "disk/rewrite.h"
#include "odd/odd_files.h"
#include "support/folder_test.h"
#include "support/hindrances.h"

#include <sys/stat.h>
#include <unistd.h>

namespace tarvold::testing {
namespace {

const auto kSource = QStringLiteral("source.tvd");

std::optional<FileError> import(const QString &source, const QString &target, DataFileKind kind)
{
    const auto failure = importRecords({source, target, kind}, [](const QString &) {});
    return failure ? std::optional(failure->error) : std::nullopt;
}

/// Something that is done with a data file.
struct Use
{
    const char *name;
    std::optional<FileError> (*with)(const QString &);
};

const Use kUses[] = {
    {"reading", [](const QString &file) { return readFile(file).error; }},
    {"loading", [](const QString &file) { return StipulationTable().load(file); }},
    {"appending", [](const QString &file) { return appendToFile(file, "bytes\r\n"); }},
    {"rewriting", [](const QString &file) { return rewriteFile(file, "bytes\r\n"); }},
    {"importing from",
     [](const QString &file) {
         return import(file, QStringLiteral("target.tvd"), DataFileKind::Interviews);
     }},
    {"importing into",
     [](const QString &file) { return import(kSource, file, DataFileKind::Interviews); }},
    {"importing stipulations into",
     [](const QString &file) { return import(kSource, file, DataFileKind::Stipulations); }},
};

class OddFiles : public FolderTest, public ::testing::WithParamInterface<OddFile>
{
public:
    OddFiles() { ::alarm(60); } // opening a pipe or reading a device could wait for ever
    ~OddFiles() override { ::alarm(0); }
};

TEST_P(OddFiles, AreRefusedInEveryUseAndNothingChanges)
{
    ASSERT_TRUE(GetParam().make());
    put(kSource, recordOf(19));
    const std::string before = wholeFolder();
    for (const Use &use : kUses) {
        SCOPED_TRACE(use.name);
        const auto error = use.with(GetParam().file);
        EXPECT_EQ(wholeFolder(), before);
        ASSERT_TRUE(error);
        EXPECT_TRUE(error->unchanged);
        EXPECT_TRUE(error->cause.contains(QString::fromUtf8(GetParam().cause)))
            << error->cause.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(, OddFiles, ::testing::ValuesIn(oddFiles()), kNameOfRow);

struct OddName
{
    const char *name; ///< of its tests
    QString file;
};

void PrintTo(const OddName &odd, std::ostream *out)
{
    *out << odd.name;
}

class OddNames : public FolderTest, public ::testing::WithParamInterface<OddName>
{
};

TEST_P(OddNames, MeanTheFileOfExactlyThatNameInEveryUse)
{
    const QString &file = GetParam().file;
    const QByteArray record = recordOf(19, {"Any", "Cage"});
    EXPECT_FALSE(appendToFile(file, record));
    StipulationTable table;
    EXPECT_FALSE(table.load(file));
    EXPECT_EQ(table.lineCount(), 19);
    EXPECT_FALSE(table.writeBack(file));
    EXPECT_FALSE(import(file, file, DataFileKind::Interviews));
    EXPECT_FALSE(import(file, QStringLiteral("target.tvd"), DataFileKind::TalkShows));
    EXPECT_EQ(bytesOf(QStringLiteral("target.tvd")), record + record);
    ASSERT_TRUE(QFile::remove(QStringLiteral("target.tvd")));
    EXPECT_EQ(entries(), QStringList(file));
    EXPECT_EQ(bytesOf(QStringLiteral("./") + file), record + record);
}

INSTANTIATE_TEST_SUITE_P(
    , OddNames,
    ::testing::Values(
        OddName{"Colon", QStringLiteral(":x.tvd")}, OddName{"TwoColons", QStringLiteral("::.tvd")},
        OddName{"Resource", QStringLiteral("qrc:x.tvd")},
        OddName{"Drive", QStringLiteral("C:x.tvd")},
        OddName{"Unicode", QString::fromUtf8("\xC3\xBC\xE5\x90\x8D\xF0\x9F\xA4\xBC.tvd")},
        OddName{"Combining", QString::fromUtf8("e\xCC\x81.tvd")},
        OddName{"Blanks", QStringLiteral("  x  .tvd")},
        OddName{"Wildcards", QStringLiteral("*?[a].tvd")},
        OddName{"Backslash", QStringLiteral("a\\b.tvd")},
        OddName{"Markup", QStringLiteral("<b>&amp;.tvd")},
        OddName{"Placeholder", QStringLiteral("%1%2.tvd")},
        OddName{"Home", QStringLiteral("~.tvd")}, OddName{"Option", QStringLiteral("-x.tvd")},
        OddName{"LineBreak", QStringLiteral("a\r\nb.tvd")},
        OddName{"Long", QString(244, u'x') + QStringLiteral(".tvd")}),
    kNameOfRow);

using FileSystem = FolderTest;

TEST_F(FileSystem, ANameWithASlashBehindItMeansNoFile)
{
    put(kSource, recordOf(19));
    put(QStringLiteral("x.tvd"), recordOf(19));
    const std::string before = wholeFolder();
    for (const char *name : {"x.tvd/", "new.tvd/"}) {
        for (const Use &use : kUses) {
            SCOPED_TRACE(std::string(use.name) + ' ' + name);
            const auto error = use.with(QString::fromUtf8(name));
            ASSERT_TRUE(error);
            EXPECT_TRUE(error->unchanged);
            EXPECT_FALSE(error->cause.isEmpty());
            EXPECT_EQ(wholeFolder(), before);
        }
    }
}

TEST_F(FileSystem, ALinkThatLeadsNowhereIsAMissingFile)
{
    put(kSource, recordOf(19));
    ASSERT_EQ(::symlink("real.tvd", "x.tvd"), 0);
    const auto x = QStringLiteral("x.tvd");
    const std::string before = wholeFolder();
    EXPECT_TRUE(import(x, kSource, DataFileKind::Interviews));
    EXPECT_TRUE(import(kSource, x, DataFileKind::Stipulations));
    EXPECT_EQ(wholeFolder(), before);
    StipulationTable table;
    EXPECT_FALSE(table.load(x));
    EXPECT_EQ(table.lineCount(), 0);
    EXPECT_EQ(bytesOf(QStringLiteral("real.tvd")), QByteArray());
    ASSERT_TRUE(QFile::remove(QStringLiteral("real.tvd")));
    EXPECT_FALSE(import(kSource, x, DataFileKind::Interviews));
    EXPECT_EQ(bytesOf(QStringLiteral("real.tvd")), recordOf(19));
    EXPECT_TRUE(QFileInfo(x).isSymLink());
}

TEST_F(FileSystem, AFileThatMustNotBeReadIsNeitherImportedNorComparedWith)
{
    put(kSource, recordOf(19));
    put(QStringLiteral("x.tvd"), recordOf(19));
    const std::string before = wholeFolder();
    ASSERT_EQ(::chmod(".", 0777), 0);
    ASSERT_EQ(::chmod("x.tvd", 0222), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const auto x = QStringLiteral("x.tvd");
        const auto target = QStringLiteral("target.tvd");
        const auto denied = [](const std::optional<FileError> &error) {
            return error && error->unchanged &&
                   error->cause.contains(QStringLiteral("Permission denied"));
        };
        return denied(import(x, target, DataFileKind::Interviews)) &&
               denied(import(kSource, x, DataFileKind::Stipulations));
    }));
    ASSERT_EQ(::chmod("x.tvd", 0644), 0);
    EXPECT_EQ(wholeFolder(), before);
}

TEST_F(FileSystem, AFileThatMustNotBeReadCanBeAddedTo)
{
    put(QStringLiteral("x.tvd"), recordOf(19));
    ASSERT_EQ(::chmod(".", 0755), 0);
    ASSERT_EQ(::chmod("x.tvd", 0222), 0);
    EXPECT_TRUE(holdsForOrdinaryUser(
        [] { return !appendToFile(QStringLiteral("x.tvd"), recordOf(19, {"new"})); }));
    EXPECT_EQ(bytesOf(QStringLiteral("x.tvd")), recordOf(19) + recordOf(19, {"new"}));
}

TEST_F(FileSystem, AFileOfMoreThanAGigabyteIsNotReadButCanBeAddedTo)
{
    constexpr qint64 kSize = 1'000'000'000'000; // a hole, which takes no space
    put(kSource, recordOf(19));
    QFile file(QStringLiteral("x.tvd"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(kSize));
    const auto target = QStringLiteral("target.tvd");
    for (const auto &error :
         {readFile(file.fileName()).error, StipulationTable().load(file.fileName()),
          import(file.fileName(), target, DataFileKind::Interviews),
          import(kSource, file.fileName(), DataFileKind::Stipulations)}) {
        ASSERT_TRUE(error);
        EXPECT_EQ(error->cause, QStringLiteral("It is larger than 1 GB."));
        EXPECT_EQ(file.size(), kSize);
    }
    EXPECT_FALSE(QFileInfo::exists(target));
    EXPECT_FALSE(appendToFile(file.fileName(), "bytes\r\n"));
    EXPECT_EQ(file.size(), kSize + 7);
}

TEST_F(FileSystem, AFileThatTellsNoSizeAndDoesNotEndIsNotRead)
{
    const QString endless = QStringLiteral("/proc/self/pagemap");
    ASSERT_EQ(QFileInfo(endless).size(), 0);
    ASSERT_EQ(::symlink("/proc/self/pagemap", "x.tvd"), 0);
    EXPECT_EQ(readFile(QStringLiteral("x.tvd")).error.value().cause,
              QStringLiteral("It is larger than 1 GB."));
}

} // namespace
} // namespace tarvold::testing
