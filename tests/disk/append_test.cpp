#include "disk/append_fixture.h"

namespace tarvold::testing {
namespace {

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
    append(QStringLiteral(" blank before"), "a\r\n");
    EXPECT_EQ(entries(),
              (QStringList{QStringLiteral(" blank before"), QStringLiteral("no extension")}));
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

TEST_F(Append, ATooLongNameIsRefused)
{
    refused(QString(300, u'x'));
}

} // namespace
} // namespace tarvold::testing
