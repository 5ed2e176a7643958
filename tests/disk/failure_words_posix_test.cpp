// The words for what goes wrong with a file, for every way to use it.

#include "disk/append_fixture.h"
#include "disk/file.h"
#include "disk/read.h"
#include "disk/rewrite.h"
#include "support/hindrances.h"

#include <QDir>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class FailureWords : public Append
{
protected:
    /// The causes of the failures of an append, a rewrite and a read of the same name.
    static QStringList causesFor(const QString &name)
    {
        const auto causeOf = [](const auto &result) {
            return result ? u"none"_s : result.error().cause;
        };
        return {causeOf(appendToFile(name, "a\r\n")), causeOf(rewriteFile(name, "a\r\n", {})),
                causeOf(readFile(name))};
    }
};

TEST(SystemErrors, HaveWordsOfTheirOwn)
{
    const std::pair<int, const char *> expected[] = {
        {ENOENT, "The file does not exist."},
        {EEXIST, "A file with this name exists already."},
        {EACCES, "You have no permission to use the file."},
        {EROFS, "The disk is read-only."},
        {ENOSPC, "There is no space left on the disk."},
        {EDQUOT, "Your share of the disk is full."},
        {EIO, "The disk failed, or was removed."},
        {EISDIR, "It is a folder."},
        {ENOTDIR, "A part of its path is a file and no folder."},
        {ENAMETOOLONG, "Its name or path is too long."},
        {ELOOP, "Its symbolic links lead in a circle."},
    };
    for (const auto &[code, words] : expected) {
        EXPECT_EQ(systemError(code).cause, QLatin1StringView(words)) << code;
    }
    EXPECT_EQ(systemError(EMFILE).cause, qt_error_string(EMFILE));
}

TEST_F(FailureWords, NameTheMissingFolderByItsWholePath)
{
    const QString missing = QDir::current().absoluteFilePath(u"nofolder"_s);
    const QString cause = u"The folder \"%1\" does not exist."_s.arg(missing);
    EXPECT_EQ(causesFor(u"nofolder/x.tvd"_s), (QStringList{cause, cause, cause}));
    EXPECT_EQ(causesFor(missing + u"/x.tvd"_s), (QStringList{cause, cause, cause}));
}

TEST_F(FailureWords, NameTheMissingFolderAboveALinkedOneAsTheSystemTakesIt)
{
    ASSERT_TRUE(QDir().mkpath(u"far/near"_s));
    ASSERT_TRUE(QFile::link(u"far/near"_s, u"link"_s));
    const QString missing = QDir::currentPath() + u"/link/../nofolder"_s; // in "far"
    const QString cause = u"The folder \"%1\" does not exist."_s.arg(missing);
    EXPECT_EQ(causesFor(u"link/../nofolder/x.tvd"_s), (QStringList{cause, cause, cause}));
}

TEST_F(FailureWords, SayThatAFileToReadDoesNotExist)
{
    EXPECT_EQ(causesFor(u"x.tvd"_s).last(), u"none"_s); // the append has created it
    const auto read = readFile(u"other.tvd"_s);
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().cause, u"The file does not exist."_s);
}

TEST_F(FailureWords, AreTheSameForEveryUseOfAnUnusableName)
{
    ASSERT_TRUE(QDir().mkdir(u"sub"_s));
    put(u"file"_s, "");
    const std::pair<QString, const char *> expected[] = {
        {u"sub"_s, "It is a folder."},
        {u"file/x.tvd"_s, "A part of its path is a file and no folder."},
        {QString(300, u'x'), "Its name or path is too long."},
    };
    for (const auto &[name, words] : expected) {
        const QString cause = QLatin1StringView(words);
        EXPECT_EQ(causesFor(name), (QStringList{cause, cause, cause})) << name.toStdString();
    }
}

TEST_F(FailureWords, NameTheFolderThatTakesNoFile)
{
    const QString closed = QDir::currentPath();
    ASSERT_EQ(::chmod(".", 0555), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([&] {
        const QString cause = u"You may not write in the folder \"%1\"."_s.arg(closed);
        const QStringList causes = causesFor(u"x.tvd"_s);
        return causes == QStringList{cause, cause, u"The file does not exist."_s};
    }));
    ASSERT_EQ(::chmod(".", 0755), 0);
}

TEST_F(FailureWords, AreTheSameForAFolderThatMayNotBeEntered)
{
    ASSERT_TRUE(QDir().mkdir(u"locked"_s));
    const QString locked = QDir::current().absoluteFilePath(u"locked"_s);
    ASSERT_EQ(::chmod(".", 0777), 0);
    ASSERT_EQ(::chmod("locked", 0), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([&] {
        const QString write = u"You may not write in the folder \"%1\"."_s.arg(locked);
        const QString read = u"You have no permission to read the file."_s;
        return causesFor(u"locked/x.tvd"_s) == QStringList{write, write, read};
    }));
    ASSERT_EQ(::chmod("locked", 0755), 0);
}

TEST_F(FailureWords, TellAReadOnlyFileFromOneOfSomebodyElse)
{
    put(u"x.tvd"_s, "");
    ASSERT_EQ(::chmod(".", 0777), 0);
    ASSERT_EQ(::chmod("x.tvd", 0444), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const QString cause = u"The file is read-only."_s;
        return causesFor(u"x.tvd"_s) == QStringList{cause, cause, u"none"_s};
    }));
    const bool isSuperuser = ::geteuid() == 0; // whose file it is then; else the user's own
    ASSERT_EQ(::chmod("x.tvd", isSuperuser ? 0644 : 0466), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const QString cause = u"You have no permission to write to the file."_s;
        return causesFor(u"x.tvd"_s) == QStringList{cause, cause, u"none"_s};
    }));
    ASSERT_EQ(::chmod("x.tvd", isSuperuser ? 0600 : 0066), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        return causesFor(u"x.tvd"_s).last() == u"You have no permission to read the file."_s;
    }));
}

} // namespace
} // namespace tarvold::testing
