// The words for what goes wrong with a file, for every way to use it.

#include "disk/append_fixture.h"
#include "disk/file.h"
#include "disk/read.h"
#include "disk/rewrite.h"
#include "support/windows_program.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

TEST(SystemErrors, HaveWordsOfTheirOwn)
{
    const std::pair<int, const char *> expected[] = {
        {ERROR_FILE_NOT_FOUND, "The file does not exist."},
        {ERROR_PATH_NOT_FOUND, "The file does not exist."},
        {ERROR_FILE_EXISTS, "A file with this name exists already."},
        {ERROR_ACCESS_DENIED, "You have no permission to use the file."},
        {ERROR_SHARING_VIOLATION, "Another program has it open."},
        {ERROR_LOCK_VIOLATION, "Another program has it open."},
        {ERROR_WRITE_PROTECT, "The disk is read-only."},
        {ERROR_DISK_FULL, "There is no space left on the disk."},
        {ERROR_HANDLE_DISK_FULL, "There is no space left on the disk."},
        {1295, // ERROR_DISK_QUOTA_EXCEEDED, which some headers lack
         "Your share of the disk is full."},
        {ERROR_IO_DEVICE, "The disk failed, or was removed."},
        {ERROR_FILENAME_EXCED_RANGE, "Its name or path is too long."},
    };
    for (const auto &[code, words] : expected) {
        EXPECT_EQ(systemError(code).cause, QLatin1StringView(words)) << code;
    }
}

TEST_F(Append, AMissingFolderIsNamedByItsWholePath)
{
    const auto name = u"nofolder/x.tvd"_s;
    const QString cause =
        u"The folder \"%1\" does not exist."_s.arg(QDir::current().absoluteFilePath(u"nofolder"_s));
    EXPECT_EQ(refused(name), cause);
    const auto rewritten = rewriteFile(name, "a\r\n", {});
    ASSERT_FALSE(rewritten);
    EXPECT_EQ(rewritten.error().cause, cause);
    const auto bytes = readFile(name);
    ASSERT_FALSE(bytes);
    EXPECT_EQ(bytes.error().cause, cause);
}

} // namespace
} // namespace tarvold::testing
