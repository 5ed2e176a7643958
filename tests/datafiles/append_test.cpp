#include "datafiles/append.h"
#include "support/folder_test.h"

#include <sys/stat.h>
#include <unistd.h>

namespace tarvold::testing {
namespace {

class Append : public FolderTest
{
protected:
    /// Appends and fails the test on an error.
    static void append(const QString &name, const QByteArray &bytes)
    {
        const std::optional<FileError> error = appendToFile(name, bytes);
        EXPECT_FALSE(error.has_value()) << error->cause.toStdString();
    }

    /// Appends, expects an error that left everything as it was, and gives its cause.
    static QString refused(const QString &name)
    {
        const QStringList before = entries();
        const std::optional<FileError> error = appendToFile(name, "bytes\r\n");
        EXPECT_EQ(entries(), before);
        if (!error) {
            ADD_FAILURE() << "the append was not refused";
            return {};
        }
        EXPECT_TRUE(error->unchanged);
        EXPECT_FALSE(error->cause.isEmpty());
        return error->cause;
    }
};

TEST_F(Append, CreatesAMissingFile)
{
    append(QStringLiteral("new.tvd"), "a\r\n");
    EXPECT_EQ(bytesOf(QStringLiteral("new.tvd")), QByteArray("a\r\n"));
}

TEST_F(Append, LeavesWhatIsThereUntouched)
{
    const QByteArray old("odd\rbytes\n\0no line end", 22);
    put(QStringLiteral("old.tvd"), old);
    append(QStringLiteral("old.tvd"), "a\r\n");
    EXPECT_EQ(bytesOf(QStringLiteral("old.tvd")), old + "a\r\n");
}

TEST_F(Append, TwoAppendsHaveNothingBetweenThem)
{
    append(QStringLiteral("file.tvd"), "a\r\nb\r\n");
    append(QStringLiteral("file.tvd"), "c\r\nd\r\n");
    EXPECT_EQ(bytesOf(QStringLiteral("file.tvd")), QByteArray("a\r\nb\r\nc\r\nd\r\n"));
}

TEST_F(Append, BytesStayBytes)
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes.append(static_cast<char>(byte));
    }
    append(QStringLiteral("file.tvd"), bytes);
    EXPECT_EQ(bytesOf(QStringLiteral("file.tvd")), bytes);
}

TEST_F(Append, ANameMayLeadIntoAFolder)
{
    QDir().mkdir(QStringLiteral("sub"));
    append(QStringLiteral("sub/file.tvd"), "a\r\n");
    EXPECT_EQ(bytesOf(QStringLiteral("sub/file.tvd")), QByteArray("a\r\n"));
}

TEST_F(Append, ANameMayBeAFullPath)
{
    append(folder.filePath(QStringLiteral("full.tvd")), "a\r\n");
    EXPECT_EQ(bytesOf(QStringLiteral("full.tvd")), QByteArray("a\r\n"));
}

TEST_F(Append, NothingIsAddedToAName)
{
    append(QStringLiteral("no extension"), "a\r\n");
    append(QStringLiteral(" spaces "), "a\r\n");
    append(QStringLiteral("a:b"), "a\r\n");
    EXPECT_EQ(entries(), (QStringList{QStringLiteral(" spaces "), QStringLiteral("a:b"),
                                      QStringLiteral("no extension")}));
}

TEST_F(Append, ANameMayStartWithAColon)
{
    append(QStringLiteral(":file.tvd"), "a\r\n");
    append(QStringLiteral(":"), "b\r\n");
    EXPECT_EQ(bytesOf(QStringLiteral("./:file.tvd")), QByteArray("a\r\n"));
    EXPECT_EQ(bytesOf(QStringLiteral("./:")), QByteArray("b\r\n"));
}

TEST_F(Append, ALinkLeadsToItsFile)
{
    put(QStringLiteral("real.tvd"), "old\r\n");
    ASSERT_EQ(::symlink("real.tvd", "link.tvd"), 0);
    append(QStringLiteral("link.tvd"), "a\r\n");
    EXPECT_TRUE(QFileInfo(QStringLiteral("link.tvd")).isSymLink());
    EXPECT_EQ(bytesOf(QStringLiteral("real.tvd")), QByteArray("old\r\na\r\n"));
}

TEST_F(Append, ALinkToAMissingFileCreatesThatFile)
{
    ASSERT_EQ(::symlink("real.tvd", "link.tvd"), 0);
    append(QStringLiteral("link.tvd"), "a\r\n");
    EXPECT_TRUE(QFileInfo(QStringLiteral("link.tvd")).isSymLink());
    EXPECT_EQ(bytesOf(QStringLiteral("real.tvd")), QByteArray("a\r\n"));
}

TEST_F(Append, AnEmptyNameIsRefused)
{
    EXPECT_EQ(refused(QString()), QStringLiteral("The file name is empty."));
}

TEST_F(Append, AFolderIsRefused)
{
    QDir().mkdir(QStringLiteral("sub"));
    EXPECT_EQ(refused(QStringLiteral("sub")), QStringLiteral("It is a folder."));
    EXPECT_EQ(refused(QStringLiteral(".")), QStringLiteral("It is a folder."));
    EXPECT_EQ(refused(folder.path()), QStringLiteral("It is a folder."));
}

TEST_F(Append, AMissingFolderIsRefusedAndNotCreated)
{
    refused(QStringLiteral("missing/file.tvd"));
    EXPECT_FALSE(QFileInfo::exists(QStringLiteral("missing")));
}

TEST_F(Append, AFileInTheMiddleOfThePathIsRefused)
{
    put(QStringLiteral("file"), "old");
    refused(QStringLiteral("file/file.tvd"));
    EXPECT_EQ(bytesOf(QStringLiteral("file")), QByteArray("old"));
}

TEST_F(Append, ALinkThatLeadsToItselfIsRefused)
{
    ASSERT_EQ(::symlink("loop.tvd", "loop.tvd"), 0);
    refused(QStringLiteral("loop.tvd"));
}

TEST_F(Append, ATooLongNameIsRefused)
{
    refused(QString(300, u'x'));
}

TEST_F(Append, APipeIsRefusedWithoutWaiting)
{
    ASSERT_EQ(::mkfifo("pipe.tvd", 0600), 0);
    ::alarm(20); // opening a pipe that nobody reads would wait for ever
    EXPECT_EQ(refused(QStringLiteral("pipe.tvd")), QStringLiteral("It is not an ordinary file."));
    ::alarm(0);
}

TEST_F(Append, ADeviceIsRefused)
{
    EXPECT_EQ(refused(QStringLiteral("/dev/null")), QStringLiteral("It is not an ordinary file."));
    ASSERT_EQ(::symlink("/dev/full", "full.tvd"), 0);
    EXPECT_EQ(refused(QStringLiteral("full.tvd")), QStringLiteral("It is not an ordinary file."));
}

} // namespace
} // namespace tarvold::testing
