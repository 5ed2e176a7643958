#include "disk/append_fixture.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

TEST_F(Append, CreatesAMissingFile)
{
    append(u"new.tvd"_s, "a\r\n");
    EXPECT_EQ(bytesOf(u"new.tvd"_s), QByteArray("a\r\n"));
}

TEST_F(Append, LeavesWhatIsThereUntouched)
{
    const QByteArray old("odd\rbytes\n\0no line end", 22);
    put(u"old.tvd"_s, old);
    append(u"old.tvd"_s, "a\r\n");
    EXPECT_EQ(bytesOf(u"old.tvd"_s), old + "a\r\n");
}

TEST_F(Append, TwoAppendsHaveNothingBetweenThem)
{
    append(u"file.tvd"_s, "a\r\nb\r\n");
    append(u"file.tvd"_s, "c\r\nd\r\n");
    EXPECT_EQ(bytesOf(u"file.tvd"_s), QByteArray("a\r\nb\r\nc\r\nd\r\n"));
}

TEST_F(Append, BytesStayBytes)
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes.append(static_cast<char>(byte));
    }
    append(u"file.tvd"_s, bytes);
    EXPECT_EQ(bytesOf(u"file.tvd"_s), bytes);
}

TEST_F(Append, ANameMayLeadIntoAFolder)
{
    QDir().mkdir(u"sub"_s);
    append(u"sub/file.tvd"_s, "a\r\n");
    EXPECT_EQ(bytesOf(u"sub/file.tvd"_s), QByteArray("a\r\n"));
}

TEST_F(Append, ANameMayBeAFullPath)
{
    append(folder.filePath(u"full.tvd"_s), "a\r\n");
    EXPECT_EQ(bytesOf(u"full.tvd"_s), QByteArray("a\r\n"));
}

TEST_F(Append, NothingIsAddedToAName)
{
    append(u"no extension"_s, "a\r\n");
    append(u" blank before"_s, "a\r\n");
    EXPECT_EQ(entries(), (QStringList{u" blank before"_s, u"no extension"_s}));
}

TEST_F(Append, AnEmptyNameIsRefused)
{
    EXPECT_EQ(refused(QString()), u"The file name is empty."_s);
}

TEST_F(Append, AFolderIsRefused)
{
    QDir().mkdir(u"sub"_s);
    EXPECT_EQ(refused(u"sub"_s), u"It is a folder."_s);
    EXPECT_EQ(refused(u"."_s), u"It is a folder."_s);
    EXPECT_EQ(refused(folder.path()), u"It is a folder."_s);
}

TEST_F(Append, AMissingFolderIsRefusedAndNotCreated)
{
    refused(u"missing/file.tvd"_s);
    EXPECT_FALSE(QFileInfo::exists(u"missing"_s));
}

TEST_F(Append, AFileInTheMiddleOfThePathIsRefused)
{
    put(u"file"_s, "old");
    refused(u"file/file.tvd"_s);
    EXPECT_EQ(bytesOf(u"file"_s), QByteArray("old"));
}

TEST_F(Append, ATooLongNameIsRefused)
{
    refused(QString(300, u'x'));
}

} // namespace
} // namespace tarvold::testing
