// Tests every use of the file layer with unusual names and with what is not a data file.

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

using namespace Qt::StringLiterals;

namespace {

const auto kSource = u"source.tvd"_s;

std::optional<FileError> import(const QString &source, const QString &target, DataFileKind kind)
{
    const auto imported = importRecords({source, target, kind}, [](const QString &) {});
    return imported ? std::nullopt : std::optional(imported.error().error);
}

std::optional<FileError> errorOf(const auto &result)
{
    return result ? std::nullopt : std::optional(result.error());
}

/// A use of a data file.
struct Use
{
    const char *name;
    std::optional<FileError> (*with)(const QString &);
};

const Use kUses[] = {
    {"reading", [](const QString &file) { return errorOf(readFile(file)); }},
    {"loading", [](const QString &file) { return errorOf(StipulationTable().load(file)); }},
    {"appending", [](const QString &file) { return errorOf(appendToFile(file, "bytes\r\n")); }},
    {"rewriting", [](const QString &file) { return errorOf(rewriteFile(file, "bytes\r\n")); }},
    {"importing from",
     [](const QString &file) { return import(file, u"target.tvd"_s, DataFileKind::Interviews); }},
    {"importing into",
     [](const QString &file) { return import(kSource, file, DataFileKind::Interviews); }},
    {"importing stipulations into",
     [](const QString &file) { return import(kSource, file, DataFileKind::Stipulations); }},
};

class OddFiles : public FolderTest, public ::testing::WithParamInterface<OddFile>
{
public:
    OddFiles() { ::alarm(60); } // opening a pipe or reading a device could block forever
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
        EXPECT_EQ(error->outcome, FileOutcome::Unchanged);
        EXPECT_TRUE(error->cause.contains(QString::fromUtf8(GetParam().cause)))
            << error->cause.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(, OddFiles, ::testing::ValuesIn(oddFiles()), kNameOfRow);

struct OddName
{
    const char *name; ///< of its test
    QString file;
};

void PrintTo(const OddName &odd, std::ostream *out)
{
    *out << odd.name;
}

class OddNames : public FolderTest, public ::testing::WithParamInterface<OddName>
{
};

TEST_P(OddNames, ReferToTheFileOfExactlyThatNameInEveryUse)
{
    const QString &file = GetParam().file;
    const QByteArray record = recordOf(19, {"Any", "Cage"});
    EXPECT_TRUE(appendToFile(file, record));
    StipulationTable table;
    EXPECT_TRUE(table.load(file));
    EXPECT_EQ(table.lineCount(), 19);
    EXPECT_TRUE(table.writeBack(file));
    EXPECT_FALSE(import(file, file, DataFileKind::Interviews));
    EXPECT_FALSE(import(file, u"target.tvd"_s, DataFileKind::TalkShows));
    EXPECT_EQ(bytesOf(u"target.tvd"_s), record + record);
    ASSERT_TRUE(QFile::remove(u"target.tvd"_s));
    EXPECT_EQ(entries(), QStringList(file));
    EXPECT_EQ(bytesOf(u"./"_s + file), record + record);
}

INSTANTIATE_TEST_SUITE_P(
    , OddNames,
    ::testing::Values(OddName{"Colon", u":x.tvd"_s}, OddName{"TwoColons", u"::.tvd"_s},
                      OddName{"Resource", u"qrc:x.tvd"_s}, OddName{"Drive", u"C:x.tvd"_s},
                      OddName{"Unicode",
                              QString::fromUtf8("\xC3\xBC\xE5\x90\x8D\xF0\x9F\xA4\xBC.tvd")},
                      OddName{"Combining", QString::fromUtf8("e\xCC\x81.tvd")},
                      OddName{"Blanks", u"  x  .tvd"_s}, OddName{"Wildcards", u"*?[a].tvd"_s},
                      OddName{"Backslash", u"a\\b.tvd"_s}, OddName{"Markup", u"<b>&amp;.tvd"_s},
                      OddName{"Placeholder", u"%1%2.tvd"_s}, OddName{"Home", u"~.tvd"_s},
                      OddName{"Option", u"-x.tvd"_s}, OddName{"LineBreak", u"a\r\nb.tvd"_s},
                      OddName{"Long", QString(244, u'x') + u".tvd"_s}),
    kNameOfRow);

using FileSystem = FolderTest;

TEST_F(FileSystem, ANameWithATrailingSlashIsRefused)
{
    put(kSource, recordOf(19));
    put(u"x.tvd"_s, recordOf(19));
    const std::string before = wholeFolder();
    for (const char *name : {"x.tvd/", "new.tvd/"}) {
        for (const Use &use : kUses) {
            SCOPED_TRACE(std::string(use.name) + ' ' + name);
            const auto error = use.with(QString::fromUtf8(name));
            ASSERT_TRUE(error);
            EXPECT_EQ(error->outcome, FileOutcome::Unchanged);
            EXPECT_FALSE(error->cause.isEmpty());
            EXPECT_EQ(wholeFolder(), before);
        }
    }
}

TEST_F(FileSystem, ADanglingLinkIsAMissingFile)
{
    put(kSource, recordOf(19));
    ASSERT_EQ(::symlink("real.tvd", "x.tvd"), 0);
    const auto x = u"x.tvd"_s;
    const std::string before = wholeFolder();
    EXPECT_TRUE(import(x, kSource, DataFileKind::Interviews));
    EXPECT_TRUE(import(kSource, x, DataFileKind::Stipulations));
    EXPECT_EQ(wholeFolder(), before);
    StipulationTable table;
    EXPECT_TRUE(table.load(x));
    EXPECT_EQ(table.lineCount(), 0);
    EXPECT_EQ(bytesOf(u"real.tvd"_s), QByteArray());
    ASSERT_TRUE(QFile::remove(u"real.tvd"_s));
    EXPECT_FALSE(import(kSource, x, DataFileKind::Interviews));
    EXPECT_EQ(bytesOf(u"real.tvd"_s), recordOf(19));
    EXPECT_TRUE(QFileInfo(x).isSymLink());
}

TEST_F(FileSystem, AFileWithoutReadPermissionIsNeitherImportedNorCompared)
{
    put(kSource, recordOf(19));
    put(u"x.tvd"_s, recordOf(19));
    const std::string before = wholeFolder();
    ASSERT_EQ(::chmod(".", 0777), 0);
    ASSERT_EQ(::chmod("x.tvd", 0222), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const auto x = u"x.tvd"_s;
        const auto target = u"target.tvd"_s;
        const auto denied = [](const std::optional<FileError> &error) {
            return error && error->outcome == FileOutcome::Unchanged &&
                   error->cause.contains(u"You have no permission to read the file."_s);
        };
        return denied(import(x, target, DataFileKind::Interviews)) &&
               denied(import(kSource, x, DataFileKind::Stipulations));
    }));
    ASSERT_EQ(::chmod("x.tvd", 0644), 0);
    EXPECT_EQ(wholeFolder(), before);
}

TEST_F(FileSystem, AFileWithoutReadPermissionCanBeAppendedTo)
{
    put(u"x.tvd"_s, recordOf(19));
    ASSERT_EQ(::chmod(".", 0755), 0);
    ASSERT_EQ(::chmod("x.tvd", 0222), 0);
    EXPECT_TRUE(holdsForOrdinaryUser(
        [] { return appendToFile(u"x.tvd"_s, recordOf(19, {"new"})).has_value(); }));
    EXPECT_EQ(bytesOf(u"x.tvd"_s), recordOf(19) + recordOf(19, {"new"}));
}

TEST_F(FileSystem, AFileOfMoreThanAGigabyteIsNotReadButCanBeAppendedTo)
{
    constexpr qint64 kSize = 1'000'000'000'000; // sparse, so it takes no space
    put(kSource, recordOf(19));
    QFile file(u"x.tvd"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(kSize));
    const auto target = u"target.tvd"_s;
    for (const auto &error :
         {errorOf(readFile(file.fileName())), errorOf(StipulationTable().load(file.fileName())),
          import(file.fileName(), target, DataFileKind::Interviews),
          import(kSource, file.fileName(), DataFileKind::Stipulations)}) {
        ASSERT_TRUE(error);
        EXPECT_EQ(error->cause, u"It is larger than 1 GB."_s);
        EXPECT_EQ(file.size(), kSize);
    }
    EXPECT_FALSE(QFileInfo::exists(target));
    EXPECT_TRUE(appendToFile(file.fileName(), "bytes\r\n"));
    EXPECT_EQ(file.size(), kSize + 7);
}

TEST_F(FileSystem, AnEndlessFileWithoutASizeIsNotRead)
{
    const QString endless = u"/proc/self/pagemap"_s;
    ASSERT_EQ(QFileInfo(endless).size(), 0);
    ASSERT_EQ(::symlink("/proc/self/pagemap", "x.tvd"), 0);
    EXPECT_EQ(readFile(u"x.tvd"_s).error().cause, u"It is larger than 1 GB."_s);
}

} // namespace
} // namespace tarvold::testing
